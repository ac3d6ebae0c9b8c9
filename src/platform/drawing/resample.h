// Scaling of pixel rectangles.
#pragma once

#include <cstdint>
#include <vector>

namespace platform {

struct PixelView {
  const std::uint32_t* pixels;
  int stride;  // in pixels
  int width;
  int height;
};

// 0xAARRGGBB, or without meaning of the top byte if not `alpha` (it is 0 in the result). Averages
// along an axis that shrinks, interpolates with a cubic along one that grows. Empty if either size
// is 0 or there is no memory for it.
std::vector<std::uint32_t> Resample(const PixelView& source, int width, int height, bool alpha);

}  // namespace platform
