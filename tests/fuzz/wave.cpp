#include "platform/hosts/wave.h"

#include "file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const MemoryFile file(bytes, size);
  const auto wave = platform::LoadWave(file.path());
  if (wave && wave->Micros() < 0) std::abort();
  return 0;
}
