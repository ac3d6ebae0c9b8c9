#include "tavole.h"

#include "carta.h"
#include "ornamenti.h"

namespace mappa {
namespace {

constexpr int kReykyavik = 36, kTbilisi = 77, kBaku = 79, kNicosia = 80;

MapStyle atlasStyle() {
  MapStyle style;
  style.sea = {{rgb(0xb4d0d8), 3.5},
               {rgb(0xa6c6d2), 9},
               {rgb(0x9abdcd), 19},
               {rgb(0x90b5c7), 36},
               {rgb(0x88aec2), 1e9}};
  style.land = {{0, rgb(0xb4c096)},    {140, rgb(0xc0c79a)},  {300, rgb(0xcfcda0)},
                {600, rgb(0xd6c998)},  {1000, rgb(0xcfb887)}, {1600, rgb(0xbb9c70)},
                {2400, rgb(0xa58466)}, {3000, rgb(0xb9a698)}, {3600, rgb(0xf2efe9)}};
  style.tints = {rgb(0xc6bda6), rgb(0xcf9c92), rgb(0xdcc46f),
                 rgb(0x94b27a), rgb(0xd6a063), rgb(0xaa92b0)};
  style.tintStrength = 0.22;
  style.ribbon = 0.14;
  style.coast = rgb(0x3d6076);
  style.border = rgb(0x7d4a4e);
  style.water = rgb(0x4f88a6);
  style.graticule = rgb(0xeef6f6);
  return style;
}

// A tab that grows out of the foot of the page; the part under the portrait is higher.
void tracePlaque(cairo_t* cr, double left, double step, double right, bool portraitLeft) {
  constexpr double kTop = 517, kShoulder = 541, kFoot = 608, kRadius = 8;
  const double width = right - left;
  cairo_save(cr);
  // Drawn with the portrait at the left and mirrored for the other.
  cairo_translate(cr, portraitLeft ? left : right, 0);
  cairo_scale(cr, portraitLeft ? 1 : -1, 1);
  cairo_new_path(cr);
  cairo_move_to(cr, 0, kFoot);
  cairo_line_to(cr, 0, kTop + kRadius);
  cairo_curve_to(cr, 0, kTop + 3, 3, kTop, kRadius, kTop);
  cairo_line_to(cr, step - kRadius, kTop);
  cairo_curve_to(cr, step + 6, kTop, step - 4, kShoulder, step + 12, kShoulder);
  cairo_line_to(cr, width - kRadius, kShoulder);
  cairo_curve_to(cr, width - 3, kShoulder, width, kShoulder + 3, width, kShoulder + kRadius);
  cairo_line_to(cr, width, kFoot);
  cairo_close_path(cr);
  cairo_restore(cr);
}

void drawFarPlaces(const Canvas& page, const World& world) {
  MapStyle style = atlasStyle();
  style.lineWidth = 0.8;
  const auto city = [&world](int square) { return world.cities[static_cast<std::size_t>(square)]; };

  const EqualAreaProjection iceland({-19, 64.95}, {46, 26}, 13.2);
  drawInset(page, {-6, -6, 94, 62}, world,
            EqualAreaProjection({-19, 64.95}, {46 + 6, 26 + 6}, 13.2), style);
  drawDot(page, iceland(city(kReykyavik).place));

  const Box caucasus{704, 404, 76, 53};
  style.smallestRiver = 2;
  drawInset(page, caucasus, world, EqualAreaProjection({45, 41.2}, {38, 26.5}, 9.2), style);
  const EqualAreaProjection there({45, 41.2}, {704 + 38, 404 + 26.5}, 9.2);
  for (int square = kTbilisi; square <= kBaku; ++square) {
    drawLeader(page, there(city(square).place), city(square).square);
  }
  for (int square = kTbilisi; square <= kBaku; ++square) drawDot(page, there(city(square).place));

  const EqualAreaProjection cyprus({33.35, 35.1}, {762, 493}, 18);
  drawInset(page, {738, 473, 46, 40}, world, EqualAreaProjection({33.35, 35.1}, {24, 20}, 18),
            style);
  drawLeader(page, cyprus(city(kNicosia).place), city(kNicosia).square);
  drawDot(page, cyprus(city(kNicosia).place));
}

}  // namespace

Canvas boardPicture(const World& world, int scale) {
  Canvas page(800, 600, scale);
  drawMap(page, world, BoardProjection(world.cities), atlasStyle());
  RoseStyle rose;
  rose.dark = rgb(0x4d7590);
  rose.light = rgb(0xd9e6e6);
  rose.ring = rgb(0xd9e6e6);
  rose.alpha = 0.75;
  drawRose(page, {58, 318}, 40, rose);
  tracePlaque(page.cr(), 146, 74, 388.5, false);
  paintPlaque(page);
  tracePlaque(page.cr(), 448, 74, 812, true);
  paintPlaque(page);
  drawFarPlaces(page, world);
  return page;
}
Canvas trialPicture(const World& world, int scale) { return boardPicture(world, scale); }
Canvas orderingPicture(const World& world, int scale) { return boardPicture(world, scale); }
Canvas puzzlePicture(const World& world, int scale) { return boardPicture(world, scale); }

}  // namespace mappa
