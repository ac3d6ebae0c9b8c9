// The pictures that the game shows.
#pragma once

#include <filesystem>

#include "dati.h"
#include "tela.h"

namespace mappa {

// The map alone, as the board and the trials share it.
Canvas boardPage(const World& world, int scale);

Canvas boardPicture(const World& world, int scale);
Canvas trialPicture(const World& world, int scale);
Canvas orderingPicture(const World& world, int scale);
Canvas puzzlePicture(const World& world, int scale);

// The surroundings of a city of the route, 0 to 99, with a pin on it. `parts` is the folder of the
// shared parts of the drawings.
Canvas cityPicture(const World& world, int square, const std::filesystem::path& parts, int scale);

}  // namespace mappa
