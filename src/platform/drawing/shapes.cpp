// Lines, boxes, ovals and polygons.
#include <algorithm>
#include <cmath>

#include "platform/drawing/pixel.h"
#include "platform/drawing/scan.h"
#include "platform/drawing/surface.h"

namespace platform {
namespace {

// A pen of odd width is centred on the middle of its pixel, one of even width on the pixel's edge.
double PenCentre(double width) { return width < kFarAway && std::lround(width) % 2 != 0 ? 0.5 : 0; }

// The area of a box that includes the pixels of both corners.
Rect CornerBox(double x1, double y1, double x2, double y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1) + 1, std::abs(y2 - y1) + 1};
}

}  // namespace

DeviceRect Surface::Place(const Rect& r) const {
  return ToDevice({r.left + origin_.x, r.top + origin_.y, r.width, r.height}, scale_);
}

Point Surface::Place(Point p) const {
  return {(p.x + origin_.x) * scale_, (p.y + origin_.y) * scale_};
}

void Surface::Paint(const Outline& outline, Color color) {
  const std::uint32_t pixel = SwapRedBlue(color);
  outline.Scan(clip_, [&](int y, int left, int right, const int* coverage) {
    std::uint32_t* to = row(y) + left;
    for (int i = 0; i < right - left; ++i) {
      if (coverage[i] == 256)
        to[i] = pixel;
      else if (coverage[i] != 0)
        to[i] = Blend(to[i], pixel, static_cast<std::uint32_t>(coverage[i]));
    }
  });
}

void Surface::Line(double x1, double y1, double x2, double y2, const Pen& pen) {
  Polyline({{x1, y1}, {x2, y2}}, false, pen);
}

void Surface::Polyline(const std::vector<Point>& points, bool closed, const Pen& pen) {
  if (points.empty() || !(pen.width > 0)) return;
  const double shift = PenCentre(pen.width);
  const double half = pen.width * scale_ / 2;
  const bool thin = pen.width <= 1;
  const auto place = [&](Point p) { return Place(Point{p.x + shift, p.y + shift}); };
  Outline stroke;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point from = place(points[i]);
    if (!thin) stroke.AddDisc(from, half);
    const bool last = i + 1 == points.size();
    if (last && (!closed || i == 0) && i > 0) break;
    if (last && !closed && !thin) break;
    // A thin line fills the pixels of both its ends.
    stroke.AddBar(from, place(points[last ? 0 : i + 1]), half, thin ? half : 0);
  }
  Paint(stroke, pen.color);
}

void Surface::Box(double x1, double y1, double x2, double y2, const Pen& pen) {
  if (!(pen.width > 0)) return;
  const double low = PenCentre(pen.width) - pen.width / 2;
  const double high = PenCentre(pen.width) + pen.width / 2;
  const double left = std::min(x1, x2);
  const double right = std::max(x1, x2);
  const double top = std::min(y1, y2);
  const double bottom = std::max(y1, y2);
  const DeviceRect outer =
      Place(Rect{left + low, top + low, right - left + pen.width, bottom - top + pen.width});
  const DeviceRect inner =
      Place(Rect{left + high, top + high, right - left - pen.width, bottom - top - pen.width});
  const std::uint32_t pixel = SwapRedBlue(pen.color);
  if (inner.empty()) return FillDevice(outer, pixel);
  FillDevice({outer.left, outer.top, outer.right, inner.top}, pixel);
  FillDevice({outer.left, inner.top, inner.left, inner.bottom}, pixel);
  FillDevice({inner.right, inner.top, outer.right, inner.bottom}, pixel);
  FillDevice({outer.left, inner.bottom, outer.right, outer.bottom}, pixel);
}

void Surface::FillBox(double x1, double y1, double x2, double y2, Color color) {
  FillRect(CornerBox(x1, y1, x2, y2), color);
}

void Surface::FillBoxAnd(double x1, double y1, double x2, double y2, Color color) {
  const DeviceRect r = Intersect(Place(CornerBox(x1, y1, x2, y2)), clip_);
  const std::uint32_t pixel = SwapRedBlue(color);
  for (int y = r.top; y < r.bottom; ++y) {
    std::uint32_t* to = row(y);
    for (int x = r.left; x < r.right; ++x) to[x] &= pixel;
  }
}

void Surface::FillRect(const Rect& r, Color color) { FillDevice(Place(r), SwapRedBlue(color)); }

void Surface::FillRoundRect(const Rect& r, double ellipseWidth, double ellipseHeight, Color color) {
  const Point a = Place(Point{r.left, r.top});
  const Point b = Place(Point{r.right(), r.bottom()});
  Outline shape;
  shape.AddRoundRect(a.x, a.y, b.x, b.y, ellipseWidth / 2 * scale_, ellipseHeight / 2 * scale_);
  Paint(shape, color);
}

void Surface::RoundRect(const Rect& r, double ellipseWidth, double ellipseHeight, const Pen& pen) {
  if (!(pen.width > 0)) return;
  const Point a = Place(Point{r.left, r.top});
  const Point b = Place(Point{r.right(), r.bottom()});
  const double half = pen.width * scale_ / 2;
  const double rx = std::min(ellipseWidth / 2 * scale_, (b.x - a.x) / 2);
  const double ry = std::min(ellipseHeight / 2 * scale_, (b.y - a.y) / 2);
  Outline shape;
  shape.AddRoundRect(a.x - half, a.y - half, b.x + half, b.y + half, rx + half, ry + half);
  shape.AddRoundRect(a.x + half, a.y + half, b.x - half, b.y - half, rx - half, ry - half, true);
  Paint(shape, pen.color);
}

void Surface::FillOval(const Rect& r, Color color) { FillRoundRect(r, r.width, r.height, color); }

void Surface::Oval(const Rect& r, const Pen& pen) {
  const Rect middle{r.left + pen.width / 2, r.top + pen.width / 2, r.width - pen.width,
                    r.height - pen.width};
  if (middle.width <= 0 || middle.height <= 0) return FillOval(r, pen.color);
  RoundRect(middle, middle.width, middle.height, pen);
}

void Surface::FillPolygon(const std::vector<Point>& points, Color color) {
  std::vector<Point> placed;
  placed.reserve(points.size());
  for (const Point& p : points) placed.push_back(Place(p));
  Outline shape;
  shape.AddPolygon(placed);
  Paint(shape, color);
}

}  // namespace platform
