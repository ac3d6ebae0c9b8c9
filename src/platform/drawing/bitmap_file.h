// Uncompressed bitmap files, which the general decoder reads several times slower.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

namespace platform {

// Reads a bitmap file of 24 bits a pixel without compression as 0xAARRGGBB. False, with the file
// read to any place, if it is another kind of file, is cut off, or has a side beyond `largest`.
bool ReadPlainBitmap(std::FILE* file, int largest, std::vector<std::uint32_t>& argb, int& width,
                     int& height);

// Whether a bitmap file of any kind holds all the rows that its header promises.
bool BitmapIsWhole(std::string_view bytes);

}  // namespace platform
