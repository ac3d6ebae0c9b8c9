// The surroundings of a city as a picture map: relief and waters, with small drawings on them, so
// that every corner of the page looks different, a stamp that shows where in Europe it lies, and a
// pin. It bears no names, since the game asks for them.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <utility>

#include "dipingi/image.h"
#include "dipingi/parts.h"
#include "ornamenti.h"
#include "rilievo.h"
#include "stili.h"
#include "tavole.h"

namespace mappa {
namespace {

constexpr double kPixelsPerDegree = 88;  // 4.4 degrees from one side to the other, some 600 km
constexpr double kTile = 120;            // side of the tiles into which the puzzle cuts the page
constexpr double kTreeLine = 1700;       // metres
constexpr double kTooHigh = 2000;        // metres above which nothing stands

// A drawing among the shared parts: its factor, and where its foot lies in it.
struct Figure {
  const char* part;
  double scale;
  Point foot;
};

constexpr Figure kOnLand[] = {
    {"vedute/castello", 0.36, {}},
    {"monumenti/mulino", 0.25, {}},
    {"vedute/chiesa", 0.36, {}},
    {"vedute/pecora", 0.38, {0, -4}},
    {"mezzi/mongolfiera", 0.3, {50, 90}},
    {"vedute/covone", 0.36, {0, -8}},
    {"vedute/vigna", 0.4, {}},
    {"natura/casa", 0.52, {}},
    {"vedute/fattoria", 0.38, {}},
    {"vedute/girasoli", 0.36, {}},
    {"vedute/tenda", 0.36, {}},
    {"vedute/locomotiva", 0.34, {}},
};
constexpr Figure kAtSea[] = {
    {"vedute/veliero", 0.34, {0, -30}}, {"vedute/balena", 0.32, {0, -14}},
    {"mezzi/barca", 0.3, {55, 70}},     {"vedute/pesci", 0.32, {}},
    {"figure/stormo", 0.36, {60, 25}},  {"figure/gabbiano", 0.6, {}},
};
constexpr Figure kWaves{"vedute/onde", 0.34, {}};
constexpr Figure kFir{"natura/abete", 0.15, {}};
constexpr Figure kRoundTree{"natura/albero", 0.17, {}};
constexpr Figure kCypress{"natura/cipresso", 0.17, {}};

class CityPage {
 public:
  CityPage(const World& world, int square, int scale)
      : world_(world),
        city_(world.cities[static_cast<std::size_t>(square)]),
        // Two of the pictures are a little smaller than the others.
        page_(square == 67 ? 479 : 480, square == 72 ? 356 : 360, scale),
        pin_{page_.width() / 2.0, page_.height() / 2.0 + 8},
        projection_(city_.place, pin_, kPixelsPerDegree),
        outlines_(world, projection_),
        land_(outlines_.landMask(page_.width(), page_.height(), 1)),
        taken_(page_.width(), page_.height(), 1),
        heights_(coarseHeights()),
        random_(static_cast<unsigned>(square) + 1) {}

  Canvas draw(const std::filesystem::path& parts) {
    drawMap(page_, world_, projection_, landscapeStyle());
    reserve();
    placeStamp();
    placeRose();
    placeLargeFigures();
    placeSmallFigures();
    paintFigures(parts);
    paintStamp();
    drawRim(page_, kNavy);
    return std::move(page_);
  }

 private:
  struct Placed {
    Figure figure;
    Point at;
    bool onLand;
  };

  double draw01() { return static_cast<double>(random_()) / 4294967296.0; }

  Field coarseHeights() const {
    const Canvas small(page_.width() / kCoarse, page_.height() / kCoarse, 1);
    const EqualAreaProjection projection(city_.place, {pin_.x / kCoarse, pin_.y / kCoarse},
                                         kPixelsPerDegree / kCoarse);
    return heights(world_, projection, small);
  }

  double heightAt(Point p) const { return heights_.smooth(p.x / kCoarse, p.y / kCoarse); }

  // Keeps the lines of the map, the rim and the pin free of figures.
  void reserve() {
    cairo_t* cr = taken_.cr();
    outlines_.traceArcs(cr, ArcKind::coast);
    outlines_.traceArcs(cr, ArcKind::border);
    for (const River& river : world_.rivers) {
      cairo_new_sub_path(cr);
      tracePath(cr, project(projection_, river.course));
    }
    cairo_set_line_width(cr, 4);
    cairo_stroke(cr);
    for (const auto& lake : world_.lakes) {
      tracePath(cr, project(projection_, lake));
      cairo_close_path(cr);
      cairo_fill(cr);
    }
    take({0, 0, page_.width() * 1.0, 8});
    take({0, page_.height() - 8.0, page_.width() * 1.0, 8});
    take({0, 0, 8, page_.height() * 1.0});
    take({page_.width() - 8.0, 0, 8, page_.height() * 1.0});
    take({pin_.x - 22, pin_.y - 54, 44, 70});
  }

