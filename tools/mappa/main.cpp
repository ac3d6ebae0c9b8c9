// Makes the maps of the game:
//   mappa --dati FOLDER --tipo tabellone|prova|ordinamento|europa [--scala N] [--qualita N]
//         --uscita FILE.bmp|.jpg|.png
//   mappa --dati FOLDER --tipo citta --casella 0..99 --parti FOLDER ... the same
#include <charconv>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <string>

#include "tavole.h"

namespace {

int numberFrom(const std::map<std::string, std::string>& options, const std::string& key, int usual,
               int least, int most) {
  const auto found = options.find(key);
  if (found == options.end()) return usual;
  const std::string& text = found->second;
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < least || value > most) {
    throw mappa::DataError(key + " takes a number from " + std::to_string(least) + " to " +
                           std::to_string(most) + ".");
  }
  return value;
}

void require(const std::map<std::string, std::string>& options, const std::string& key) {
  if (!options.contains(key)) throw mappa::DataError(key + " is missing.");
}

void run(int count, char** words) {
  std::map<std::string, std::string> options;
  for (int i = 1; i < count; i += 2) {
    const std::string key = words[i];
    if (key != "--dati" && key != "--tipo" && key != "--scala" && key != "--qualita" &&
        key != "--uscita" && key != "--casella" && key != "--parti") {
      throw mappa::DataError("Unknown option \"" + key + "\".");
    }
    if (i + 1 == count) throw mappa::DataError(key + " needs a value.");
    options[key] = words[i + 1];
  }
  for (const char* key : {"--dati", "--tipo", "--uscita"}) require(options, key);
  using Painter = std::function<mappa::Canvas(const mappa::World&, int)>;
  std::map<std::string, Painter> painters{{"tabellone", mappa::boardPicture},
                                          {"prova", mappa::trialPicture},
                                          {"ordinamento", mappa::orderingPicture},
                                          {"europa", mappa::puzzlePicture}};
  painters["citta"] = [&](const mappa::World& world, int scale) {
    for (const char* key : {"--casella", "--parti"}) require(options, key);
    return mappa::cityPicture(world, numberFrom(options, "--casella", 0, 0, 99), options["--parti"],
                              scale);
  };
  const auto painter = painters.find(options["--tipo"]);
  if (painter == painters.end()) {
    throw mappa::DataError("There is no picture of the kind \"" + options["--tipo"] + "\".");
  }
  const int scale = numberFrom(options, "--scala", 1, 1, 8);
  const int quality = numberFrom(options, "--qualita", 90, 1, 100);
  const mappa::World world = mappa::readWorld(options["--dati"]);
  mappa::save(painter->second(world, scale), options["--uscita"], quality);
}

}  // namespace

int main(int count, char** words) {
  try {
    run(count, words);
    return 0;
  } catch (const std::exception& problem) {
    std::cerr << "mappa: " << problem.what() << '\n';
    return 1;
  }
}
