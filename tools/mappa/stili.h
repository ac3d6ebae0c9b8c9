// The colours of the maps.
#pragma once

#include "carta.h"

namespace mappa {

// Muted, so that squares, routes and labels stand out on it.
MapStyle atlasStyle();
// Strong colours by country, so that each piece of the puzzle can be told from the others.
MapStyle politicalStyle();
// A close view of a landscape.
MapStyle landscapeStyle();
// For maps of the size of a stamp.
MapStyle stampStyle();

}  // namespace mappa
