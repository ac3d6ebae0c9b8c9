#pragma once

#include <cstdint>

namespace suona {

// Our own generator, since the distributions of the library differ from one compiler to the next.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15U + 1) {}
  double unit() {  // 0 to 1
    state_ ^= state_ >> 12U;
    state_ ^= state_ << 25U;
    state_ ^= state_ >> 27U;
    return static_cast<double>((state_ * 0x2545F4914F6CDD1DU) >> 11U) * 0x1.0p-53;
  }
  double sway() { return 2 * unit() - 1; }

 private:
  std::uint64_t state_;
};

}  // namespace suona
