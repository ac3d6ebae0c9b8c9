#include "rilievo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace mappa {
namespace {

// Squared distances along one line, after Felzenszwalb and Huttenlocher.
void transformLine(const std::vector<float>& f, std::vector<float>& d, std::vector<int>& v,
                   std::vector<float>& z, int n) {
  const auto square = [](int q) { return static_cast<float>(q) * static_cast<float>(q); };
  const auto at = [](auto& values, int i) -> auto& { return values[static_cast<std::size_t>(i)]; };
  constexpr float infinity = std::numeric_limits<float>::infinity();
  int k = 0;
  v[0] = 0;
  z[0] = -infinity;
  z[1] = infinity;
  for (int q = 1; q < n; ++q) {
    const auto meet = [&](int p) {
      return ((at(f, q) + square(q)) - (at(f, p) + square(p))) / static_cast<float>(2 * (q - p));
    };
    float s = meet(at(v, k));
    while (s <= at(z, k)) s = meet(at(v, --k));
    ++k;
    at(v, k) = q;
    at(z, k) = s;
    at(z, k + 1) = infinity;
  }
  k = 0;
  for (int q = 0; q < n; ++q) {
    while (at(z, k + 1) < static_cast<float>(q)) ++k;
    at(d, q) = square(q - at(v, k)) + at(f, at(v, k));
  }
}

// The slope of the noise at a grid point, in one of many directions, times the way from there.
double gradient(int x, int y, double dx, double dy) {
  auto h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u;
  h = (h ^ (h >> 13)) * 1274126177u;
  h ^= h >> 16;
  constexpr std::array<std::array<double, 2>, 16> directions{{{1, 0},
                                                              {.924, .383},
                                                              {.707, .707},
                                                              {.383, .924},
                                                              {0, 1},
                                                              {-.383, .924},
                                                              {-.707, .707},
                                                              {-.924, .383},
                                                              {-1, 0},
                                                              {-.924, -.383},
                                                              {-.707, -.707},
                                                              {-.383, -.924},
                                                              {0, -1},
                                                              {.383, -.924},
                                                              {.707, -.707},
                                                              {.924, -.383}}};
  const auto& direction = directions[h % 16];
  return direction[0] * dx + direction[1] * dy;
}

// Sharp crests that branch, as mountains have.
double ridgedNoise(double x, double y, int octaves) {
  double sum = 0, amplitude = 0.5, total = 0, previous = 1;
  for (int i = 0; i < octaves; ++i) {
    double n = 1 - std::min(1.3 * std::abs(noise(x, y)), 1.0);
    n *= n;
    sum += n * amplitude * previous;
    total += amplitude;
    previous = n;
    // Turned at each step, so that no direction of the grid shows.
    const double turned = 1.62 * x - 1.22 * y + 17.1;
    y = 1.22 * x + 1.62 * y - 9.7;
    x = turned;
    amplitude *= 0.55;
  }
  return sum / total;
}

double distanceToSegment(Point p, Point a, Point b) {
  const double dx = b.x - a.x, dy = b.y - a.y, length2 = dx * dx + dy * dy;
  const double t =
      length2 > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length2, 0.0, 1.0) : 0;
  return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

// Adds the swelling of one upland, cubed so that overlapping ones merge instead of piling up.
void addUpland(Field& field, const Upland& upland, const Projection& projection) {
  Line crest = project(projection, upland.crest);
  if (crest.size() == 1) crest.push_back(crest.front());
  const LonLat middle = upland.crest[upland.crest.size() / 2];
  const double halfWidth = std::max(upland.halfWidthKm * pixelsPerKm(projection, middle), 0.5);
  double x0 = 1e9, y0 = 1e9, x1 = -1e9, y1 = -1e9;
  for (const Point& p : crest) {
    x0 = std::min(x0, p.x), x1 = std::max(x1, p.x);
    y0 = std::min(y0, p.y), y1 = std::max(y1, p.y);
  }
  const double reach = 2.2 * halfWidth;
  const auto within = [](double v, int size) {
    return static_cast<int>(std::clamp(v, 0.0, static_cast<double>(size)));
  };
  for (int y = within(y0 - reach, field.height); y < within(y1 + reach, field.height); ++y) {
    for (int x = within(x0 - reach, field.width); x < within(x1 + reach, field.width); ++x) {
      double d = 1e9;
      for (std::size_t i = 1; i < crest.size(); ++i) {
        d = std::min(d, distanceToSegment({double(x), double(y)}, crest[i - 1], crest[i]));
      }
      const double r = d / halfWidth;
      const double h = upland.metres * std::exp(-1.1 * r * r);
      field.at(x, y) += static_cast<float>(h * h * h);
    }
  }
}

}  // namespace

