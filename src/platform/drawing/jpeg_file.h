// A check of JPEG files before they are decoded.
#pragma once

#include <string_view>

namespace platform {

// Whether a JPEG file runs from its first marker to its last without a gap, and the code tables in
// it are of a size that the decoder can hold. The decoder itself takes both for granted.
bool JpegIsWhole(std::string_view bytes);

}  // namespace platform
