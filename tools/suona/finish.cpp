#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <numbers>

#include "sound.h"

namespace suona {
namespace {

constexpr double kTarget = -20;       // LUFS
constexpr double kCeiling = 0.84;     // -1.5 dBFS, so that the wave between the samples fits too
constexpr double kMaxSqueeze = 1.41;  // the limiter may take 3 dB off the highest peak, no more

struct Biquad {
  double b0, b1, b2, a1, a2;
  double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
  double operator()(double x) {
    const double y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
    x2 = x1;
    x1 = x;
    y2 = y1;
    y1 = y;
    return y;
  }
};

Biquad highPass(double hz, double q) {
  const double k = std::tan(std::numbers::pi * hz / kRate);
  const double a = 1 / (1 + k / q + k * k);
  return {a, -2 * a, a, 2 * (k * k - 1) * a, (1 - k / q + k * k) * a};
}

// The shelf that stands for the head in BS.1770, with its analogue figures.
Biquad headShelf() {
  const double k = std::tan(std::numbers::pi * 1681.974 / kRate);
  const double q = 0.7071752;
  const double high = std::pow(10, 3.999843 / 20);
  const double band = std::pow(high, 0.4996667);
  const double a = 1 / (1 + k / q + k * k);
  return {(high + band * k / q + k * k) * a, 2 * (k * k - high) * a,
          (high - band * k / q + k * k) * a, 2 * (k * k - 1) * a, (1 - k / q + k * k) * a};
}

double peakOf(const Sound& s) {
  float peak = 0;
  for (std::size_t i = 0; i < s.size(); ++i)
    peak = std::max({peak, std::abs(s.left[i]), std::abs(s.right[i])});
  return peak;
}

// Turns the gain down in time for each peak, and both channels alike.
void limit(Sound& s) {
  constexpr std::size_t kAhead = 132;  // 3 ms
  const std::size_t size = s.size();
  std::vector<double> wanted(size + 2 * kAhead, 1.0);
  for (std::size_t i = 0; i < size; ++i) {
    const double peak = std::max(std::abs(s.left[i]), std::abs(s.right[i]));
    if (peak > kCeiling) wanted[i + kAhead] = kCeiling / peak;
  }
  // The least gain over the window around each sample, then its mean over the same width: smooth,
  // and never above what the sample in the middle wants.
  std::deque<std::size_t> falling;
  std::vector<double> least(size + kAhead, 1.0);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    while (!falling.empty() && wanted[falling.back()] >= wanted[i]) falling.pop_back();
    falling.push_back(i);
    if (falling.front() + kAhead < i) falling.pop_front();
    if (i >= kAhead) least[i - kAhead] = wanted[falling.front()];
  }
  double sum = 0;
  for (std::size_t i = 0; i < least.size(); ++i) {
    sum += least[i];
    if (i > kAhead) sum -= least[i - kAhead - 1];
    if (i < kAhead) continue;
    const auto gain = static_cast<float>(sum / (kAhead + 1));
    s.left[i - kAhead] *= gain;
    s.right[i - kAhead] *= gain;
  }
}

}  // namespace

double loudness(const Sound& sound) {
  constexpr std::size_t kHop = 2205;  // 50 ms
  std::vector<double> hops;
  Biquad shelf[2] = {headShelf(), headShelf()};
  Biquad high[2] = {highPass(38.1355, 0.5003271), highPass(38.1355, 0.5003271)};
  for (std::size_t i = 0; i < sound.size(); ++i) {
    if (i % kHop == 0) hops.push_back(0);
    const double left = high[0](shelf[0](sound.left[i]));
    const double right = high[1](shelf[1](sound.right[i]));
    hops.back() += (left * left + right * right) / 2;
  }
  hops.resize(std::max<std::size_t>(hops.size(), 4));
  std::vector<double> blocks;
  for (std::size_t i = 0; i + 4 <= hops.size(); ++i)
    blocks.push_back((hops[i] + hops[i + 1] + hops[i + 2] + hops[i + 3]) / (4.0 * kHop));

  const auto meanAbove = [&](double gate) {
    double sum = 0;
    int count = 0;
    for (const double b : blocks) {
      if (b <= gate) continue;
      sum += b;
      ++count;
    }
    return count == 0 ? 0 : sum / count;
  };
  const double mean = meanAbove(meanAbove(1e-7) / 10);
  return mean > 0 ? -0.691 + 10 * std::log10(mean) : -std::numeric_limits<double>::infinity();
}

void finish(Sound& sound, int channels, double fadeSeconds) {
  if (channels == 1) {
    for (std::size_t i = 0; i < sound.size(); ++i)
      sound.left[i] = sound.right[i] = (sound.left[i] + sound.right[i]) / 2;
  }
  constexpr double kFadeIn = 0.0015;
  Biquad high[2] = {highPass(25, 0.7071), highPass(25, 0.7071)};
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const auto ramp = [](double x) {
      return x < 1 ? 0.5 - 0.5 * std::cos(std::numbers::pi * x) : 1;
    };
    const double fade = ramp(static_cast<double>(i) / (kFadeIn * kRate)) *
                        ramp(static_cast<double>(sound.size() - 1 - i) / (fadeSeconds * kRate));
    sound.left[i] = static_cast<float>(fade * high[0](sound.left[i]));
    sound.right[i] = static_cast<float>(fade * high[1](sound.right[i]));
  }
  // The limiter takes some of the loudness back, so ask again what is missing.
  for (int round = 0; round < 4; ++round) {
    const double peak = peakOf(sound);
    if (peak <= 0) return;
    const double missing = std::pow(10, (kTarget - loudness(sound)) / 20);
    const auto gain = static_cast<float>(std::min(missing, kCeiling * kMaxSqueeze / peak));
    for (auto* channel : {&sound.left, &sound.right})
      for (float& v : *channel) v *= gain;
    limit(sound);
    if (gain < missing) return;
  }
}

}  // namespace suona
