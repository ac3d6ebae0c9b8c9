#pragma once

#include <filesystem>
#include <vector>

namespace suona {

constexpr double kRate = 44100;

// Two channels of equal length; a mono sound is mixed down when it is written.
struct Sound {
  std::vector<float> left, right;
  std::size_t size() const { return left.size(); }
};

// K-weighted level in LUFS, gated as ITU-R BS.1770 does but over blocks of 0.2 s, so that a click
// has a loudness too.
double loudness(const Sound& sound);

// Takes the direct current out, fades the ends, and brings the sound to the one loudness and below
// the one peak that all sounds of the game share.
void finish(Sound& sound, int channels, double fadeSeconds);

// 16 bit. Throws std::runtime_error when the file cannot be written.
void writeWav(const Sound& sound, int channels, const std::filesystem::path& file);

}  // namespace suona
