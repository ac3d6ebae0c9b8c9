// What stands on the maps besides the map: plaques, insets, compass roses.
#pragma once

#include "carta.h"
#include "tela.h"

namespace mappa {

constexpr Colour kNavy = rgb(0x14243f);
constexpr Colour kGold = rgb(0xc9a75a);
constexpr Colour kPaper = rgb(0xf3ead2);

// Fills the current path as a dark plaque with a golden rim; texts of the screen stand on it.
void paintPlaque(const Canvas& canvas);

struct RoseStyle {
  Colour dark = kNavy;
  Colour light = kPaper;
  Colour ring = kGold;
  double alpha = 1;
  double fineLine = 0.012;  // of the radius
  double depth = 0;         // 0 a flat rose; above, its points rise to a boss in the middle
};

// Eight points and a ring; the needle to the north carries a lily.
void drawRose(const Canvas& canvas, Point centre, double radius, const RoseStyle& style);

// A small sailing ship on two waves, about 1.6 times as wide as `size`.
void drawShip(const Canvas& canvas, Point keel, double size, Colour ink, Colour sail);

// The margin of the page with a fine line.
void drawMargin(const Canvas& page);

// The rim of an old map: light and dark bars between two lines.
void drawRim(const Canvas& page, Colour dark);

// A place that lies outside the page, shown in a frame of its own.
void drawInset(const Canvas& page, Box box, const World& world, const Projection& projection,
               const MapStyle& style);

// The true place of a city whose square stands elsewhere, and the way to that square.
void drawDot(const Canvas& page, Point at);
void drawLeader(const Canvas& page, Point from, Point to);

}  // namespace mappa
