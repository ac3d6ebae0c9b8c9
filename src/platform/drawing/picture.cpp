#include "platform/drawing/picture.h"

#include <stb/stb_image.h>
#include <stb/stb_image_write.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "platform/drawing/bitmap_file.h"
#include "platform/drawing/input_file.h"
#include "platform/drawing/jpeg_file.h"
#include "platform/drawing/pixel.h"
#include "platform/drawing/resample.h"

namespace platform {
namespace {

constexpr int kLargestSide = 8192;
// Twice the largest picture of the program. A damaged header must not cost seconds of decoding and
// hundreds of megabytes.
constexpr std::int64_t kMostPixels = std::int64_t(1) << 24;

struct Closer {
  void operator()(stbi_uc* p) const { stbi_image_free(p); }
};

// Each chunk is its length, its name, its data, and a sum. The decoder makes room for what a length
// promises before it reads on.
bool PngIsWhole(std::string_view bytes) {
  constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
  constexpr std::size_t kAround = 12;
  if (!bytes.starts_with(kSignature)) return false;
  bytes.remove_prefix(kSignature.size());
  while (bytes.size() >= kAround) {
    if (bytes.substr(4, 4) == "IEND") return true;
    std::size_t length = 0;
    for (int i = 0; i < 4; ++i) length = length << 8 | static_cast<unsigned char>(bytes[i]);
    if (length > bytes.size() - kAround) return false;
    bytes.remove_prefix(length + kAround);
  }
  return false;
}

// The decoders fill up with anything what a cut file lacks, so its end is looked for beforehand.
bool IsWhole(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xD8")) return JpegIsWhole(bytes);
  if (bytes.starts_with("BM")) return BitmapIsWhole(bytes);
  // Nothing else: the decoder would look further for the beginning of a JPEG file.
  return PngIsWhole(bytes);
}

// Empty if the bytes are no picture.
std::vector<std::uint32_t> Decode(std::string_view bytes, int& width, int& height) {
  if (!IsWhole(bytes)) return {};
  int channels = 0;
  const auto* data = reinterpret_cast<const stbi_uc*>(bytes.data());
  const int size = static_cast<int>(bytes.size());
  if (stbi_info_from_memory(data, size, &width, &height, &channels) == 0 ||
      std::int64_t(width) * height > kMostPixels)
    return {};
  const std::unique_ptr<stbi_uc, Closer> rgba(
      stbi_load_from_memory(data, size, &width, &height, &channels, 4));
  if (!rgba) return {};
  std::vector<std::uint32_t> argb(static_cast<std::size_t>(width) *
                                  static_cast<std::size_t>(height));
  for (std::size_t i = 0; i < argb.size(); ++i) {
    std::uint32_t abgr = 0;
    std::memcpy(&abgr, rgba.get() + i * 4, 4);
    argb[i] = (abgr & 0xFF00FF00) | (abgr >> 16 & 0xFF) | (abgr & 0xFF) << 16;
  }
  return argb;
}

}  // namespace

std::shared_ptr<const Picture> Picture::Load(const std::string& path, int& error) {
  const auto failed = [&error](int code) {
    error = code;
    return nullptr;
  };
  error = 0;
  errno = 0;
  const InputFile file = OpenInput(path);
  if (!file) return failed(errno);
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> argb;
  if (!ReadPlainBitmap(file.get(), kLargestSide, argb, width, height)) {
    std::rewind(file.get());
    std::string bytes;
    if (!ReadAll(file.get(), bytes)) return failed(errno);
    argb = Decode(bytes, width, height);
  }
  std::shared_ptr<const Picture> picture = FromPixels(width, height, std::move(argb));
  if (!picture) return failed(EILSEQ);
  return picture;
}

std::shared_ptr<const Picture> Picture::FromPixels(int width, int height,
                                                   std::vector<std::uint32_t> argb) {
  if (width <= 0 || height <= 0 || width > kLargestSide || height > kLargestSide ||
      std::int64_t(width) * height > kMostPixels ||
      argb.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    return nullptr;
  auto picture = std::make_shared<Picture>();
  picture->width_ = width;
  picture->height_ = height;
  picture->transparent_ =
      std::any_of(argb.begin(), argb.end(), [](std::uint32_t p) { return p < 0xFF000000; });
  picture->mask_ = std::all_of(argb.begin(), argb.end(),
                               [](std::uint32_t p) { return p == 0xFF000000 || p == 0xFFFFFFFF; });
  picture->argb_ = std::move(argb);
  return picture;
}

Surface Picture::Fit(int width, int height, int scale, Color back, bool sprite) const {
  MakeUsable(width, height, scale);
  const int across = width * scale;
  const int down = height * scale;
  if (across == 0 || argb_.empty()) return Surface(width, height, scale, back);
  // A mask is resampled as what it is, the transparency of its picture, so that both come to the
  // same halves.
  const bool asMask = sprite && mask_;
  const bool cut = asMask || transparent_;
  std::vector<std::uint32_t> cover;
  if (asMask) {
    cover.reserve(argb_.size());
    for (const std::uint32_t p : argb_) cover.push_back(p == 0xFF000000 ? p : 0);
  }
  std::vector<std::uint32_t> pixels =
      Resample({asMask ? cover.data() : argb_.data(), width_, width_, height_}, across, down, cut);
  if (pixels.empty()) return Surface(width, height, scale, back);
  if (cut) {
    const std::uint32_t ground = SwapRedBlue(back);
    for (std::uint32_t& p : pixels) {
      const std::uint32_t alpha = p >> 24;
      if (sprite)
        p = alpha >= 128 ? p & 0xFFFFFF : ground;
      else
        p = Blend(ground, p, Widen(alpha));
    }
  }
  return Surface(width, height, scale, std::move(pixels));
}

void Picture::Draw(Surface& destination, const Rect& place) const {
  const Point origin = destination.origin();
  const DeviceRect to =
      ToDevice({place.left + origin.x, place.top + origin.y, place.width, place.height},
               destination.scale());
  const DeviceRect visible = Intersect(to, destination.clip());
  if (visible.empty() || argb_.empty() || to.width() > 2 * kLargestSide ||
      to.height() > 2 * kLargestSide)
    return;
  const bool same = to.width() == width_ && to.height() == height_;
  if (!same && (to.width() != drawnWidth_ || to.height() != drawnHeight_)) {
    drawn_ =
        Resample({argb_.data(), width_, width_, height_}, to.width(), to.height(), transparent_);
    drawnWidth_ = to.width();
    drawnHeight_ = to.height();
  }
  const std::vector<std::uint32_t>& pixels = same ? argb_ : drawn_;
  if (pixels.empty()) return;
  for (int y = visible.top; y < visible.bottom; ++y) {
    const std::uint32_t* from = pixels.data() + static_cast<std::size_t>(y - to.top) * to.width() +
                                (visible.left - to.left);
    std::uint32_t* row = destination.row(y) + visible.left;
    for (int i = 0; i < visible.width(); ++i)
      row[i] = transparent_ ? Blend(row[i], from[i], Widen(from[i] >> 24)) : from[i] & 0xFFFFFF;
  }
}

bool SavePng(const Surface& surface, const std::string& path) {
  std::vector<std::uint8_t> rgb;
  rgb.reserve(static_cast<std::size_t>(surface.deviceWidth()) *
              static_cast<std::size_t>(surface.deviceHeight()) * 3);
  for (int y = 0; y < surface.deviceHeight(); ++y) {
    const std::uint32_t* row = surface.row(y);
    for (int x = 0; x < surface.deviceWidth(); ++x)
      for (const int shift : {16, 8, 0})
        rgb.push_back(static_cast<std::uint8_t>(row[x] >> shift & 0xFF));
  }
  if (rgb.empty()) return false;
  // The library's own writer does not notice a full disk.
  errno = 0;
  const InputFile file(std::fopen(path.c_str(), "wb"));
  const auto write = [](void* to, void* data, int size) {
    std::fwrite(data, 1, static_cast<std::size_t>(size), static_cast<std::FILE*>(to));
  };
  return file &&
         stbi_write_png_to_func(write, file.get(), surface.deviceWidth(), surface.deviceHeight(), 3,
                                rgb.data(), 0) != 0 &&
         std::fflush(file.get()) == 0 && std::ferror(file.get()) == 0;
}

}  // namespace platform
