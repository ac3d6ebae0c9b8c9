// The pictures that the game shows.
#pragma once

#include "dati.h"
#include "tela.h"

namespace mappa {

Canvas boardPicture(const World& world, int scale);
Canvas trialPicture(const World& world, int scale);
Canvas orderingPicture(const World& world, int scale);
Canvas puzzlePicture(const World& world, int scale);

}  // namespace mappa
