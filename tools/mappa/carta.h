// The map itself: sea, land, relief, waters and borders, without any furniture.
#pragma once

#include <array>
#include <vector>

#include "dati.h"
#include "proiezione.h"
#include "tela.h"

namespace mappa {

struct MapStyle {
  // Sea from the shore outwards: a colour and the distance in logical pixels where it ends.
  struct Band {
    Colour colour;
    double end = 0;
  };
  std::vector<Band> sea;
  // Land by height in metres.
  struct Step {
    double metres = 0;
    Colour colour;
  };
  std::vector<Step> land;
  std::array<Colour, 6> tints;  // by the tint of the country; 0: outside the game
  double tintStrength = 0.3;
  double tintFade = 0;  // how much of the tint is gone on the mountains
  double ribbon = 0.3;  // strength of the band of colour inside a country's borders
  double neutralStrength = 0.6;
  double reliefStrength = 0.9;
  Colour coast, border, water;
  Colour graticule;
  double graticuleAlpha = 0.25;
  int graticuleStep = 5;  // degrees
  double lineWidth = 1;   // factor on all lines
  int smallestRiver = 3;  // draw rivers up to this weight
};

// The outlines of the world in the pixels of one picture.
class Outlines {
 public:
  Outlines(const World& world, const Projection& projection);

  void traceCountry(cairo_t* cr, const Country& country) const;
  void traceArcs(cairo_t* cr, ArcKind kind) const;
  const Line& line(std::size_t arc) const { return lines_[arc]; }
  // Opaque where there is land.
  Canvas landMask(int width, int height, int scale) const;

 private:
  const World& world_;
  std::vector<Line> lines_;
};

void drawMap(const Canvas& canvas, const World& world, const Projection& projection,
             const MapStyle& style);

}  // namespace mappa
