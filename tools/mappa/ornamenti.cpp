#include "ornamenti.h"

#include <cmath>
#include <numbers>
#include <tuple>
#include <utility>

namespace mappa {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

Point polar(Point centre, double radius, double turns) {
  return {centre.x + radius * std::sin(turns * kTurn), centre.y - radius * std::cos(turns * kTurn)};
}

void fillPolygon(cairo_t* cr, const Line& corners) {
  cairo_new_path(cr);
  tracePath(cr, corners);
  cairo_close_path(cr);
  cairo_fill(cr);
}

// Fills one half of a point of a rose, from one colour in the middle to another at the tip.
void fillFacet(cairo_t* cr, const Line& corners, Colour middle, Colour tip) {
  const auto gradient =
      cairo_pattern_create_linear(corners[0].x, corners[0].y, corners[2].x, corners[2].y);
  cairo_pattern_add_color_stop_rgb(gradient, 0.1, middle.r, middle.g, middle.b);
  cairo_pattern_add_color_stop_rgb(gradient, 0.8, tip.r, tip.g, tip.b);
  cairo_set_source(cr, gradient);
  cairo_pattern_destroy(gradient);
  fillPolygon(cr, corners);
}

void strokeCircle(cairo_t* cr, Point centre, double radius, double width) {
  cairo_set_line_width(cr, width);
  cairo_new_path(cr);
  cairo_arc(cr, centre.x, centre.y, radius, 0, kTurn);
  cairo_stroke(cr);
}

}  // namespace

void paintPlaque(const Canvas& canvas) {
  cairo_t* cr = canvas.cr();
  canvas.setColour(rgb(0x1d2a38), 0.16);
  for (const double width : {7.0, 4.5, 2.0}) {
    cairo_set_line_width(cr, width);
    cairo_stroke_preserve(cr);
  }
  canvas.setColour(kNavy, 0.97);
  cairo_fill_preserve(cr);
  canvas.setColour(kGold);
  cairo_set_line_width(cr, 1.4);
  cairo_stroke_preserve(cr);
  // A second, finer line inside the rim.
  cairo_save(cr);
  cairo_clip_preserve(cr);
  canvas.setColour(kNavy);
  cairo_set_line_width(cr, 6.4);
  cairo_stroke_preserve(cr);
  canvas.setColour(kGold, 0.55);
  cairo_set_line_width(cr, 6.4);
  cairo_stroke_preserve(cr);
  canvas.setColour(kNavy);
  cairo_set_line_width(cr, 5.0);
  cairo_stroke_preserve(cr);
  canvas.setColour(kGold);
  cairo_set_line_width(cr, 1.6);
  cairo_stroke(cr);
  cairo_restore(cr);
  cairo_new_path(cr);
}

void drawRose(const Canvas& canvas, Point centre, double radius, const RoseStyle& style) {
  cairo_t* cr = canvas.cr();
  cairo_push_group(cr);
  canvas.setColour(style.ring);
  strokeCircle(cr, centre, radius * 0.66, 2 * radius * style.fineLine);
  strokeCircle(cr, centre, radius * 0.60, radius * style.fineLine);
  for (int i = 0; i < 32; ++i) {
    const Point a = polar(centre, radius * 0.60, i / 32.0),
                b = polar(centre, radius * 0.66, i / 32.0);
    cairo_move_to(cr, a.x, a.y);
    cairo_line_to(cr, b.x, b.y);
    cairo_set_line_width(cr, radius * style.fineLine);
    cairo_stroke(cr);
    if (style.depth > 0 && i % 2 == 0) {
      fillPolygon(cr, {a, b, polar(centre, radius * 0.66, (i + 1) / 32.0),
                       polar(centre, radius * 0.60, (i + 1) / 32.0)});
    }
  }
  // The half winds lie under the four great ones; each point is half dark, half light.
  for (const bool great : {false, true}) {
    const double tip = radius * (great ? 0.98 : 0.58), waist = radius * (great ? 0.17 : 0.13);
    for (int i = 0; i < 4; ++i) {
      const double turn = i / 4.0 + (great ? 0 : 0.125);
      const Point end = polar(centre, tip, turn);
      fillFacet(cr, {centre, polar(centre, waist, turn - 0.125), end},
                mix(style.light, style.ring, style.depth), style.light);
      fillFacet(cr, {centre, polar(centre, waist, turn + 0.125), end}, style.dark,
                mix(style.dark, style.light, style.depth / 3));
      canvas.setColour(style.depth > 0 ? style.ring : style.dark);
      cairo_set_line_width(cr, radius * style.fineLine);
      cairo_new_path(cr);
      tracePath(cr, {polar(centre, waist, turn - 0.125), end, polar(centre, waist, turn + 0.125)});
      cairo_stroke(cr);
    }
  }
  for (const auto& [part, colour] : {std::pair{0.085, style.dark},
                                     {0.075, style.ring},
                                     {0.06, style.dark},
                                     {0.045, style.ring}}) {
    if (style.depth <= 0 && part > 0.05) continue;
    canvas.setColour(colour);
    cairo_arc(cr, centre.x, centre.y, radius * (style.depth > 0 ? part : 0.055), 0, kTurn);
    cairo_fill(cr);
  }
  cairo_pop_group_to_source(cr);
  cairo_paint_with_alpha(cr, style.alpha);
}

