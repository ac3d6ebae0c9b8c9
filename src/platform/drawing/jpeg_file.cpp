#include "platform/drawing/jpeg_file.h"

#include <cstddef>

namespace platform {
namespace {

constexpr unsigned kCodeTables = 0xC4;
constexpr unsigned kEnd = 0xD9;
constexpr unsigned kScan = 0xDA;

unsigned At(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

// Each table is a byte, sixteen counts, and as many values as the counts add up to.
bool TablesFit(std::string_view body) {
  while (!body.empty()) {
    constexpr std::size_t kHead = 17;
    constexpr std::size_t kMostCodes = 256;
    if (body.size() < kHead) return false;
    std::size_t codes = 0;
    for (std::size_t i = 1; i < kHead; ++i) codes += At(body, i);
    if (codes > kMostCodes || body.size() < kHead + codes) return false;
    body.remove_prefix(kHead + codes);
  }
  return true;
}

// The length of the packed data at the start: up to the next marker that is not part of it.
std::size_t PackedLength(std::string_view bytes) {
  std::size_t at = 0;
  for (; at + 1 < bytes.size(); ++at) {
    if (At(bytes, at) != 0xFF) continue;
    const unsigned next = At(bytes, at + 1);
    if (next != 0 && (next < 0xD0 || next > 0xD7)) break;
  }
  return at;
}

}  // namespace

bool JpegIsWhole(std::string_view bytes) {
  if (!bytes.starts_with("\xFF\xD8")) return false;
  bytes.remove_prefix(2);
  while (bytes.size() >= 2 && At(bytes, 0) == 0xFF) {
    const unsigned marker = At(bytes, 1);
    if (marker == 0xFF) {  // padding
      bytes.remove_prefix(1);
      continue;
    }
    if (marker == kEnd) return true;
    if (bytes.size() < 4) return false;
    const std::size_t length = At(bytes, 2) << 8 | At(bytes, 3);
    if (length < 2 || bytes.size() < 2 + length) return false;
    if (marker == kCodeTables && !TablesFit(bytes.substr(4, length - 2))) return false;
    bytes.remove_prefix(2 + length);
    if (marker == kScan) bytes.remove_prefix(PackedLength(bytes));
  }
  return false;
}

}  // namespace platform
