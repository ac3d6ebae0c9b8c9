#include "carta.h"

#include <algorithm>
#include <cmath>

#include "rilievo.h"

namespace mappa {
namespace {

class MapPainter {
 public:
  MapPainter(const Canvas& canvas, const World& world, const Projection& projection,
             const MapStyle& style)
      : canvas_(canvas),
        world_(world),
        projection_(projection),
        style_(style),
        outlines_(world, projection) {}

  void draw() {
    const Canvas mask = outlines_.landMask(canvas_.width(), canvas_.height(), canvas_.scale());
    paintSea(mask);
    drawGraticule();
    const Canvas land = landPicture(mask);
    canvas_.paint(land, 0, 0);
    drawRivers();
    drawLakes();
    strokeArcs(ArcKind::border, style_.border, 1.0, 0.85);
    strokeArcs(ArcKind::coast, style_.coast, 0.75, 0.9);
  }

 private:
  void paintSea(const Canvas& mask) const {
    Field sea(canvas_.pixelWidth(), canvas_.pixelHeight());
    for (int y = 0; y < sea.height; ++y) {
      for (int x = 0; x < sea.width; ++x) {
        sea.at(x, y) = mask.row(y)[x * 4 + 3] > 127 ? 0.0F : 1.0F;
      }
    }
    const Field distance = distanceToZero(sea);
    const int k = canvas_.scale();
    const Field open = softened(distance);
    canvas_.flush();
    for (int py = 0; py < sea.height; ++py) {
      for (int px = 0; px < sea.width; ++px) {
        if (mask.row(py)[px * 4 + 3] == 255) continue;  // the land will cover it
        const double x = double(px) / k, y = double(py) / k;
        const double near = double(distance.at(px, py)) / k;
        const double far = open.smooth(x - 0.5, y - 0.5);
        const double d = std::lerp(near, far, std::clamp((near - 3) / 12, 0.0, 1.0));
        // The further out, the freer the line of a band runs.
        const double wander = noise(x / 19, y / 19) * std::min(d * 0.3, 7.0);
        canvas_.put(px, py, seaColour(d + wander));
      }
    }
    canvas_.changed();
  }

  // The distance in logical pixels, without the creases half way between two shores.
  Field softened(const Field& distance) const {
    constexpr int kReach = 5;
    const int k = canvas_.scale();
    Field result(canvas_.width(), canvas_.height());
    for (int y = 0; y < result.height; ++y) {
      for (int x = 0; x < result.width; ++x) {
        result.at(x, y) = distance.at(x * k, y * k) / static_cast<float>(k);
      }
    }
    for (int pass = 0; pass < 3; ++pass) {
      for (const int alongX : {1, 0}) {
        const Field before = result;
        for (int y = 0; y < result.height; ++y) {
          for (int x = 0; x < result.width; ++x) {
            float sum = 0;
            for (int i = -kReach; i <= kReach; ++i) {
              sum += before.clamped(x + i * alongX, y + i * (1 - alongX));
            }
            result.at(x, y) = sum / (2 * kReach + 1);
          }
        }
      }
    }
    return result;
  }

  Colour seaColour(double distance) const {
    Colour colour = style_.sea.front().colour;
    for (std::size_t i = 1; i < style_.sea.size(); ++i) {
      const double edge = style_.sea[i - 1].end;
      const double t = std::clamp((distance - edge) / 1.6 + 0.5, 0.0, 1.0);
      colour = mix(colour, style_.sea[i].colour, t * t * (3 - 2 * t));
    }
    return colour;
  }

  void drawGraticule() const {
    cairo_t* cr = canvas_.cr();
    const auto line = [&](LonLat from, LonLat to) {
      tracePath(cr, project(projection_, {from, to}));
      cairo_stroke(cr);
    };
    cairo_set_line_width(cr, 0.6 * style_.lineWidth);
    canvas_.setColour(style_.graticule, style_.graticuleAlpha);
    const int step = style_.graticuleStep;
    for (int lon = -40; lon <= 70; lon += step) line({double(lon), 24}, {double(lon), 78});
    for (int lat = 25; lat <= 75; lat += step) line({-40, double(lat)}, {70, double(lat)});
  }

