// The board.
#include "ornamenti.h"
#include "stili.h"
#include "tavole.h"

namespace mappa {
namespace {

constexpr int kReykyavik = 36, kTbilisi = 77, kBaku = 79, kNicosia = 80;

// A tab that grows out of the foot of the page; the part under the portrait is higher.
void tracePlaque(cairo_t* cr, double left, double right, bool portraitLeft) {
  constexpr double kTop = 517, kShoulder = 541, kFoot = 608, kStep = 74, kRadius = 8;
  const double width = right - left;
  cairo_save(cr);
  // Told with the portrait at the left, mirrored for the other.
  cairo_translate(cr, portraitLeft ? left : right, 0);
  cairo_scale(cr, portraitLeft ? 1 : -1, 1);
  cairo_new_path(cr);
  cairo_move_to(cr, 0, kFoot);
  cairo_line_to(cr, 0, kTop + kRadius);
  cairo_curve_to(cr, 0, kTop + 3, 3, kTop, kRadius, kTop);
  cairo_line_to(cr, kStep - kRadius, kTop);
  cairo_curve_to(cr, kStep + 6, kTop, kStep - 4, kShoulder, kStep + 12, kShoulder);
  cairo_line_to(cr, width - kRadius, kShoulder);
  cairo_curve_to(cr, width - 3, kShoulder, width, kShoulder + 3, width, kShoulder + kRadius);
  cairo_line_to(cr, width, kFoot);
  cairo_close_path(cr);
  cairo_restore(cr);
}

// Places beyond the page: each in a frame with its true shape, and dots that lead to the squares.
void drawFarPlaces(const Canvas& page, const World& world) {
  struct Inset {
    Box box;
    LonLat centre;
    Point centrePixel;
    double pixelsPerDegree;
    int firstSquare, lastSquare;
  };
  const Inset insets[] = {{{-6, -6, 100, 53}, {-19, 64.95}, {62, 23}, 11.5, kReykyavik, kReykyavik},
                          {{700, 402, 80, 57}, {45.1, 41.2}, {740, 430.5}, 9.6, kTbilisi, kBaku},
                          {{738, 473, 46, 40}, {33.35, 35.1}, {762, 493}, 18, kNicosia, kNicosia}};
  MapStyle style = atlasStyle();
  style.lineWidth = 0.8;
  style.smallestRiver = 2;
  for (const Inset& inset : insets) {
    const Point centre = inset.centrePixel;
    drawInset(page, inset.box, world,
              EqualAreaProjection(inset.centre, {centre.x - inset.box.x, centre.y - inset.box.y},
                                  inset.pixelsPerDegree),
              style);
    const EqualAreaProjection onPage(inset.centre, centre, inset.pixelsPerDegree);
    const auto first = world.cities.begin() + inset.firstSquare;
    const auto last = world.cities.begin() + inset.lastSquare + 1;
    for (auto city = first; city != last; ++city) {
      drawLeader(page, onPage(city->place), city->square);
    }
    for (auto city = first; city != last; ++city) drawDot(page, onPage(city->place));
  }
}

}  // namespace

Canvas boardPage(const World& world, int scale) {
  Canvas page(800, 600, scale);
  drawMap(page, world, BoardProjection(world.cities), atlasStyle());
  drawRose(page, {58, 318}, 40,
           {.dark = rgb(0x4d7590), .light = rgb(0xd9e6e6), .ring = rgb(0xd9e6e6), .alpha = 0.75});
  drawShip(page, {40, 256}, 24, rgb(0x4d7590), rgb(0xdfe9e6));
  drawMargin(page);
  return page;
}

Canvas boardPicture(const World& world, int scale) {
  Canvas page = boardPage(world, scale);
  tracePlaque(page.cr(), 146, 388.5, false);
  paintPlaque(page);
  tracePlaque(page.cr(), 448, 812, true);
  paintPlaque(page);
  drawFarPlaces(page, world);
  return page;
}

}  // namespace mappa
