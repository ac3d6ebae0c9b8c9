#include <exception>
#include <iostream>

#include "render.h"
#include "score.h"
#include "sound.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: suona SCORE OUT.wav\n";
    return 2;
  }
  try {
    const suona::Score score = suona::readScore(argv[1]);
    suona::Sound sound = suona::render(score);
    suona::finish(sound, score.channels, score.fade);
    suona::writeWav(sound, score.channels, argv[2]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
