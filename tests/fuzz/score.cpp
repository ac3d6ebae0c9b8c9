#include "score.h"

#include <cmath>

#include "file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const MemoryFile file(bytes, size);
  try {
    const suona::Score score = suona::readScore(file.path());
    for (const suona::Part& part : score.parts)
      for (const suona::Note& note : part.notes)
        if (!std::isfinite(note.hz + note.velocity + note.start + note.seconds)) std::abort();
  } catch (const suona::ScoreError&) {
  }
  return 0;
}
