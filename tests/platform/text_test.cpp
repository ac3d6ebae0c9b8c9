#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

#include "platform/drawing/surface.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

const char* const kFamilies[] = {"Verdana", "MS Sans Serif", "Times New Roman", "Courier New", "?"};

// The device pixels that differ from white.
DeviceRect Inked(const Surface& s) {
  DeviceRect r;
  for (int y = 0; y < s.deviceHeight(); ++y)
    for (int x = 0; x < s.deviceWidth(); ++x)
      if (s.row(y)[x] != 0xFFFFFF) r = Union(r, {x, y, x + 1, y + 1});
  return r;
}

class Text : public testing::Test {
 protected:
  void SetUp() override { SetFontFolder(FONT_FOLDER); }
  void TearDown() override { SetFontFolder(FONT_FOLDER); }
};

TEST_F(Text, MeasuresDoNotDependOnTheScale) {
  for (const char* family : kFamilies) {
    for (const double points : {8.25, 9.75, 12.0, 15.75, 36.0}) {
      const Font font{family, points, points == 12.0};
      const double width = TextWidth(font, "Hamburg, città è giù");
      EXPECT_NEAR(TextWidth({family, points * 2, font.bold}, "Hamburg, città è giù"), width * 2,
                  1e-6);
      const double em = points * 96 / 72;
      EXPECT_NEAR(LineHeight(font), em * 1.14, em * 0.04 + 0.5) << family << points;
      for (int k = 1; k <= 4; ++k) {
        Surface s(700, 70, k);
        s.TextOut(10, 5, "Hamburg, città è giù", font, 0);
        const DeviceRect ink = Inked(s);
        // The side bearings of H and of the accented u are a tenth of the em at most.
        EXPECT_NEAR(double(ink.left) / k, 10, em / 10 + 1);
        EXPECT_NEAR(double(ink.right) / k, 10 + width, em / 10 + 1);
        EXPECT_GE(ink.top, 5 * k);
        EXPECT_LE(ink.bottom, (5 + LineHeight(font)) * k + 2) << family << points;
        // H and the other capitals stand on the baseline.
        Surface capital(60, 70, k);
        capital.TextOut(1, 5, "H", font, 0);
        EXPECT_EQ(Inked(capital).bottom, std::lround((5 + Ascent(font)) * k));
      }
    }
  }
}

TEST_F(Text, IsBrokenIntoLinesThatFit) {
  const Font mono{"Courier New", 12};
  const double w = TextWidth(mono, "m");
  const double h = LineHeight(mono);
  struct Case {
    const char* text;
    double columns;
    int lines;
    double widest;  // in columns
  };
  for (const Case& c :
       {Case{"", 5, 1, 0}, Case{"uno due tre", 99, 1, 11}, Case{"uno due tre", 11, 1, 11},
        Case{"uno due tre", 10.9, 2, 7}, Case{"uno due tre", 3, 3, 3},
        Case{"uno  due", 3, 2, 3},                               // both blanks go with the break
        Case{"uno  due", 8, 1, 8},                               // and both stay without one
        Case{"unoduetre", 4, 3, 4},                              // broken inside
        Case{"a unoduetre", 4, 4, 4}, Case{"uno    ", 4, 1, 3},  // blanks at the end hang out
        Case{"uno    ", 9, 1, 7}, Case{"uno\ndue\r\n", 9, 3, 3}, Case{"\n\n", 9, 3, 0},
        Case{"perché così", 6, 2, 6},  // letters count, not bytes
        Case{"abc", 0, 3, 1}, Case{"  abc", 4, 2, 3}}) {
    const TextStyle style{mono, 0, Align::Left, true};
    const TextSize size = MeasureText(c.text, style, c.columns * w);
    EXPECT_EQ(size.height, c.lines * h) << '"' << c.text << "\" in " << c.columns;
    EXPECT_EQ(size.width, std::ceil(c.widest * w - 1e-6)) << '"' << c.text << '"';
    // What was measured fits as it was measured.
    if (c.columns >= 1) {
      EXPECT_EQ(MeasureText(c.text, style, size.width).height, c.lines * h) << c.text;
    }
  }
  EXPECT_EQ(MeasureText("uno due tre", {mono}, 3).height, h);
}

TEST_F(Text, IsAlignedInItsBox) {
  for (int k = 1; k <= 2; ++k) {
    for (const Align align : {Align::Left, Align::Center, Align::Right}) {
      Surface s(120, 40, k);
      const Font font{"Verdana", 9.75};
      s.DrawText({10, 4, 100, 30}, "HH\nH", {font, 0, align, false});
      const DeviceRect ink = Inked(s);
      const double slack = 100 - TextWidth(font, "HH");
      const double left = align == Align::Left ? 0 : align == Align::Right ? slack : slack / 2;
      EXPECT_NEAR(double(ink.left) / k, 10 + left, 2.5);
      EXPECT_NEAR(double(ink.right) / k, 110 - slack + left, 2.5);
    }
  }
}

TEST_F(Text, TheUnderlineRunsOnUnderBlanks) {
  Surface s(216, 40, 1);
  const Font font{"Verdana", 18, false, true};
  s.TextOut(3, 5, " Oslo" + std::string(27, ' '), font, 0);
  const DeviceRect ink = Inked(s);
  EXPECT_EQ(ink.left, 3);
  EXPECT_EQ(ink.right, 216);
  EXPECT_LE(ink.bottom, 5 + LineHeight(font));
  EXPECT_EQ(s.PixelAt(200, ink.bottom - 1), 0u);
  EXPECT_EQ(s.PixelAt(200, ink.bottom - 3), colors::kWhite);
}

