// The map of Europe that is cut into the pieces of the last puzzle.
#include "ornamenti.h"
#include "stili.h"
#include "tavole.h"

namespace mappa {
Canvas puzzlePicture(const World& world, int scale) {
  Canvas page(480, 360, scale);
  drawMap(page, world, EqualAreaProjection({16, 53}, {240, 186}, 9), politicalStyle());
  drawRose(page, {62, 176}, 36,
           {.dark = rgb(0x1d4f7a), .light = rgb(0xf6f2e2), .ring = rgb(0xf6f2e2), .alpha = 0.9});
  drawShip(page, {40, 292}, 24, rgb(0x1d4f7a), rgb(0xf6f2e2));
  drawRim(page, kNavy);
  return page;
}

}  // namespace mappa
