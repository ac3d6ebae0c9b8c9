// The board of the ordering trial: Europe behind a compass rose, inside a ring on which the screen
// draws its marks. The arms of the rose cross the ring where no marks come.
#include <cmath>
#include <numbers>

#include "ornamenti.h"
#include "stili.h"
#include "tavole.h"

namespace mappa {
namespace {

constexpr double kHalfWidth = 400, kHalfHeight = 300;
// Of the half axes; the marks lie from 0.96 to 0.97.
constexpr double kRingInside = 0.945, kRingOutside = 0.985;

void traceEllipse(cairo_t* cr, double fraction) {
  cairo_save(cr);
  cairo_translate(cr, kHalfWidth, kHalfHeight);
  cairo_scale(cr, kHalfWidth * fraction, kHalfHeight * fraction);
  cairo_new_sub_path(cr);
  cairo_arc(cr, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(cr);
}

void drawRhumbs(const Canvas& page) {
  cairo_t* cr = page.cr();
  page.setColour(rgb(0x6b5130), 0.28);
  cairo_set_line_width(cr, 0.8);
  for (int i = 0; i < 32; ++i) {
    const double a = i * std::numbers::pi / 16;
    cairo_move_to(cr, kHalfWidth, kHalfHeight);
    cairo_line_to(cr, kHalfWidth + kHalfWidth * std::cos(a),
                  kHalfHeight + kHalfHeight * std::sin(a));
    cairo_stroke(cr);
  }
}

void drawRing(const Canvas& page) {
  cairo_t* cr = page.cr();
  cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
  cairo_rectangle(cr, 0, 0, page.width(), page.height());
  traceEllipse(cr, kRingOutside);
  page.setColour(rgb(0x243b60));
  cairo_fill(cr);
  traceEllipse(cr, kRingOutside);
  traceEllipse(cr, kRingInside);
  page.setColour(rgb(0x0e1a30));
  cairo_fill(cr);
  for (const auto& [fraction, width] :
       {std::pair{kRingInside, 2.0}, {kRingInside - 0.012, 0.8}, {kRingOutside, 1.4}}) {
    traceEllipse(cr, fraction);
    page.setColour(kGold);
    cairo_set_line_width(cr, width);
    cairo_stroke(cr);
  }
}

// Golden points where the arms of the rose cross the ring; the one to the north is a lily.
void drawTips(const Canvas& page) {
  cairo_t* cr = page.cr();
  for (int i = 0; i < 4; ++i) {
    cairo_save(cr);
    cairo_translate(cr, kHalfWidth, kHalfHeight);
    cairo_rotate(cr, i * std::numbers::pi / 2);
    const double outside = i % 2 == 0 ? kHalfHeight : kHalfWidth;
    cairo_translate(cr, 0, -outside);
    cairo_new_path(cr);
    cairo_move_to(cr, 0, 2);
    if (i == 0) {
      cairo_curve_to(cr, 3, 8, 7, 11, 6, 17);
      cairo_curve_to(cr, 10, 11, 20, 12, 20, 19);
      cairo_curve_to(cr, 20, 25, 13, 26, 12, 21);
      cairo_curve_to(cr, 9, 21, 6, 26, 5, 34);
      cairo_line_to(cr, -5, 34);
      cairo_curve_to(cr, -6, 26, -9, 21, -12, 21);
      cairo_curve_to(cr, -13, 26, -20, 25, -20, 19);
      cairo_curve_to(cr, -20, 12, -10, 11, -6, 17);
      cairo_curve_to(cr, -7, 11, -3, 8, 0, 2);
    } else {
      cairo_curve_to(cr, 3, 8, 7, 11, 12, 14);
      cairo_curve_to(cr, 7, 17, 4, 22, 0, 34);
      cairo_curve_to(cr, -4, 22, -7, 17, -12, 14);
      cairo_curve_to(cr, -7, 11, -3, 8, 0, 2);
    }
    cairo_close_path(cr);
    cairo_restore(cr);
    page.setColour(kGold);
    cairo_fill_preserve(cr);
    page.setColour(rgb(0x0e1a30));
    cairo_set_line_width(cr, 1.2);
    cairo_stroke(cr);
  }
}

}  // namespace

Canvas orderingPicture(const World& world, int scale) {
  Canvas page(800, 600, scale);
  drawMap(page, world, EqualAreaProjection({13, 52.5}, {400, 300}, 13.4), atlasStyle());
  drawRhumbs(page);
  drawRing(page);
  for (const Point corner : {Point{24, 18}, {776, 18}, {24, 581}, {776, 581}}) {
    drawRose(page, corner, 17,
             {.dark = rgb(0x0e1a30), .light = kGold, .ring = kGold, .alpha = 0.7});
  }
  cairo_t* cr = page.cr();
  cairo_save(cr);
  cairo_translate(cr, kHalfWidth, kHalfHeight);
  cairo_scale(cr, kHalfWidth / kHalfHeight, 1);
  drawRose(page, {0, 0}, 292,
           {.dark = kNavy,
            .light = kPaper,
            .ring = kGold,
            .alpha = 0.86,
            .fineLine = 0.005,
            .depth = 0.7});
  cairo_restore(cr);
  drawTips(page);
  return page;
}

}  // namespace mappa
