#include "platform/drawing/resample.h"

#include <stb/stb_image_resize.h>

#include <algorithm>

#include "platform/drawing/enlarge.h"
#include "platform/drawing/pages.h"
#include "platform/drawing/reduce.h"

namespace platform {

std::vector<std::uint32_t> Resample(const PixelView& source, int width, int height, bool alpha) {
  if (width <= 0 || height <= 0 || source.width <= 0 || source.height <= 0) return {};
  std::vector<std::uint32_t> result;
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  ReservePixels(result, count);
  result.resize(count);
  const bool same = width == source.width && height == source.height;
  if (same && alpha) {
    for (int y = 0; y < height; ++y)
      std::copy_n(source.pixels + static_cast<std::size_t>(y) * source.stride, width,
                  result.begin() + static_cast<std::ptrdiff_t>(y) * width);
  } else if (!alpha && width <= source.width && height <= source.height) {
    Reducer(source.width, source.height, width, height)
        .Run(source.pixels, source.stride, result.data(), width, {0, 0, width, height});
  } else if (width >= source.width && height >= source.height) {
    Enlarge(source, width, height, alpha, result.data());
  } else {
    // On a growing axis the trapezoid would show steps; on a shrinking one it is the exact average.
    const auto filter = [](int from, int to) {
      return to > from ? STBIR_FILTER_CATMULLROM : STBIR_FILTER_BOX;
    };
    const int done = stbir_resize(source.pixels, source.width, source.height, source.stride * 4,
                                  result.data(), width, height, width * 4, STBIR_TYPE_UINT8, 4,
                                  alpha ? 3 : STBIR_ALPHA_CHANNEL_NONE, 0, STBIR_EDGE_CLAMP,
                                  STBIR_EDGE_CLAMP, filter(source.width, width),
                                  filter(source.height, height), STBIR_COLORSPACE_LINEAR, nullptr);
    if (!done) return {};
  }
  if (!alpha)
    for (std::uint32_t& p : result) p &= 0xFFFFFF;
  return result;
}

}  // namespace platform
