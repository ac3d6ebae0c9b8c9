// From places on the globe to pixels of a picture.
#pragma once

#include <array>

#include "dati.h"

namespace mappa {

class Projection {
 public:
  virtual ~Projection() = default;
  virtual Point operator()(LonLat place) const = 0;
};

// Bends the globe so that the cities of the route come to lie under their squares on the board:
// a thin-plate spline through the pinned cities, a little slack so that the coasts stay natural.
class BoardProjection : public Projection {
 public:
  explicit BoardProjection(const std::vector<City>& cities);
  Point operator()(LonLat place) const override;

 private:
  struct Knot {
    Point at;
    Point weight;
  };
  std::vector<Knot> knots_;
  std::array<Point, 3> affine_;
};

// Keeps areas true, as in the maps of an atlas; north is up at the centre.
class EqualAreaProjection : public Projection {
 public:
  EqualAreaProjection(LonLat centre, Point centrePixel, double pixelsPerDegree);
  Point operator()(LonLat place) const override;

 private:
  LonLat centre_;
  Point pixel_;
  double scale_;
};

// The line in pixels; long steps are divided, since straight on the globe is bent on the map.
Line project(const Projection& projection, const std::vector<LonLat>& places);

double pixelsPerKm(const Projection& projection, LonLat place);

}  // namespace mappa