  void take(Box box) const {
    cairo_rectangle(taken_.cr(), box.x, box.y, box.width, box.height);
    cairo_fill(taken_.cr());
  }

  bool isLand(int x, int y) const { return land_.row(y)[x * 4 + 3] > 127; }

  double landShare(Box box) const {
    int land = 0, all = 0;
    for (int y = static_cast<int>(box.y); y < box.y + box.height; y += 2) {
      for (int x = static_cast<int>(box.x); x < box.x + box.width; x += 2, ++all) {
        land += isLand(x, y);
      }
    }
    return static_cast<double>(land) / all;
  }

  bool isFree(Point p, double radius, bool land) const {
    taken_.flush();
    const auto from = [&](double v) { return static_cast<int>(v - radius); };
    const auto to = [&](double v) { return static_cast<int>(v + radius); };
    if (from(p.x) < 0 || from(p.y) < 0 || to(p.x) >= page_.width() || to(p.y) >= page_.height()) {
      return false;
    }
    for (int y = from(p.y); y <= to(p.y); y += 2) {
      for (int x = from(p.x); x <= to(p.x); x += 2) {
        if (taken_.row(y)[x * 4 + 3] > 60 || isLand(x, y) != land) return false;
      }
    }
    return true;
  }

  // The figure's middle is at `at`; on land it stands with its foot below.
  void place(const Figure& figure, Point at, double radius, bool land) {
    placed_.push_back({figure, {at.x, land ? at.y + radius : at.y}, land});
    take({at.x - radius, at.y - radius, 2 * radius, 2 * radius});
  }

  // In the upper corner with less land.
  void placeStamp() {
    const Box left{16, 16, kStampWidth, kStampHeight};
    const Box right{page_.width() - 16.0 - kStampWidth, 16, kStampWidth, kStampHeight};
    stamp_ = landShare(right) < landShare(left) ? right : left;
    take({stamp_.x - 6, stamp_.y - 6, stamp_.width + 12, stamp_.height + 12});
  }

  // Somewhere at sea, if there is room.
  void placeRose() {
    constexpr double kRadius = 33;
    for (int attempt = 0; attempt < 400; ++attempt) {
      const Point at{draw01() * page_.width(), draw01() * page_.height()};
      if (!isFree(at, kRadius + 3, false)) continue;
      drawRhumbs(at);
      drawRose(
          page_, at, kRadius,
          {.dark = rgb(0x1d4f7a), .light = rgb(0xf6f2e2), .ring = rgb(0xf6f2e2), .alpha = 0.9});
      take({at.x - kRadius, at.y - kRadius, 2 * kRadius, 2 * kRadius});
      return;
    }
  }

  // The sailors' lines of old charts, from the rose over all waters.
  void drawRhumbs(Point from) const {
    constexpr double kStep = 2;
    cairo_t* cr = page_.cr();
    page_.setColour(rgb(0xf6f2e2), 0.45);
    cairo_set_line_width(cr, 0.7);
    for (int i = 0; i < 16; ++i) {
      const double dx = kStep * std::sin(i * std::numbers::pi / 8),
                   dy = kStep * std::cos(i * std::numbers::pi / 8);
      for (Point p = from; p.x >= 0 && p.y >= 0 && p.x < page_.width() && p.y < page_.height();
           p = {p.x + dx, p.y + dy}) {
        if (isLand(static_cast<int>(p.x), static_cast<int>(p.y))) continue;
        cairo_move_to(cr, p.x, p.y);
        cairo_line_to(cr, p.x + dx, p.y + dy);
      }
    }
    cairo_stroke(cr);
  }

  // One in each tile of the puzzle, as long as they last all different.
  void placeLargeFigures() {
    constexpr int kAttempts = 80;
    std::vector<Figure> land(std::begin(kOnLand), std::end(kOnLand)),
        sea(std::begin(kAtSea), std::end(kAtSea));
    for (auto* deck : {&land, &sea}) {
      for (std::size_t i = deck->size(); i > 1; --i) {
        std::swap((*deck)[i - 1], (*deck)[random_() % i]);
      }
    }
    std::size_t nextLand = 0, nextSea = 0;
    for (double y = 0; y < page_.height(); y += kTile) {
      for (double x = 0; x < page_.width(); x += kTile) {
        for (int attempt = 0; attempt < kAttempts; ++attempt) {
          // At first with some air around it.
          const double radius = attempt < kAttempts / 2 ? 19 : 15;
          const Point at{x + radius + draw01() * (kTile - 2 * radius),
                         y + radius + draw01() * (kTile - 2 * radius)};
          if (isFree(at, radius, false)) {
            place(sea[nextSea++ % sea.size()], at, radius, false);
          } else if (isFree(at, radius, true) && heightAt(at) < kTooHigh) {
            place(land[nextLand++ % land.size()], at, radius, true);
          } else {
            continue;
          }
          break;
        }
      }
    }
  }

