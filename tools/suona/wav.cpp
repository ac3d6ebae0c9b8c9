#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>

#include "sound.h"

namespace suona {

void writeWav(const Sound& sound, int channels, const std::filesystem::path& file) {
  std::string bytes;
  const auto put = [&](std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  };
  const auto rate = static_cast<std::uint32_t>(kRate);
  const auto frame = static_cast<std::uint32_t>(2 * channels);
  const auto data = static_cast<std::uint32_t>(sound.size()) * frame;
  bytes += "RIFF";
  put(36 + data, 4);
  bytes += "WAVEfmt ";
  put(16, 4);
  put(1, 2);  // plain samples
  put(static_cast<std::uint32_t>(channels), 2);
  put(rate, 4);
  put(rate * frame, 4);
  put(frame, 2);
  put(16, 2);
  bytes += "data";
  put(data, 4);
  const auto sample = [&](float v) {
    const long value = std::lround(std::clamp(v, -1.0F, 1.0F) * 32767);
    put(static_cast<std::uint32_t>(value), 2);
  };
  for (std::size_t i = 0; i < sound.size(); ++i) {
    sample(sound.left[i]);
    if (channels == 2) sample(sound.right[i]);
  }
  std::ofstream out(file, std::ios::binary);
  out << bytes;
  if (!out.flush()) throw std::runtime_error(file.string() + ": cannot be written");
}

}  // namespace suona
