#include "comune/cornice.h"

namespace girovia {

void DisegnaCornice(platform::Form& form, const Smusso& smusso) {
  platform::Surface& s = form.surface();
  const double W = form.width(), H = form.height();
  s.Box(W, 3, 0, 0, {smusso.pennaGrigia, 0xE0E0E0});
  s.Box(0, 0, 3, H - 2, {smusso.pennaGrigia, 0xE0E0E0});
  s.Box(W, 0, 0, 0, {smusso.pennaBianca, 0xFFFFFF});
  s.Box(0, 0, 0, H, {smusso.pennaBianca, 0xFFFFFF});
  for (int i = 1; i <= smusso.passi; ++i) {
    s.FillBox(i, H - i, W, H, 0x808080);
    s.FillBox(W - i, i, W, H, 0x808080);
  }
  s.FillBox(0, H - 1, W, H, 0x000000);
  s.FillBox(W - 1, 0, W, H, 0x000000);
}

}  // namespace girovia