TEST_F(Text, NeverLeavesItsBox) {
  std::mt19937 random(11);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  // Letters of several scripts and lengths, whole and cut apart, and bytes that are none.
  const std::string soup =
      "ag \n\r\tè€\xCC\x81\xC3\xFF\x80W \xE2\x82\xF0\x9F\x98\x80j\x01שלום"
      "中fi\xED\xA0\x80\xF4\x90\x80\x80Å\x7F";
  for (int round = 0; round < 1500; ++round) {
    std::string text;
    for (int i = below(25); i > 0; --i)
      text += round % 3 ? soup.substr(below(int(soup.size())), 1 + below(4))
                        : std::string(1, char(below(256)));
    const TextStyle style{{kFamilies[below(5)], 4.0 + below(30), below(2) == 0, below(2) == 0},
                          0,
                          Align(below(3)),
                          below(3) > 0};
    const Rect box{below(40) / 2.0, below(40) / 2.0, below(60) / 2.0, below(60) / 2.0};
    const int k = 1 + below(2);
    Surface s(50, 50, k);
    s.DrawText(box, text, style);
    const DeviceRect ink = Inked(s);
    ASSERT_EQ(Intersect(ink, ToDevice(box, k)), ink) << "round " << round;
    const TextSize size = MeasureText(text, style, box.width);
    ASSERT_TRUE(std::isfinite(size.width) && size.height >= LineHeight(style.font));
  }
}

TEST_F(Text, BytesThatAreNoTextCountAsReplacementCharacters) {
  const Font font{"Verdana", 12};
  const double replacement = TextWidth(font, "\xEF\xBF\xBD");
  EXPECT_GT(replacement, 0);
  EXPECT_DOUBLE_EQ(TextWidth(font, "\xFF"), replacement);
  EXPECT_DOUBLE_EQ(TextWidth(font, "\xE2\x82"), 2 * replacement);
  EXPECT_DOUBLE_EQ(TextWidth(font, "a\xC3z"), TextWidth(font, "az") + replacement);
  EXPECT_EQ(TextWidth(font, std::string("\0\x01\x1F\x7F", 4)), 0);
  EXPECT_EQ(TextWidth(font, "ab\nabc\r\na"), TextWidth(font, "abc"));
  // No face has this one; a box stands for it.
  Surface s(40, 40, 1);
  s.TextOut(5, 5, "\xE4\xB8\xAD", font, 0);
  EXPECT_FALSE(Inked(s).empty());
  // The serif face lacks this one and DejaVu Sans has it.
  EXPECT_DOUBLE_EQ(TextWidth({"Times New Roman", 12}, "\xE2\x99\x9E"),
                   TextWidth({"Verdana", 12}, "\xE2\x99\x9E"));
}

TEST_F(Text, DoesWithoutFontFiles) {
  const fs::path folder = fs::path(testing::TempDir()) / "girovia_fonts";
  fs::remove_all(folder);
  fs::create_directories(folder);
  SetFontFolder(folder.string());
  const Font serif{"Times New Roman", 12};
  EXPECT_EQ(TextWidth(serif, "abc"), 0);
  EXPECT_GT(LineHeight(serif), 0);
  Surface s(40, 40, 1);
  s.TextOut(5, 5, "abc", serif, 0);
  EXPECT_TRUE(Inked(s).empty());
  for (const char* name : {"DejaVuSans.ttf", "LiberationMono-Bold.ttf"})
    EXPECT_NE(MissingFonts().find((folder / name).string()), std::string::npos) << MissingFonts();

  SetFontFolder(FONT_FOLDER);
  EXPECT_EQ(MissingFonts(), "");
  const double sans = TextWidth({"MS Sans Serif", 12}, "abc");
  const double wide = TextWidth({"Verdana", 12}, "abc");
  ASSERT_NE(sans, wide);
  // A damaged file is not used: cut off, or one byte changed anywhere in the outlines.
  std::ifstream in(fs::path(FONT_FOLDER) / "LiberationSans-Regular.ttf", std::ios::binary);
  const std::string good(std::istreambuf_iterator<char>(in), {});
  fs::copy(fs::path(FONT_FOLDER) / "DejaVuSans.ttf", folder);
  std::string changed = good;
  changed[changed.size() / 2] ^= 0x40;
  for (const std::string& bytes :
       {good.substr(0, good.size() / 2), good.substr(0, 9), std::string("no font"), changed}) {
    std::ofstream(folder / "LiberationSans-Regular.ttf", std::ios::binary) << bytes;
    SetFontFolder(folder.string());
    EXPECT_EQ(TextWidth({"MS Sans Serif", 12}, "abc"), wide);
    EXPECT_NE(MissingFonts().find("LiberationSans-Regular.ttf"), std::string::npos);
  }
  std::ofstream(folder / "LiberationSans-Regular.ttf", std::ios::binary) << good;
  SetFontFolder(folder.string());
  EXPECT_EQ(TextWidth({"MS Sans Serif", 12}, "abc"), sans);
  fs::remove_all(folder);
}

}  // namespace
}  // namespace platform