void drawShip(const Canvas& canvas, Point keel, double size, Colour ink, Colour sail) {
  cairo_t* cr = canvas.cr();
  cairo_save(cr);
  cairo_translate(cr, keel.x, keel.y);
  cairo_scale(cr, size, size);
  cairo_set_line_width(cr, 0.035);
  const auto fill = [&](Colour colour) {
    canvas.setColour(colour);
    cairo_fill_preserve(cr);
    canvas.setColour(ink);
    cairo_stroke(cr);
  };
  for (const auto& [x, height] : {std::pair{-0.28, -1.0}, {0.12, -1.15}}) {
    cairo_move_to(cr, x, -0.2);
    cairo_line_to(cr, x, height);
    cairo_stroke(cr);
    // Each mast carries two bellied sails.
    for (const auto& [top, foot, half] :
         {std::tuple{height + 0.08, height + 0.34, 0.13}, {height + 0.38, height + 0.78, 0.2}}) {
      cairo_move_to(cr, x - half * 0.8, top);
      cairo_line_to(cr, x + half * 0.8, top);
      cairo_curve_to(cr, x + half * 1.7, (top + foot) / 2, x + half * 1.5, foot - 0.04, x + half,
                     foot);
      cairo_line_to(cr, x - half, foot);
      cairo_curve_to(cr, x - half * 0.4, foot - 0.04, x - half * 0.2, (top + foot) / 2,
                     x - half * 0.8, top);
      fill(sail);
    }
    cairo_move_to(cr, x, height);
    cairo_line_to(cr, x + 0.2, height + 0.04);
    cairo_line_to(cr, x, height + 0.09);
    fill(ink);
  }
  cairo_move_to(cr, 0.3, -0.2);
  cairo_line_to(cr, 0.78, -0.62);
  cairo_stroke(cr);
  cairo_move_to(cr, 0.2, -0.85);
  cairo_line_to(cr, 0.72, -0.55);
  cairo_line_to(cr, 0.36, -0.3);
  cairo_close_path(cr);
  fill(sail);
  cairo_move_to(cr, -0.66, -0.42);
  cairo_line_to(cr, -0.42, -0.4);
  cairo_curve_to(cr, -0.36, -0.2, -0.2, -0.2, 0.2, -0.2);
  cairo_curve_to(cr, 0.4, -0.2, 0.5, -0.28, 0.6, -0.3);
  cairo_curve_to(cr, 0.55, -0.1, 0.45, 0.02, 0.32, 0.04);
  cairo_line_to(cr, -0.44, 0.04);
  cairo_curve_to(cr, -0.58, -0.06, -0.62, -0.22, -0.66, -0.42);
  fill(ink);
  canvas.setColour(sail);
  cairo_set_line_width(cr, 0.045);
  for (int row = 0; row < 2; ++row) {
    const double y = 0.08 + 0.12 * row;
    cairo_move_to(cr, -0.8 + 0.25 * row, y);
    for (int i = 0; i < 6 - 2 * row; ++i) {
      cairo_rel_curve_to(cr, 0.06, 0.07, 0.2, 0.07, 0.26, 0);
    }
    cairo_stroke(cr);
  }
  cairo_restore(cr);
}

