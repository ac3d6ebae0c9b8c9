// Scaling up.
#pragma once

#include <cstdint>
#include <vector>

namespace platform {

struct PixelView;

// Fills width * height pixels of `target`, not fewer than the source has either way: along each
// axis a cubic runs through the four nearest pixels. With `alpha` the colours count by their
// opacity.
void Enlarge(const PixelView& source, int width, int height, bool alpha, std::uint32_t* target);

}  // namespace platform
