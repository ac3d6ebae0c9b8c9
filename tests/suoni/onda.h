#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

// A WAV file as the tests see it; measured here by plain means, apart from those of the maker.
struct Onda {
  unsigned format = 0, channels = 0, rate = 0, bits = 0;
  bool whole = false;           // header and size of the file agree
  std::vector<double> samples;  // interleaved, -1 to 1

  double seconds() const {
    return static_cast<double>(samples.size()) / std::max(1U, channels) / std::max(1U, rate);
  }

  // The loudest between two times.
  double peak(double from, double to) const {
    double peak = 0;
    const auto index = [&](double s) {
      return std::min(samples.size(), static_cast<std::size_t>(std::lround(s * rate)) * channels);
    };
    for (std::size_t i = index(from); i < index(to); ++i)
      peak = std::max(peak, std::abs(samples[i]));
    return peak;
  }

  double mean() const {
    return std::accumulate(samples.begin(), samples.end(), 0.0) /
           static_cast<double>(samples.size());
  }

  // The mean power of the fifths of a second that are not 10 dB below the loudest.
  double loudnessDb() const {
    const std::size_t size = rate / 5 * channels;
    std::vector<double> blocks;
    for (std::size_t i = 0; i == 0 || i + size <= samples.size(); i += size / 4) {
      double power = 0;
      for (std::size_t k = i; k < std::min(samples.size(), i + size); ++k)
        power += samples[k] * samples[k];
      blocks.push_back(power / static_cast<double>(size));
    }
    const double gate = *std::max_element(blocks.begin(), blocks.end()) / 10;
    std::erase_if(blocks, [&](double b) { return b < gate; });
    return 10 * std::log10(std::accumulate(blocks.begin(), blocks.end(), 1e-12) /
                           static_cast<double>(blocks.size()));
  }
};

inline std::string LeggiByte(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

inline Onda LeggiOnda(const std::filesystem::path& file) {
  const std::string bytes = LeggiByte(file);
  Onda onda;
  if (bytes.size() < 44 || bytes.compare(0, 4, "RIFF") != 0 ||
      bytes.compare(8, 8, "WAVEfmt ") != 0 || bytes.compare(36, 4, "data") != 0)
    return onda;
  const auto at = [&](std::size_t offset, int count) {
    unsigned value = 0;
    for (int i = count - 1; i >= 0; --i)
      value = value << 8U | static_cast<unsigned char>(bytes[offset + i]);
    return value;
  };
  onda.format = at(20, 2);
  onda.channels = at(22, 2);
  onda.rate = at(24, 4);
  onda.bits = at(34, 2);
  onda.whole = at(4, 4) == bytes.size() - 8 && at(40, 4) == bytes.size() - 44 &&
               at(28, 4) == onda.rate * at(32, 2) && at(32, 2) == 2 * onda.channels;
  for (std::size_t i = 44; i + 1 < bytes.size(); i += 2)
    onda.samples.push_back(static_cast<std::int16_t>(at(i, 2)) / 32768.0);
  return onda;
}
