// The map of Europe that is cut into the pieces of the last puzzle.
#include "ornamenti.h"
#include "stili.h"
#include "tavole.h"

namespace mappa {
namespace {

// The rim of an old map: light and dark bars between two lines.
void drawRim(const Canvas& page) {
  constexpr double kBar = 20, kDepth = 5;
  cairo_t* cr = page.cr();
  const double w = page.width(), h = page.height();
  const auto bars = [&](double x, double y, double dx, double dy, double length) {
    for (int i = 0; i * kBar < length; ++i) {
      page.setColour(i % 2 == 0 ? kNavy : kPaper);
      cairo_rectangle(cr, x + i * kBar * dx, y + i * kBar * dy, dx * kBar + dy * kDepth,
                      dy * kBar + dx * kDepth);
      cairo_fill(cr);
    }
  };
  bars(0, 0, 1, 0, w);
  bars(0, h - kDepth, 1, 0, w);
  bars(0, 0, 0, 1, h);
  bars(w - kDepth, 0, 0, 1, h);
  page.setColour(kNavy);
  cairo_set_line_width(cr, 1);
  cairo_rectangle(cr, kDepth + 0.5, kDepth + 0.5, w - 2 * kDepth - 1, h - 2 * kDepth - 1);
  cairo_stroke(cr);
}

}  // namespace

Canvas puzzlePicture(const World& world, int scale) {
  Canvas page(480, 360, scale);
  drawMap(page, world, EqualAreaProjection({16, 53}, {240, 186}, 9), politicalStyle());
  drawRose(page, {62, 176}, 36,
           {.dark = rgb(0x1d4f7a), .light = rgb(0xf6f2e2), .ring = rgb(0xf6f2e2), .alpha = 0.9});
  drawShip(page, {40, 292}, 24, rgb(0x1d4f7a), rgb(0xf6f2e2));
  drawRim(page);
  return page;
}

}  // namespace mappa
