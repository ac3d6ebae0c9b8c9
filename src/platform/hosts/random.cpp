#include "platform/hosts/random.h"

#include <chrono>

namespace platform {

double ClockRandom::Draw() {
  const auto clock = std::chrono::steady_clock::now().time_since_epoch();
  const auto nanos = std::uint64_t(std::chrono::nanoseconds(clock).count());
  // SplitMix64's step and finaliser: neighbouring seeds give unrelated values.
  std::uint64_t z = nanos + ++calls_ * 0x9E3779B97F4A7C15U;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
  z ^= z >> 31;
  return double(z >> 11) * 0x1.0p-53;
}

}  // namespace platform
