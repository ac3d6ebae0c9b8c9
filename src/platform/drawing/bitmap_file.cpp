#include "platform/drawing/bitmap_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <optional>

#include "platform/drawing/pages.h"

namespace platform {
namespace {

constexpr std::size_t kHeader = 54;

struct Header {
  std::int64_t pixels;  // where they start in the file
  std::int64_t width, height;
  bool bottomUp;
  int bits;
  std::uint32_t compression;

  std::int64_t stride() const { return (width * bits + 31) / 32 * 4; }
  std::int64_t end() const { return pixels + stride() * height; }
};

std::uint32_t Little(const unsigned char* p, int bytes) {
  std::uint32_t value = 0;
  for (int i = bytes; i-- > 0;) value = value << 8 | p[i];
  return value;
}

// Nothing if it is none, of the old kind with 16-bit sizes, or beyond all reason.
std::optional<Header> ReadHeader(const unsigned char* p, std::size_t size) {
  if (size < kHeader || p[0] != 'B' || p[1] != 'M' || Little(p + 14, 4) < 40) return {};
  const auto height = static_cast<std::int32_t>(Little(p + 22, 4));
  const Header header{Little(p + 10, 4),
                      static_cast<std::int32_t>(Little(p + 18, 4)),
                      height < 0 ? -std::int64_t(height) : height,
                      height > 0,
                      static_cast<int>(Little(p + 28, 2)),
                      Little(p + 30, 4)};
  constexpr int kLargest = 1 << 16;  // keeps the products small, too
  if (header.width < 1 || header.width > kLargest || header.height < 1 ||
      header.height > kLargest || header.bits > 32)
    return {};
  return header;
}

// Four pixels are three whole words.
void ExpandRow(const unsigned char* from, std::uint32_t* to, int width) {
  constexpr std::uint32_t kOpaque = 0xFF000000;
  int x = 0;
  for (; x + 4 <= width; x += 4, from += 12) {
    std::uint32_t w[3];
    std::memcpy(w, from, sizeof w);
    to[x] = w[0] | kOpaque;
    to[x + 1] = w[0] >> 24 | w[1] << 8 | kOpaque;
    to[x + 2] = w[1] >> 16 | w[2] << 16 | kOpaque;
    to[x + 3] = w[2] >> 8 | kOpaque;
  }
  for (; x < width; ++x, from += 3) to[x] = Little(from, 3) | kOpaque;
}

}  // namespace

bool ReadPlainBitmap(std::FILE* file, int largest, std::vector<std::uint32_t>& argb, int& width,
                     int& height) {
  unsigned char bytes[kHeader];
  if (std::fread(bytes, 1, kHeader, file) != kHeader) return false;
  const std::optional<Header> header = ReadHeader(bytes, kHeader);
  struct stat info {};
  if (!header || header->bits != 24 || header->compression != 0 || header->width > largest ||
      header->height > largest || fstat(fileno(file), &info) != 0 || header->end() > info.st_size ||
      std::fseek(file, static_cast<long>(header->pixels), SEEK_SET) != 0)
    return false;
  width = static_cast<int>(header->width);
  height = static_cast<int>(header->height);
  const auto stride = static_cast<std::size_t>(header->stride());
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  ReservePixels(argb, count);
  argb.resize(count);
  // In pieces that stay in the processor's cache.
  const std::size_t rowsAtOnce = std::max<std::size_t>(1, (std::size_t(1) << 17) / stride);
  std::vector<unsigned char> block(rowsAtOnce * stride);
  for (int y = 0; y < height;) {
    const std::size_t rows = std::min(rowsAtOnce, static_cast<std::size_t>(height - y));
    if (std::fread(block.data(), stride, rows, file) != rows) return false;
    for (std::size_t i = 0; i < rows; ++i, ++y) {
      const int line = header->bottomUp ? height - 1 - y : y;
      ExpandRow(block.data() + i * stride, argb.data() + static_cast<std::size_t>(line) * width,
                width);
    }
  }
  return true;
}

bool BitmapIsWhole(std::string_view bytes) {
  const std::optional<Header> header =
      ReadHeader(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  constexpr std::uint32_t kPlain = 0;
  constexpr std::uint32_t kBitFields = 3;
  if (!header) return false;
  if (header->compression != kPlain && header->compression != kBitFields) return true;
  return header->end() <= static_cast<std::int64_t>(bytes.size());
}

}  // namespace platform
