#include "platform/drawing/surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>

namespace platform {
namespace {

// One letter for each pixel of a surface at scale 1.
std::string Letters(const Surface& s, const std::string& letters,
                    const std::vector<Color>& colors) {
  std::string text;
  for (int y = 0; y < s.height(); ++y, text += '\n') {
    for (int x = 0; x < s.width(); ++x) {
      char letter = '?';
      for (std::size_t i = 0; i < colors.size(); ++i)
        if (s.PixelAt(x, y) == colors[i]) letter = letters[i];
      text += letter;
    }
  }
  return text;
}

std::string Marks(const Surface& s) { return Letters(s, ".#", {colors::kWhite, colors::kBlack}); }

// How many pixels of black a white surface carries, in logical pixels.
double Ink(const Surface& s) {
  double ink = 0;
  for (int y = 0; y < s.deviceHeight(); ++y)
    for (int x = 0; x < s.deviceWidth(); ++x) ink += 1 - (s.row(y)[x] & 0xFF) / 255.0;
  return ink / (s.scale() * s.scale());
}

const std::vector<Point> kStar = {{32, 0},  {38, 20}, {60, 12}, {46, 30}, {62, 44}, {40, 42},
                                  {32, 62}, {24, 42}, {2, 44},  {18, 30}, {4, 12},  {26, 20}};

TEST(BitBlt, AgreesWithThePlainDefinitionEverywhere) {
  std::mt19937 random(7);
  const auto upTo = [&](int low, int high) {
    return static_cast<int>(random() % static_cast<unsigned>(high - low + 1)) + low;
  };
  const RasterOp ops[] = {RasterOp::SrcCopy, RasterOp::SrcAnd, RasterOp::MergePaint};
  for (int round = 0; round < 3000; ++round) {
    const int k = upTo(1, 2);
    Surface to(7, 6, k);
    Surface from(5, 4, k);
    for (Surface* s : {&to, &from})
      for (int y = 0; y < s->deviceHeight(); ++y)
        for (int x = 0; x < s->deviceWidth(); ++x) s->row(y)[x] = random() & 0xFFFFFF;
    to.SetClip({upTo(-2, 5), upTo(-2, 5), upTo(3, 16), upTo(3, 14)});
    to.SetOrigin({double(upTo(-2, 2)), double(upTo(-2, 2))});
    const int x = upTo(-6, 8), y = upTo(-6, 8), w = upTo(-1, 9), h = upTo(-1, 9);
    const int sx = upTo(-3, 6), sy = upTo(-3, 6);
    const RasterOp op = ops[upTo(0, 2)];
    const bool itself = round % 5 == 0;
    const Surface before = to;
    const Surface& source = itself ? before : from;
    Surface wanted = to;
    for (int line = 0; line < to.deviceHeight(); ++line) {
      for (int column = 0; column < to.deviceWidth(); ++column) {
        const int dx = column - (x + int(to.origin().x)) * k;
        const int dy = line - (y + int(to.origin().y)) * k;
        const int px = dx + sx * k, py = dy + sy * k;
        const DeviceRect c = to.clip();
        if (dx < 0 || dy < 0 || dx >= w * k || dy >= h * k || px < 0 || py < 0 ||
            px >= source.deviceWidth() || py >= source.deviceHeight() || column < c.left ||
            column >= c.right || line < c.top || line >= c.bottom)
          continue;
        const std::uint32_t s = source.row(py)[px];
        std::uint32_t& d = wanted.row(line)[column];
        d = op == RasterOp::SrcCopy ? s : op == RasterOp::SrcAnd ? s & d : (~s | d) & 0xFFFFFF;
      }
    }
    to.BitBlt(x, y, w, h, itself ? to : from, sx, sy, op);
    for (int line = 0; line < to.deviceHeight(); ++line)
      for (int column = 0; column < to.deviceWidth(); ++column)
        ASSERT_EQ(to.row(line)[column], wanted.row(line)[column])
            << "round " << round << " at " << column << ", " << line;
  }
  Surface other(5, 5, 2, colors::kBlack);
  Surface plain(5, 5, 1);
  plain.BitBlt(0, 0, 5, 5, other, 0, 0, RasterOp::SrcCopy);
  EXPECT_EQ(plain.PixelAt(2, 2), colors::kWhite);
}

TEST(Boxes, CoverTheirPixelsExactly) {
  Surface s(9, 6, 1);
  s.Box(1, 1, 7, 4, {1});
  s.FillBox(4, 3, 3, 2, colors::kBlack);
  EXPECT_EQ(Marks(s),
            ".........\n"
            ".#######.\n"
            ".#.##..#.\n"
            ".#.##..#.\n"
            ".#######.\n"
            ".........\n");
  s.Cls(colors::kWhite);
  s.Box(6, 4, 2, 1, {2});
  EXPECT_EQ(Marks(s),
            ".######..\n"
            ".######..\n"
            ".##..##..\n"
            ".######..\n"
            ".######..\n"
            ".........\n");
  s.Cls(colors::kWhite);
  s.Box(9, 0, 0, 0, {3});
  s.Line(3, 4, 6, 4, {1});
  s.Line(8, 5, 8, 3, {1});
  EXPECT_EQ(Marks(s),
            "#########\n"
            "#########\n"
            ".........\n"
            "........#\n"
            "...####.#\n"
            "........#\n");
  // As the dialogs draw their bevels: wide pens over the edges, boxes beyond them.
  s.Cls(colors::kWhite);
  s.Box(0, 0, 3, 3, {3});
  s.FillBox(7, 5, 12, 9, colors::kBlack);
  EXPECT_EQ(Marks(s),
            "#####....\n"
            "#####....\n"
            "#####....\n"
            "#####....\n"
            "#####....\n"
            ".......##\n");
}

TEST(Boxes, KeepOnlyTheBitsOfTheColour) {
  Surface s(4, 1, 1, 0x8899AA);
  s.FillBoxAnd(1, 0, 2, 0, 0xFF0000);
  EXPECT_EQ(Letters(s, "ab", {0x8899AA, 0x880000}), "abba\n");
}

TEST(Lines, WidePensCoverWholeRowsAtEveryScale) {
  struct Case {
    double width, y;
    int first, last;  // rows
  };
  for (const Case& c : {Case{62, 200, 169, 230}, Case{180, 120, 30, 209}, Case{5, 50, 48, 52},
                        Case{1, 10, 10, 10}, Case{6, 90, 87, 92}}) {
    for (int k = 1; k <= 3; ++k) {
      Surface s(20, 240, k);
      s.Line(0, c.y, 19, c.y, {c.width});
      for (int y = 0; y < s.deviceHeight(); ++y)
        EXPECT_EQ(s.row(y)[10 * k], y / k >= c.first && y / k <= c.last ? 0u : 0xFFFFFFu)
            << c.width << " row " << y << " scale " << k;
    }
  }
}

TEST(Shapes, CoverTheirArea) {
  const double pi = std::numbers::pi;
  for (int k = 1; k <= 3; ++k) {
    const auto area = [k](const auto& draw) {
      Surface s(64, 64, k);
      draw(s);
      return Ink(s);
    };
    EXPECT_NEAR(area([](Surface& s) { s.Line(10, 12, 50, 42, {6}); }), 50 * 6 + pi * 9, 1.5);
    EXPECT_NEAR(area([](Surface& s) { s.FillOval({7, 5, 50, 40}, 0); }), pi * 25 * 20, 4);
    EXPECT_NEAR(area([](Surface& s) { s.Oval({7, 5, 50, 50}, {4}); }), pi * (625 - 441), 3);
    EXPECT_NEAR(area([](Surface& s) {
                  s.FillRoundRect({2, 3, 60, 50}, 30, 30, 0);
                }),
                60 * 50 - (4 - pi) * 225, 2);
    EXPECT_NEAR(area([](Surface& s) {
                  s.RoundRect({8, 8, 48, 48}, 30, 30, {8});
                }),
                (56 * 56 - (4 - pi) * 19 * 19) - (40 * 40 - (4 - pi) * 11 * 11), 3);
    // A line that turns back on itself covers nothing twice, and a closed one is no fuller.
    const double there = area([](Surface& s) { s.Line(10, 12, 50, 42, {6}); });
    EXPECT_EQ(area([](Surface& s) {
                s.Polyline({{10, 12}, {50, 42}, {10, 12}}, true, {6});
              }),
              there);
    double star = 0;
    for (std::size_t i = 0; i < kStar.size(); ++i) {
      const Point& a = kStar[i];
      const Point& b = kStar[(i + 1) % kStar.size()];
      star += (a.x * b.y - b.x * a.y) / 2;
    }
    EXPECT_NEAR(area([](Surface& s) { s.FillPolygon(kStar, 0); }), star, 1.5);
  }
}

TEST(Shapes, StayInsideTheClipAndFollowTheOrigin) {
  const auto drawAll = [](Surface& s) {
    s.Line(-5, 3, 70, 50, {7});
    s.Polyline(kStar, true, {5});
    s.FillPolygon(kStar, colors::kRed);
    s.RoundRect({-3, -3, 60, 60}, 20, 20, {9});
    s.FillOval({20, 20, 80, 10}, colors::kNavy);
    s.Box(-2, 30, 90, 40, {3});
    s.TextOut(0, 20, "girovia", {}, colors::kGreen);
  };
  Surface whole(64, 64, 2);
  drawAll(whole);
  Surface part(64, 64, 2);
  part.SetClip({31, 17, 90, 77});
  drawAll(part);
  Surface moved(80, 80, 2);
  moved.SetOrigin({16, 16});
  drawAll(moved);
  const DeviceRect& c = part.clip();
  for (int y = 0; y < 128; ++y) {
    for (int x = 0; x < 128; ++x) {
      const bool inside = x >= c.left && x < c.right && y >= c.top && y < c.bottom;
      ASSERT_EQ(part.row(y)[x], inside ? whole.row(y)[x] : 0xFFFFFF) << x << ", " << y;
      ASSERT_EQ(moved.row(y + 32)[x + 32], whole.row(y)[x]) << x << ", " << y;
    }
  }
}

TEST(Shapes, TakeAnyCoordinate) {
  Surface s(20, 20, 2);
  const Surface source(4, 4, 2, colors::kBlack);
  const double infinite = std::numeric_limits<double>::infinity();
  const double wild[] = {-2147483648.0, 2147483647.0, -1e300, 1e300, 32767, 0, 7.25, infinite};
  for (const double a : wild) {
    for (const double b : wild) {
      s.SetOrigin({std::isinf(a) ? 0 : b / 2, 1});
      s.Line(a, b, b, a, {std::abs(a)});
      s.Box(a, a, b, b, {3});
      s.FillBoxAnd(a, b, b, a, colors::kRed);
      s.Polyline({{a, b}, {b, b}, {b, a}}, true, {9});
      s.RoundRect({a, b, b, a}, a, b, {5});
      s.Oval({a, a, b, b}, {2});
      s.FillPolygon({{a, b}, {3, 4}, {b, a}}, 0);
      s.BitBlt(a, b, b, a, source, b, a, RasterOp::SrcCopy);
      s.StretchBlt({a, b, b, a}, source, {b, a, a, b});
      s.DrawText({a, b, b, a}, "uno due", {{}, 0, Align::Center, true});
      s.TextOut(a, b, "uno", {"Verdana", std::abs(b)}, 0);
      s.SetClip({int(std::clamp(a, -2e9, 2e9)), -5, int(std::clamp(b, -2e9, 2e9)), 90});
      EXPECT_LE(s.clip().right, 40);
    }
  }
  Surface none(0, 7, 3);
  none.FillBox(0, 0, 9, 9, 0);
  none.TextOut(0, 0, "x", {}, 0);
  EXPECT_EQ(none.deviceHeight(), 0);
  EXPECT_EQ(none.PixelAt(0, 0), 0u);
}

TEST(StretchBlt, AveragesAndKeepsEdges) {
  Surface from(4, 2, 1);
  for (int x = 0; x < 4; ++x) from.FillBox(x, 0, x, 1, 0x101010u * static_cast<unsigned>(x * 4));
  Surface to(6, 3, 1, colors::kRed);
  to.StretchBlt({1, 1, 2, 1}, from, {0, 0, 4, 2});
  EXPECT_EQ(Letters(to, "rab", {colors::kRed, 0x202020, 0xA0A0A0}), "rrrrrr\nrabrrr\nrrrrrr\n");
  // Growing: the ends keep their colour, and nothing lies beyond the destination.
  Surface wide(12, 4, 2, colors::kRed);
  wide.StretchBlt({2, 1, 8, 2}, from, {0, 0, 4, 2});
  EXPECT_EQ(wide.PixelAt(1, 1), colors::kRed);
  EXPECT_EQ(wide.PixelAt(2, 1), 0u);
  EXPECT_NEAR(wide.PixelAt(9, 2) & 0xFF, 0xC0, 6);
  EXPECT_EQ(wide.PixelAt(10, 2), colors::kRed);
  // The half of the source that does not exist leaves its half of the destination alone.
  Surface half(8, 1, 1, colors::kRed);
  half.StretchBlt({0, 0, 8, 1}, from, {-4, 0, 8, 2});
  EXPECT_EQ(half.PixelAt(3, 0), colors::kRed);
  EXPECT_EQ(half.PixelAt(4, 0), 0u);
}

TEST(Mask, ShapesWhatIsPutThroughIt) {
  for (int k = 1; k <= 2; ++k) {
    const Mask mask = Mask::RoundRect(40, 30, k, {-2, -2, 37, 27}, 20, 20);
    EXPECT_TRUE(mask.Contains(0, 12));
    EXPECT_TRUE(mask.Contains(34.5, 12));
    EXPECT_FALSE(mask.Contains(35, 12));
    EXPECT_FALSE(mask.Contains(34, 24));
    EXPECT_FALSE(mask.Contains(-1, 12));
    Surface below(50, 50, k, colors::kBlue);
    below.SetClip({0, 0, 30 * k, 50 * k});
    const Surface above(40, 30, k, colors::kRed);
    CompositeMasked(below, 3 * k, 4 * k, above, mask, {-5, 10 * k, 99, 99});
    EXPECT_EQ(below.PixelAt(3, 13), colors::kBlue);  // above the area
    EXPECT_EQ(below.PixelAt(2, 14), colors::kBlue);  // area begins left of the source
    EXPECT_EQ(below.PixelAt(8, 4), colors::kRed);
    EXPECT_EQ(below.PixelAt(29, 10), colors::kRed);
    EXPECT_EQ(below.PixelAt(30, 10), colors::kBlue);  // beyond the clip
  }
  const Mask star = Mask::Polygon(64, 64, 1, kStar);
  EXPECT_TRUE(star.Contains(32, 30));
  EXPECT_FALSE(star.Contains(10, 30));
}

TEST(ToDevice, RectanglesThatMeetStillMeet) {
  for (int k = 1; k <= 3; ++k) {
    for (double x = -3; x < 3; x += 0.25) {
      const DeviceRect a = ToDevice({x - 4, 0, 4, 1}, k);
      const DeviceRect b = ToDevice({x, 0, 5, 1}, k);
      EXPECT_EQ(a.right, b.left);
      EXPECT_EQ(b.width(), 5 * k);
    }
  }
}

}  // namespace
}  // namespace platform
