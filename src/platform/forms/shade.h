// Lighter and darker colours for raised and sunken edges.
#pragma once

#include "platform/drawing/geometry.h"

namespace platform {

// Lightens (amount > 0) or darkens a colour by a part of the way to white or black.
inline Color Shade(Color color, double amount) {
  Color out = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const double c = double(color >> shift & 0xFF);
    const double to = amount > 0 ? c + (255 - c) * amount : c * (1 + amount);
    out |= Color(to + 0.5) << shift;
  }
  return out;
}

}  // namespace platform
