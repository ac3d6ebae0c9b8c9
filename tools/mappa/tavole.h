// The pictures that the game shows.
#pragma once

#include "dati.h"
#include "tela.h"

namespace mappa {

// The map alone, as the board and the trials share it.
Canvas boardPage(const World& world, int scale);

Canvas boardPicture(const World& world, int scale);
Canvas trialPicture(const World& world, int scale);
Canvas orderingPicture(const World& world, int scale);
Canvas puzzlePicture(const World& world, int scale);

}  // namespace mappa
