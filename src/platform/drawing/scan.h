// The one converter of outlines to pixel coverage that all shapes and masks use.
#pragma once

#include <functional>
#include <vector>

#include "platform/drawing/geometry.h"

namespace platform {

// Closed contours in device coordinates. What is inside is told by the winding rule, so that parts
// that overlap in the same direction join, and a part in the other direction cuts a hole.
class Outline {
 public:
  void AddPolygon(const std::vector<Point>& points);
  void AddRect(double left, double top, double right, double bottom);
  // The corners are quarters of an ellipse with these radii, cut to the size of the rectangle.
  void AddRoundRect(double left, double top, double right, double bottom, double radiusX,
                    double radiusY, bool hole = false);
  void AddDisc(Point centre, double radius);
  // The stroke of a line without its ends, or with both ends lengthened.
  void AddBar(Point from, Point to, double halfWidth, double lengthen = 0);

  // Calls `row` for each pixel row inside the clip that is touched: with the columns [left, right)
  // and the coverage of each, 0 to 256, coverage[0] being the column `left`.
  using Row = std::function<void(int y, int left, int right, const int* coverage)>;
  void Scan(const DeviceRect& clip, const Row& row) const;

 private:
  struct Edge {  // downwards; y in sub-rows
    double x, y, slope, bottom;
    int winding;
  };
  void AddEdge(Point a, Point b);
  std::vector<Edge> edges_;
};

}  // namespace platform