  // Tints of the countries, with a stronger band along the inside of each border.
  Canvas tintPicture() const {
    Canvas tints(canvas_.width(), canvas_.height(), canvas_.scale());
    cairo_t* cr = tints.cr();
    for (const Country& country : world_.countries) {
      const Colour colour = style_.tints[static_cast<std::size_t>(country.tint)];
      const double strength = country.tint == 0 ? style_.neutralStrength : style_.tintStrength;
      outlines_.traceCountry(cr, country);
      cairo_save(cr);
      cairo_clip(cr);
      cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
      tints.setColour(colour, strength);
      cairo_paint(cr);
      if (country.tint != 0 && style_.ribbon > 0) {
        cairo_set_operator(cr, CAIRO_OPERATOR_OVER);
        for (const double width : {11.0, 7.5, 4.0}) {
          tints.setColour(colour, style_.ribbon);
          cairo_set_line_width(cr, width);
          for (const Ring& ring : country.rings) {
            for (const ArcUse& use : ring) {
              if (world_.arcs[use.arc].kind != ArcKind::border) continue;
              cairo_new_sub_path(cr);
              tracePath(cr, outlines_.line(use.arc));
            }
          }
          cairo_stroke(cr);
        }
      }
      cairo_restore(cr);
    }
    tints.flush();
    return tints;
  }

  Colour landColour(double metres) const {
    const auto& steps = style_.land;
    for (std::size_t i = 1; i < steps.size(); ++i) {
      if (metres < steps[i].metres) {
        const double t = (metres - steps[i - 1].metres) / (steps[i].metres - steps[i - 1].metres);
        return mix(steps[i - 1].colour, steps[i].colour, std::clamp(t, 0.0, 1.0));
      }
    }
    return steps.back().colour;
  }

  Canvas landPicture(const Canvas& mask) const {
    const Canvas tints = tintPicture();
    const Field height = heights(world_, projection_, canvas_);
    const Field light = hillshade(height, canvas_.scale());
    Canvas land(canvas_.width(), canvas_.height(), canvas_.scale());
    land.flush();
    for (int y = 0; y < land.pixelHeight(); ++y) {
      for (int x = 0; x < land.pixelWidth(); ++x) {
        const double alpha = mask.row(y)[x * 4 + 3] / 255.0;
        if (alpha == 0) continue;
        Colour c = landColour(height.at(x, y));
        const std::uint8_t* tint = tints.row(y) + static_cast<std::ptrdiff_t>(x) * 4;
        const double kept =
            (1 - style_.tintFade * std::clamp((height.at(x, y) - 500) / 1600.0, 0.0, 1.0)) / 255;
        const double through = 1 - tint[3] * kept;
        c = {c.r * through + tint[2] * kept, c.g * through + tint[1] * kept,
             c.b * through + tint[0] * kept};
        const double shade = light.at(x, y) * style_.reliefStrength;
        // Shadows lean to blue and lights to yellow, as painted relief does.
        c = shade < 0 ? mix(c, {c.r * 0.34, c.g * 0.35, c.b * 0.45}, std::min(-shade * 1.5, 0.85))
                      : mix(c, rgb(0xfffaf0), std::min(shade * 1.6, 0.75));
        land.put(x, y, c, alpha);
      }
    }
    land.changed();
    return land;
  }

  void drawRivers() const {
    cairo_t* cr = canvas_.cr();
    canvas_.setColour(style_.water, 0.9);
    for (const River& river : world_.rivers) {
      if (river.weight > style_.smallestRiver) continue;
      const Line line = project(projection_, river.course);
      // Swells from the source to the mouth.
      const double widest = (1.75 - 0.35 * river.weight) * style_.lineWidth;
      const Line curve = rounded(line);
      for (std::size_t i = 1; i < curve.size(); ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(curve.size());
        cairo_set_line_width(cr, widest * (0.45 + 0.55 * std::sqrt(t)));
        cairo_move_to(cr, curve[i - 1].x, curve[i - 1].y);
        cairo_line_to(cr, curve[i].x, curve[i].y);
        cairo_stroke(cr);
      }
    }
  }

