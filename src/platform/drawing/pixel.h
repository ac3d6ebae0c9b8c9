// Arithmetic on single pixels and coordinates, shared inside the platform layer.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/drawing/geometry.h"

namespace platform {

// Far outside every surface, yet small enough that sums of a few of them stay in an int.
inline constexpr double kFarAway = 1 << 28;

// Also makes a number out of what is none.
inline double ClampCoordinate(double v) {
  if (!(v > -kFarAway)) return -kFarAway;
  return v < kFarAway ? v : kFarAway;
}

// A half goes up, so that a whole size keeps its size at every place.
inline int RoundToPixel(double v) { return static_cast<int>(std::floor(ClampCoordinate(v) + 0.5)); }

// 0xBBGGRR to 0x00RRGGBB and back.
constexpr std::uint32_t SwapRedBlue(std::uint32_t c) {
  return (c & 0x00FF00) | (c >> 16 & 0xFF) | (c & 0xFF) << 16;
}

// Weight 0 to 256; both ends are exact.
inline std::uint32_t Blend(std::uint32_t below, std::uint32_t above, std::uint32_t weight) {
  const std::uint32_t rest = 256 - weight;
  const std::uint32_t rb = (above & 0xFF00FF) * weight + (below & 0xFF00FF) * rest + 0x800080;
  const std::uint32_t g = (above & 0x00FF00) * weight + (below & 0x00FF00) * rest + 0x008000;
  return (rb >> 8 & 0xFF00FF) | (g >> 8 & 0x00FF00);
}

// Keeps a surface to sizes that can be handled; nothing or less in one direction gives none at all.
inline void MakeUsable(int& width, int& height, int& scale) {
  constexpr int kLargestSide = 16384;
  scale = std::clamp(scale, 1, 16);
  if (width <= 0 || height <= 0) width = height = 0;
  width = std::min(width, kLargestSide / scale);
  height = std::min(height, kLargestSide / scale);
}

// 0..255 to 0..256.
inline std::uint32_t Widen(std::uint32_t coverage) { return coverage + (coverage >> 7); }

}  // namespace platform