void drawMargin(const Canvas& page) {
  cairo_t* cr = page.cr();
  const double w = page.width(), h = page.height();
  for (const auto& [inset, width, colour] :
       {std::tuple{0.0, 5.0, kPaper}, {3.0, 0.9, kNavy}, {5.0, 0.5, rgb(0x7d6a45)}}) {
    page.setColour(colour);
    cairo_set_line_width(cr, width);
    cairo_rectangle(cr, inset, inset, w - 2 * inset, h - 2 * inset);
    cairo_stroke(cr);
  }
}

void drawRim(const Canvas& page, Colour dark) {
  constexpr double kBar = 20, kDepth = 5;
  cairo_t* cr = page.cr();
  const double w = page.width(), h = page.height();
  const auto bars = [&](double x, double y, double dx, double dy, double length) {
    for (int i = 0; i * kBar < length; ++i) {
      page.setColour(i % 2 == 0 ? dark : kPaper);
      cairo_rectangle(cr, x + i * kBar * dx, y + i * kBar * dy, dx * kBar + dy * kDepth,
                      dy * kBar + dx * kDepth);
      cairo_fill(cr);
    }
  };
  bars(0, 0, 1, 0, w);
  bars(0, h - kDepth, 1, 0, w);
  bars(0, 0, 0, 1, h);
  bars(w - kDepth, 0, 0, 1, h);
  page.setColour(dark);
  cairo_set_line_width(cr, 1);
  cairo_rectangle(cr, kDepth + 0.5, kDepth + 0.5, w - 2 * kDepth - 1, h - 2 * kDepth - 1);
  cairo_stroke(cr);
}

void drawInset(const Canvas& page, Box box, const World& world, const Projection& projection,
               const MapStyle& style) {
  constexpr double kRadius = 5;
  const Canvas map(static_cast<int>(std::ceil(box.width)), static_cast<int>(std::ceil(box.height)),
                   page.scale());
  drawMap(map, world, projection, style);
  cairo_t* cr = page.cr();
  roundedBox(cr, box, kRadius);
  page.setColour(rgb(0x1d2a38), 0.13);
  for (const double width : {9.0, 7.0}) {
    cairo_set_line_width(cr, width);
    cairo_stroke_preserve(cr);
  }
  page.setColour(kPaper);
  cairo_set_line_width(cr, 5);
  cairo_stroke_preserve(cr);
  cairo_save(cr);
  cairo_clip_preserve(cr);
  page.paint(map, box.x, box.y);
  cairo_restore(cr);
  page.setColour(kNavy, 0.8);
  cairo_set_line_width(cr, 0.9);
  cairo_stroke(cr);
  roundedBox(cr, {box.x - 2.5, box.y - 2.5, box.width + 5, box.height + 5}, kRadius + 2.5);
  page.setColour(rgb(0x7d6a45));
  cairo_set_line_width(cr, 0.8);
  cairo_stroke(cr);
}

void drawDot(const Canvas& page, Point at) {
  cairo_t* cr = page.cr();
  cairo_new_path(cr);
  cairo_arc(cr, at.x, at.y, 2.1, 0, kTurn);
  page.setColour(rgb(0xc0281c));
  cairo_fill_preserve(cr);
  page.setColour(kPaper);
  cairo_set_line_width(cr, 0.9);
  cairo_stroke(cr);
}

void drawLeader(const Canvas& page, Point from, Point to) {
  cairo_t* cr = page.cr();
  for (const bool halo : {true, false}) {
    page.setColour(halo ? kPaper : rgb(0xa3221a), halo ? 0.8 : 1);
    cairo_set_line_width(cr, halo ? 2.8 : 1.3);
    const double dashes[] = {3.2, 2.6};
    if (!halo) cairo_set_dash(cr, dashes, 2, 0);
    cairo_move_to(cr, from.x, from.y);
    cairo_line_to(cr, to.x, to.y);
    cairo_stroke(cr);
  }
  cairo_set_dash(cr, nullptr, 0, 0);
}

}  // namespace mappa
