// Flat drawings seen at an angle.
#pragma once

#include "image.h"

namespace dipingi {

// The drawing as a card turned about its upright middle, so that it appears `width` wide. The right
// edge is the near one and keeps the full height.
Image TurnCard(const Image& flat, int width);

// A die standing on an edge, seen from above: the drawing holds its two faces side by side, and the
// edge between them, a little rounded, is nearest to the eye.
Image TiltDie(const Image& faces, int width, int height);

}  // namespace dipingi
