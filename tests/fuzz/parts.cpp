#include "parts.h"

#include "file.h"
#include "image.h"

// A drawing, over the parts that there are.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    dipingi::Parts(PARTI).Expand(std::string(bytes, bytes + size), "fuzz");
  } catch (const dipingi::Error&) {
  }
  return 0;
}
