#include "platform/drawing/picture.h"

#include "file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const MemoryFile file(bytes, size);
  int error = 0;
  const auto picture = platform::Picture::Load(file.path(), error);
  if ((picture == nullptr) == (error == 0)) std::abort();
  return 0;
}
