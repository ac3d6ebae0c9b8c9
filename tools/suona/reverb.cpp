#include "reverb.h"

#include <array>
#include <cmath>

namespace suona {
namespace {

constexpr std::size_t kLines = 8;

class Delay {
 public:
  void resize(std::size_t samples) { buffer_.assign(samples, 0.0F); }
  std::size_t size() const { return buffer_.size(); }
  float read() const { return buffer_[at_]; }
  void write(float value) {
    buffer_[at_] = value;
    if (++at_ == buffer_.size()) at_ = 0;
  }

 private:
  std::vector<float> buffer_;
  std::size_t at_ = 0;
};

// Smears a click over some milliseconds and leaves the spectrum as it is.
float diffuse(Delay& delay, float in) {
  const float old = delay.read();
  const float fed = in - 0.6F * old;
  delay.write(fed);
  return old + 0.6F * fed;
}

}  // namespace

void addReverb(Sound& dry, const Sound& send, double seconds, double damping) {
  // Primes, so that no two lines ring at a common frequency.
  constexpr std::array<std::size_t, kLines> kLengths = {1237, 1433, 1601, 1867,
                                                        2053, 2251, 2399, 2617};
  constexpr std::array<std::size_t, 4> kDiffusers = {223, 367, 281, 431};
  std::array<Delay, kLines> lines;
  std::array<float, kLines> gain{}, low{}, tap{};
  for (std::size_t i = 0; i < kLines; ++i) {
    lines[i].resize(kLengths[i]);
    gain[i] =
        static_cast<float>(std::pow(10, -3 * static_cast<double>(kLengths[i]) / (kRate * seconds)));
  }
  std::array<Delay, 4> diffusers;
  for (std::size_t i = 0; i < diffusers.size(); ++i) diffusers[i].resize(kDiffusers[i]);

  const auto damp = static_cast<float>(damping);
  for (std::size_t n = 0; n < dry.size(); ++n) {
    const float inLeft = diffuse(diffusers[1], diffuse(diffusers[0], send.left[n]));
    const float inRight = diffuse(diffusers[3], diffuse(diffusers[2], send.right[n]));
    float sum = 0;
    for (std::size_t i = 0; i < kLines; ++i) {
      low[i] += (1 - damp) * (lines[i].read() - low[i]);
      tap[i] = low[i] * gain[i];
      sum += tap[i];
    }
    // A Householder matrix: every line feeds every other and no energy is made.
    for (std::size_t i = 0; i < kLines; ++i)
      lines[i].write((i % 2 == 0 ? inLeft : inRight) + tap[i] - sum * (2.0F / kLines));
    dry.left[n] += 0.42F * (tap[0] - tap[2] + tap[4] - tap[6]);
    dry.right[n] += 0.42F * (tap[1] - tap[3] + tap[5] - tap[7]);
  }
}

}  // namespace suona