  // A curve through all the points, with the small windings of a river.
  static Line rounded(const Line& line) {
    constexpr int kSteps = 8;
    Line result;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
      const Point a = line[i > 0 ? i - 1 : 0], b = line[i], c = line[i + 1],
                  d = line[std::min(i + 2, line.size() - 1)];
      const double length = std::hypot(c.x - b.x, c.y - b.y);
      for (int s = 0; s < kSteps; ++s) {
        const double t = double(s) / kSteps;
        const auto spline = [t](double p0, double p1, double p2, double p3) {
          return p1 + 0.5 * t *
                          (p2 - p0 +
                           t * (2 * p0 - 5 * p1 + 4 * p2 - p3 + t * (3 * (p1 - p2) + p3 - p0)));
        };
        const double wind = std::min(length * 0.12, 1.6) * std::sin(t * 3.14159265);
        const Point p{spline(a.x, b.x, c.x, d.x), spline(a.y, b.y, c.y, d.y)};
        result.push_back({p.x + wind * noise(p.x / 3.1, p.y / 3.1 + 50),
                          p.y + wind * noise(p.x / 3.1 + 90, p.y / 3.1)});
      }
    }
    if (!line.empty()) result.push_back(line.back());
    return result;
  }

  void drawLakes() const {
    cairo_t* cr = canvas_.cr();
    for (const auto& lake : world_.lakes) {
      Line shore = project(projection_, lake);
      shore.push_back(shore.front());
      cairo_new_sub_path(cr);
      tracePath(cr, rounded(shore));
      cairo_close_path(cr);
      canvas_.setColour(style_.sea.front().colour);
      cairo_fill_preserve(cr);
      canvas_.setColour(style_.coast, 0.8);
      cairo_set_line_width(cr, 0.55 * style_.lineWidth);
      cairo_stroke(cr);
    }
  }

  void strokeArcs(ArcKind kind, Colour colour, double width, double alpha) const {
    cairo_t* cr = canvas_.cr();
    canvas_.setColour(colour, alpha);
    cairo_set_line_width(cr, width * style_.lineWidth);
    outlines_.traceArcs(cr, kind);
    cairo_stroke(cr);
  }

  const Canvas& canvas_;
  const World& world_;
  const Projection& projection_;
  const MapStyle& style_;
  const Outlines outlines_;
};

}  // namespace

Outlines::Outlines(const World& world, const Projection& projection) : world_(world) {
  for (const Arc& arc : world.arcs) lines_.push_back(project(projection, arc.points));
}

void Outlines::traceCountry(cairo_t* cr, const Country& country) const {
  cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
  for (const Ring& ring : country.rings) {
    cairo_new_sub_path(cr);
    for (const ArcUse& use : ring) {
      const Line& line = lines_[use.arc];
      if (use.reversed) {
        tracePath(cr, Line(line.rbegin(), line.rend()));
      } else {
        tracePath(cr, line);
      }
    }
    cairo_close_path(cr);
  }
}

void Outlines::traceArcs(cairo_t* cr, ArcKind kind) const {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (world_.arcs[i].kind != kind) continue;
    cairo_new_sub_path(cr);
    tracePath(cr, lines_[i]);
  }
}

Canvas Outlines::landMask(int width, int height, int scale) const {
  Canvas mask(width, height, scale);
  mask.setColour(rgb(0xffffff));
  // Added up, so that no seam shows where two countries share an edge pixel.
  cairo_set_operator(mask.cr(), CAIRO_OPERATOR_ADD);
  for (const Country& country : world_.countries) {
    traceCountry(mask.cr(), country);
    cairo_fill(mask.cr());
  }
  mask.flush();
  return mask;
}

void drawMap(const Canvas& canvas, const World& world, const Projection& projection,
             const MapStyle& style) {
  MapPainter(canvas, world, projection, style).draw();
}

}  // namespace mappa