  // Woods in patches, waves here and there.
  void placeSmallFigures() {
    constexpr double kCell = 13, kRadius = 5;
    for (double y = kCell; y < page_.height(); y += kCell) {
      for (double x = kCell; x < page_.width(); x += kCell) {
        const Point at{x + (draw01() - 0.5) * kCell * 0.8, y + (draw01() - 0.5) * kCell * 0.8};
        const double chance = draw01(), kind = draw01();
        if (isFree(at, kRadius + 4, false)) {
          if (chance < 0.2) place(kWaves, at, kRadius + 8, false);
        } else if (isFree(at, kRadius, true) && heightAt(at) < kTreeLine) {
          const double wood =
              noise(at.x / 55 + city_.place.lon * 9, at.y / 55 + city_.place.lat * 9);
          if (wood + 0.3 * chance > 0.25) {
            place(tree(heightAt(at), kind), at, kRadius, true);
          }
        }
      }
    }
  }

  const Figure& tree(double metres, double kind) const {
    // Firs in the north and on the mountains, cypresses in the south.
    const double cold = (city_.place.lat - 48) / 12 + metres / 1500;
    if (kind < cold) return kFir;
    return kind > 0.72 && city_.place.lat < 44.5 ? kCypress : kRoundTree;
  }

  void paintFigures(const std::filesystem::path& parts) {
    std::stable_sort(placed_.begin(), placed_.end(),
                     [](const Placed& a, const Placed& b) { return a.at.y < b.at.y; });
    placed_.push_back({{"vedute/spillo", 0.56, {}}, pin_, true});
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " +
                      std::to_string(page_.width()) + ' ' + std::to_string(page_.height()) + "\">";
    for (const Placed& p : placed_) {
      if (p.onLand) svg += shadow(p);
      svg += "<parte nome=\"" + std::string(p.figure.part) + "\" scala=\"" +
             std::to_string(p.figure.scale) + "\" x=\"" +
             std::to_string(p.at.x - p.figure.foot.x * p.figure.scale) + "\" y=\"" +
             std::to_string(p.at.y - p.figure.foot.y * p.figure.scale) + "\"/>";
    }
    svg += "</svg>";
    const std::string name = "The view of " + city_.name;
    const dipingi::Image image = dipingi::Render(dipingi::Parts(parts.string()).Expand(svg, name),
                                                 name, page_.pixelWidth(), page_.pixelHeight());
    const Canvas layer(page_.width(), page_.height(), page_.scale());
    layer.flush();
    for (int y = 0; y < image.height; ++y) {
      for (int x = 0; x < image.width; ++x) {
        const std::uint8_t* p = image.at(x, y);
        if (p[3] != 0) layer.put(x, y, {p[0] / 255.0, p[1] / 255.0, p[2] / 255.0}, p[3] / 255.0);
      }
    }
    layer.changed();
    page_.paint(layer, 0, 0);
  }

  static std::string shadow(const Placed& p) {
    const double r = 14 * std::sqrt(p.figure.scale);
    return "<ellipse fill=\"#22203a\" opacity=\".22\" cx=\"" + std::to_string(p.at.x + r * 0.3) +
           "\" cy=\"" + std::to_string(p.at.y) + "\" rx=\"" + std::to_string(r) + "\" ry=\"" +
           std::to_string(r * 0.3) + "\"/>";
  }

  void paintStamp() const {
    constexpr double kScale = 1.62;  // pixels per degree
    const Point middle{stamp_.width / 2, stamp_.height / 2};
    const EqualAreaProjection europe({15, 53}, middle, kScale);
    drawInset(page_, stamp_, world_, europe, stampStyle());
    const Point at = europe(city_.place);
    const double w = kScale / kPixelsPerDegree * page_.width(),
                 h = kScale / kPixelsPerDegree * page_.height();
    cairo_t* cr = page_.cr();
    cairo_rectangle(cr, stamp_.x + at.x - w / 2, stamp_.y + at.y - h / 2, w, h);
    page_.setColour(rgb(0xd8392b));
    cairo_fill_preserve(cr);
    page_.setColour(rgb(0xffffff));
    cairo_set_line_width(cr, 1.2);
    cairo_stroke(cr);
  }

  static constexpr int kCoarse = 4;
  static constexpr double kStampWidth = 94, kStampHeight = 74;

  const World& world_;
  const City& city_;
  Canvas page_;
  Point pin_;
  EqualAreaProjection projection_;
  Outlines outlines_;
  Canvas land_, taken_;
  Field heights_;
  std::mt19937 random_;
  Box stamp_;
  std::vector<Placed> placed_;
};

}  // namespace

Canvas cityPicture(const World& world, int square, const std::filesystem::path& parts, int scale) {
  return CityPage(world, square, scale).draw(parts);
}

}  // namespace mappa
