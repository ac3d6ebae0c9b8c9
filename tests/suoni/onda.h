#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// A WAV file as the tests see it; measured here by plain means, apart from those of the maker.
struct Onda {
  unsigned format = 0, channels = 0, rate = 0, bits = 0;
  bool whole = false;           // header and size of the file agree
  std::vector<double> samples;  // interleaved, -1 to 1

  double seconds() const;
  double peak(double from, double to) const;  // in seconds
  double mean() const;
  double loudnessDb() const;
};

Onda LeggiOnda(const std::filesystem::path& file);
std::string LeggiByte(const std::filesystem::path& file);
