#include "platform/hosts/wave.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "platform/drawing/input_file.h"

namespace platform {
namespace {

std::uint32_t Little(const unsigned char* p, int bytes) {
  std::uint32_t value = 0;
  for (int i = bytes; i-- > 0;) value = value << 8 | p[i];
  return value;
}

}  // namespace

std::shared_ptr<const Wave> LoadWave(const std::string& path) {
  std::string read;
  const InputFile file = OpenInput(path);
  if (!file || !ReadAll(file.get(), read)) return nullptr;
  const std::span bytes(reinterpret_cast<const unsigned char*>(read.data()), read.size());
  if (bytes.size() < 12 || std::memcmp(bytes.data(), "RIFF", 4) != 0 ||
      std::memcmp(bytes.data() + 8, "WAVE", 4) != 0)
    return nullptr;
  auto wave = std::make_shared<Wave>();
  bool format = false;
  for (std::size_t at = 12; at + 8 <= bytes.size();) {
    const unsigned char* chunk = bytes.data() + at;
    const std::size_t size = std::min<std::size_t>(Little(chunk + 4, 4), bytes.size() - at - 8);
    const unsigned char* body = chunk + 8;
    if (std::memcmp(chunk, "fmt ", 4) == 0 && size >= 16) {
      wave->channels = int(Little(body + 2, 2));
      wave->rate = int(Little(body + 4, 4));
      format = Little(body, 2) == 1 && Little(body + 14, 2) == 16 && wave->rate > 0 &&
               wave->rate <= 192000 && (wave->channels == 1 || wave->channels == 2);
    } else if (std::memcmp(chunk, "data", 4) == 0 && format) {
      wave->samples.resize(size / 2);
      for (std::size_t i = 0; i < wave->samples.size(); ++i)
        wave->samples[i] = std::int16_t(Little(body + 2 * i, 2));
      return wave;
    }
    at += 8 + size + (size & 1);
  }
  return nullptr;
}

}  // namespace platform