float Field::clamped(int x, int y) const {
  return at(std::clamp(x, 0, width - 1), std::clamp(y, 0, height - 1));
}

float Field::smooth(double x, double y) const {
  const int ix = static_cast<int>(std::floor(x)), iy = static_cast<int>(std::floor(y));
  const auto tx = static_cast<float>(x - ix), ty = static_cast<float>(y - iy);
  const float top = std::lerp(clamped(ix, iy), clamped(ix + 1, iy), tx);
  return std::lerp(top, std::lerp(clamped(ix, iy + 1), clamped(ix + 1, iy + 1), tx), ty);
}

Field distanceToZero(const Field& field) {
  constexpr float far = 1e9F;
  Field result(field.width, field.height);
  const auto n = static_cast<std::size_t>(std::max(field.width, field.height));
  std::vector<float> in(n), out(n), z(n + 1);
  std::vector<int> v(n);
  for (int x = 0; x < field.width; ++x) {
    for (int y = 0; y < field.height; ++y) {
      in[static_cast<std::size_t>(y)] = field.at(x, y) == 0 ? 0 : far;
    }
    transformLine(in, out, v, z, field.height);
    for (int y = 0; y < field.height; ++y) result.at(x, y) = out[static_cast<std::size_t>(y)];
  }
  for (int y = 0; y < field.height; ++y) {
    for (int x = 0; x < field.width; ++x) in[static_cast<std::size_t>(x)] = result.at(x, y);
    transformLine(in, out, v, z, field.width);
    for (int x = 0; x < field.width; ++x) {
      result.at(x, y) = std::sqrt(out[static_cast<std::size_t>(x)]);
    }
  }
  return result;
}

double noise(double x, double y) {
  const double fx = std::floor(x), fy = std::floor(y);
  const int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
  const auto ease = [](double t) { return t * t * t * (t * (t * 6 - 15) + 10); };
  const double tx = ease(x - fx), ty = ease(y - fy);
  const double dx = x - fx, dy = y - fy;
  const double top = std::lerp(gradient(ix, iy, dx, dy), gradient(ix + 1, iy, dx - 1, dy), tx);
  const double foot =
      std::lerp(gradient(ix, iy + 1, dx, dy - 1), gradient(ix + 1, iy + 1, dx - 1, dy - 1), tx);
  return 1.5 * std::lerp(top, foot, ty);
}

Field heights(const World& world, const Projection& projection, const Canvas& canvas) {
  Field ridges(canvas.width(), canvas.height()), plateaus(canvas.width(), canvas.height());
  for (const Upland& upland : world.uplands) {
    addUpland(upland.ridge ? ridges : plateaus, upland, projection);
  }
  for (Field* field : {&ridges, &plateaus}) {
    for (float& v : field->values) v = std::cbrt(v);
  }
  const int k = canvas.scale();
  Field result(canvas.pixelWidth(), canvas.pixelHeight());
  for (int py = 0; py < result.height; ++py) {
    for (int px = 0; px < result.width; ++px) {
      const double x = (px + 0.5) / k, y = (py + 0.5) / k;
      const double ridge = ridges.smooth(x - 0.5, y - 0.5);
      const double plateau = plateaus.smooth(x - 0.5, y - 0.5);
      const double wave = noise(x / 11, y / 11) * 0.6 + noise(x / 4.3, y / 4.3) * 0.4;
      double h = 90 + 60 * wave + plateau * (1 + 0.1 * wave);
      if (ridge > 20) {
        const double bend = noise(x / 17 + 40, y / 17) * 3.0;
        h += ridge * (0.3 + 1.05 * ridgedNoise((x + bend) / 10.5, (y - bend) / 10.5, 5));
      }
      result.at(px, py) = static_cast<float>(h);
    }
  }
  return result;
}

Field hillshade(const Field& heights, int scale) {
  Field result(heights.width, heights.height);
  const float perPixel = static_cast<float>(scale) / 1400.0F;
  for (int y = 0; y < heights.height; ++y) {
    for (int x = 0; x < heights.width; ++x) {
      const float dx = (heights.clamped(x + 1, y) - heights.clamped(x - 1, y)) * perPixel;
      const float dy = (heights.clamped(x, y + 1) - heights.clamped(x, y - 1)) * perPixel;
      const float flat = 0.7F;
      const float light =
          (flat + 0.5F * (dx + dy) * 1.0F) / std::sqrt(1 + dx * dx + dy * dy) - flat;
      result.at(x, y) = light;
    }
  }
  return result;
}

}  // namespace mappa
