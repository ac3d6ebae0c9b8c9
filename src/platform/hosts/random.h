// Random numbers, reseeded from the clock before each draw.
#pragma once

#include <cstdint>

namespace platform {

class ClockRandom {
 public:
  // Reseeds and draws: uniform, 0 <= u < 1. A clock that stands still between two calls does not
  // repeat a value, because the count of the calls is part of the seed.
  double Draw();

 private:
  std::uint64_t calls_ = 0;
};

}  // namespace platform
