#include "platform/drawing/scan.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/drawing/pixel.h"

namespace platform {
namespace {

// Coverage is exact along a row and sampled on this many lines across it.
constexpr int kSubRows = 16;
constexpr int kUnit = 256;  // steps of x in a pixel

Point Clamp(Point p) { return {ClampCoordinate(p.x), ClampCoordinate(p.y)}; }

// Enough chords that none strays from the arc by more than a hundredth of a pixel.
int ChordsOfQuarter(double radius) {
  const int chords = static_cast<int>(std::ceil(std::sqrt(std::max(radius, 0.0)) * 5.6));
  return std::clamp(chords, 2, 128);
}

}  // namespace

void Outline::AddEdge(Point a, Point b) {
  a.y *= kSubRows;
  b.y *= kSubRows;
  if (a.y == b.y) return;
  const int winding = a.y < b.y ? 1 : -1;
  if (winding < 0) std::swap(a, b);
  edges_.push_back({a.x, a.y, (b.x - a.x) / (b.y - a.y), b.y, winding});
}

void Outline::AddPolygon(const std::vector<Point>& points) {
  for (std::size_t i = 0; i < points.size(); ++i)
    AddEdge(Clamp(points[i]), Clamp(points[i + 1 < points.size() ? i + 1 : 0]));
}

void Outline::AddRect(double left, double top, double right, double bottom) {
  AddPolygon({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

void Outline::AddRoundRect(double left, double top, double right, double bottom, double radiusX,
                           double radiusY, bool hole) {
  if (!(right > left) || !(bottom > top)) return;
  const double rx = std::clamp(radiusX, 0.0, (right - left) / 2);
  const double ry = std::clamp(radiusY, 0.0, (bottom - top) / 2);
  std::vector<Point> points;
  if (rx <= 0 || ry <= 0) {
    points = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
  } else {
    const int chords = ChordsOfQuarter(std::max(rx, ry));
    const Point centres[] = {{right - rx, top + ry},
                             {right - rx, bottom - ry},
                             {left + rx, bottom - ry},
                             {left + rx, top + ry}};
    for (int corner = 0; corner < 4; ++corner) {
      for (int i = 0; i <= chords; ++i) {
        // The quarter's first and last point lie exactly on the straight edges.
        const double angle = std::numbers::pi / 2 * i / chords;
        const double sine = i == chords ? 1 : std::sin(angle);
        const double cosine = i == chords ? 0 : std::cos(angle);
        const Point turned[] = {{sine, -cosine}, {cosine, sine}, {-sine, cosine}, {-cosine, -sine}};
        points.push_back(
            {centres[corner].x + rx * turned[corner].x, centres[corner].y + ry * turned[corner].y});
      }
    }
  }
  if (hole) std::reverse(points.begin(), points.end());
  AddPolygon(points);
}

void Outline::AddDisc(Point centre, double radius) {
  AddRoundRect(centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius, radius,
               radius);
}

void Outline::AddBar(Point from, Point to, double halfWidth, double lengthen) {
  from = Clamp(from);
  to = Clamp(to);
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double ux = length > 0 ? (to.x - from.x) / length : 1;
  const double uy = length > 0 ? (to.y - from.y) / length : 0;
  const Point a{from.x - ux * lengthen, from.y - uy * lengthen};
  const Point b{to.x + ux * lengthen, to.y + uy * lengthen};
  const double nx = -uy * halfWidth;
  const double ny = ux * halfWidth;
  AddPolygon(
      {{a.x - nx, a.y - ny}, {b.x - nx, b.y - ny}, {b.x + nx, b.y + ny}, {a.x + nx, a.y + ny}});
}

void Outline::Scan(const DeviceRect& clip, const Row& row) const {
  if (clip.empty() || edges_.empty()) return;
  struct Active {
    const Edge* edge;
    int firstSub, endSub;  // sub-rows whose middle lies on the edge
    int x;                 // where the edge crosses the present one
  };
  std::vector<Active> waiting;
  waiting.reserve(edges_.size());
  const int clipFirst = clip.top * kSubRows;
  const int clipEnd = clip.bottom * kSubRows;
  const auto sub = [&](double y) {
    return static_cast<int>(std::ceil(std::clamp(y - 0.5, double(clipFirst), double(clipEnd))));
  };
  for (const Edge& e : edges_) {
    const int first = sub(e.y);
    const int end = sub(e.bottom);
    if (first < end) waiting.push_back({&e, first, end, 0});
  }
  std::sort(waiting.begin(), waiting.end(),
            [](const Active& a, const Active& b) { return a.firstSub < b.firstSub; });

  const int clipWidth = clip.width();
  const double widest = double(clipWidth) * kUnit;
  std::vector<Active> active;
  std::vector<int> change(static_cast<std::size_t>(clipWidth) + 2, 0);
  std::vector<int> coverage(static_cast<std::size_t>(clipWidth) + 2, 0);
  std::size_t next = 0;
  int y = 0;
  while (next < waiting.size() || !active.empty()) {
    if (active.empty()) y = waiting[next].firstSub / kSubRows;
    int low = clipWidth;
    int high = 0;
    for (int s = y * kSubRows; s < (y + 1) * kSubRows; ++s) {
      std::erase_if(active, [s](const Active& a) { return a.endSub <= s; });
      while (next < waiting.size() && waiting[next].firstSub <= s)
        active.push_back(waiting[next++]);
      for (std::size_t i = 0; i < active.size(); ++i) {
        const Edge& e = *active[i].edge;
        const double x = e.x + (s + 0.5 - e.y) * e.slope - clip.left;
        active[i].x = static_cast<int>(std::clamp(x * kUnit + 0.5, 0.0, widest));
        // Nearly sorted from one line to the next.
        for (std::size_t at = i; at > 0 && active[at - 1].x > active[at].x; --at)
          std::swap(active[at - 1], active[at]);
      }
      int winding = 0;
      int from = 0;
      for (const Active& c : active) {
        const int before = winding;
        winding += c.edge->winding;
        if (before == 0) from = c.x;
        if (before == 0 || winding != 0 || c.x <= from) continue;
        const int a = from / kUnit;
        const int b = c.x / kUnit;
        change[a] += kUnit - from % kUnit;
        change[a + 1] += from % kUnit;
        change[b] -= kUnit - c.x % kUnit;
        change[b + 1] -= c.x % kUnit;
        low = std::min(low, a);
        high = std::max(high, b + (c.x % kUnit != 0));
      }
    }
    if (low < high) {
      int sum = 0;
      for (int x = low; x < high; ++x) {
        sum += change[x];
        coverage[x] = (sum + kSubRows / 2) / kSubRows;
      }
      std::fill(change.begin() + low, change.begin() + high + 2, 0);
      row(y, clip.left + low, clip.left + high, coverage.data() + low);
    }
    ++y;
  }
}

}  // namespace platform
