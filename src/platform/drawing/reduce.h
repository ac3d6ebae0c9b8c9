// The last step to a window: a composed plane is reduced to the window's own pixels.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/drawing/geometry.h"

namespace platform {

// Area-averages a plane of 0x00RRGGBB pixels to a smaller (or equal) size. Built once for a pair of
// sizes, then run for each changed rectangle; running it on a part gives exactly the pixels that
// running it on the whole would give.
class Reducer {
 public:
  Reducer(int sourceWidth, int sourceHeight, int targetWidth, int targetHeight);

  // The target pixels that depend on the given source pixels.
  DeviceRect TargetOf(const DeviceRect& source) const;
  // Fills the target pixels of `target`. Strides in pixels.
  void Run(const std::uint32_t* source, int sourceStride, std::uint32_t* targetPixels,
           int targetStride, const DeviceRect& target);

 private:
  struct Span {  // the source pixels of one target pixel
    int first = 0;
    int count = 0;
    int weight = 0;  // index of the first weight
  };
  int sourceWidth_, sourceHeight_, targetWidth_, targetHeight_;
  std::vector<Span> columns_, rows_;
  std::vector<std::uint16_t> rowWeights_;
  std::vector<std::uint32_t> columnWeights_;  // two in a word, the first in the lower half
  int pairs_ = 1;                             // words of each column
  std::vector<std::uint16_t> line_;           // a row averaged downwards, four channels a pixel
};

}  // namespace platform
