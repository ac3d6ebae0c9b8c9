#include "platform/drawing/face.h"

#include "file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const MemoryFile file(bytes, size);
  if (const auto face = platform::Face::Read(file.path())) face->Advance(3);
  return 0;
}
