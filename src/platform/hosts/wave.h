// A sound in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

struct Wave {
  int rate = 44100;
  int channels = 1;
  std::vector<std::int16_t> samples;  // interleaved
  std::int64_t Micros() const {
    return rate > 0 && channels > 0 ? std::int64_t(samples.size()) / channels * 1'000'000 / rate
                                    : 0;
  }
};

// 16-bit PCM. Null for a file that is missing or anything else.
std::shared_ptr<const Wave> LoadWave(const std::string& path);

}  // namespace platform
