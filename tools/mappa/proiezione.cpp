#include "proiezione.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mappa {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
// In the units of the kernel below (squared degrees); gives about 2 pixels of slack at a knot.
constexpr double kSmoothing = 0.35;

double kernel(Point a, Point b) {
  const double r2 = (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
  return r2 > 0 ? r2 * std::log(r2) / 2 : 0;
}

Point flat(LonLat place) { return {place.lon * std::cos(50 * kRadian), place.lat}; }

// Gauss elimination with pivots, for both coordinates at once.
void solve(std::vector<std::vector<double>>& a, std::vector<Point>& b) {
  const std::size_t n = b.size();
  for (std::size_t column = 0; column < n; ++column) {
    std::size_t pivot = column;
    for (std::size_t row = column + 1; row < n; ++row) {
      if (std::abs(a[row][column]) > std::abs(a[pivot][column])) pivot = row;
    }
    if (std::abs(a[pivot][column]) < 1e-9) {
      throw DataError("The cities do not determine the projection of the board.");
    }
    std::swap(a[pivot], a[column]);
    std::swap(b[pivot], b[column]);
    for (std::size_t row = 0; row < n; ++row) {
      if (row == column) continue;
      const double factor = a[row][column] / a[column][column];
      for (std::size_t k = column; k < n; ++k) a[row][k] -= factor * a[column][k];
      b[row].x -= factor * b[column].x;
      b[row].y -= factor * b[column].y;
    }
  }
  for (std::size_t i = 0; i < n; ++i) {
    b[i].x /= a[i][i];
    b[i].y /= a[i][i];
  }
}

}  // namespace

BoardProjection::BoardProjection(const std::vector<City>& cities) {
  std::vector<Point> targets;
  for (const City& city : cities) {
    if (!city.pinned) continue;
    knots_.push_back({flat(city.place), {}});
    targets.push_back(city.square);
  }
  const std::size_t n = knots_.size();
  std::vector<std::vector<double>> a(n + 3, std::vector<double>(n + 3, 0.0));
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = 0; j < n; ++j) a[i][j] = kernel(knots_[i].at, knots_[j].at);
    a[i][i] = kSmoothing;
    a[i][n] = a[n][i] = 1;
    a[i][n + 1] = a[n + 1][i] = knots_[i].at.x;
    a[i][n + 2] = a[n + 2][i] = knots_[i].at.y;
  }
  targets.resize(n + 3);
  solve(a, targets);
  for (std::size_t i = 0; i < n; ++i) knots_[i].weight = targets[i];
  std::copy_n(targets.begin() + static_cast<std::ptrdiff_t>(n), 3, affine_.begin());
}

Point BoardProjection::operator()(LonLat place) const {
  const Point p = flat(place);
  Point result{affine_[0].x + affine_[1].x * p.x + affine_[2].x * p.y,
               affine_[0].y + affine_[1].y * p.x + affine_[2].y * p.y};
  for (const Knot& knot : knots_) {
    const double k = kernel(knot.at, p);
    result.x += knot.weight.x * k;
    result.y += knot.weight.y * k;
  }
  return result;
}

EqualAreaProjection::EqualAreaProjection(LonLat centre, Point centrePixel, double pixelsPerDegree)
    : centre_(centre), pixel_(centrePixel), scale_(pixelsPerDegree / kRadian) {}

Point EqualAreaProjection::operator()(LonLat place) const {
  const double lat0 = centre_.lat * kRadian, lat = place.lat * kRadian;
  const double turn = (place.lon - centre_.lon) * kRadian;
  const double cosine =
      std::sin(lat0) * std::sin(lat) + std::cos(lat0) * std::cos(lat) * std::cos(turn);
  const double k = scale_ * std::sqrt(2 / std::max(1 + cosine, 1e-6));
  return {pixel_.x + k * std::cos(lat) * std::sin(turn),
          pixel_.y - k * (std::cos(lat0) * std::sin(lat) -
                          std::sin(lat0) * std::cos(lat) * std::cos(turn))};
}

Line project(const Projection& projection, const std::vector<LonLat>& places) {
  Line line;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (i > 0) {
      const LonLat a = places[i - 1], b = places[i];
      const int steps =
          static_cast<int>(std::max(std::abs(b.lon - a.lon), std::abs(b.lat - a.lat)));
      for (int s = 1; s <= steps; ++s) {
        const double t = s / (steps + 1.0);
        line.push_back(projection({a.lon + t * (b.lon - a.lon), a.lat + t * (b.lat - a.lat)}));
      }
    }
    line.push_back(projection(places[i]));
  }
  return line;
}

double pixelsPerKm(const Projection& projection, LonLat place) {
  const Point a = projection({place.lon, place.lat - 0.5});
  const Point b = projection({place.lon, place.lat + 0.5});
  return std::hypot(b.x - a.x, b.y - a.y) / 111.2;
}

}  // namespace mappa
