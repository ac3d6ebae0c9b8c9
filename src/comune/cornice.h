// The bevel along the edges of a form: light from the upper left, a shade that is mitred in steps
// at its two ends.
#pragma once

#include "platform/forms/form.h"

namespace girovia {

struct Smusso {
  double pennaGrigia;  // widths of the two light pens, logical pixels
  double pennaBianca;
  int passi;  // width of the shade
};

inline constexpr Smusso kSmussoDialogo{3, 1, 6};
inline constexpr Smusso kSmussoPuzzle{16, 2, 12};

// Draws on the form's surface, along the edges that it has now.
void DisegnaCornice(platform::Form& form, const Smusso& smusso);

}  // namespace girovia
