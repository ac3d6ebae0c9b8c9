#include "platform/drawing/picture.h"

#include <gtest/gtest.h>
#include <stb/stb_image_write.h>

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <fstream>

namespace platform {
namespace {

namespace fs = std::filesystem;

std::string Path(const std::string& name) { return testing::TempDir() + "girovia_" + name; }

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Read(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void Add(std::string& bytes, std::int64_t value, int count) {
  for (int i = 0; i < count; ++i, value >>= 8) bytes += static_cast<char>(value & 0xFF);
}

// Pixel (x, y) of the pictures that are written here.
std::uint32_t Sample(int x, int y) {
  return 0xFF000000 | static_cast<std::uint32_t>(x * 40 << 16 | y * 50 << 8 | (x * 7 + y * 11));
}

std::string Bitmap(int width, int height, int bits, bool topDown) {
  std::string s = "BM";
  Add(s, 0, 8);
  Add(s, 54, 4);
  Add(s, 40, 4);
  Add(s, width, 4);
  Add(s, topDown ? -height : height, 4);
  Add(s, 1, 2);
  Add(s, bits, 2);
  Add(s, 0, 24);
  for (int line = 0; line < height; ++line) {
    for (int x = 0; x < width; ++x) Add(s, Sample(x, topDown ? line : height - 1 - line), bits / 8);
    while (s.size() % 4 != 54 % 4) s += '\0';
  }
  return s;
}

std::shared_ptr<const Picture> Load(const std::string& path, int wantedError = 0) {
  int error = -1;
  auto picture = Picture::Load(path, error);
  EXPECT_EQ(error, wantedError) << path;
  EXPECT_EQ(picture == nullptr, wantedError != 0) << path;
  return picture;
}

TEST(Picture, ReadsBitmapsOfEveryWidth) {
  for (const int bits : {24, 32}) {
    for (int width = 1; width <= 6; ++width) {
      for (const bool topDown : {false, true}) {
        Write(Path("a.bmp"), Bitmap(width, 5, bits, topDown));
        const auto picture = Load(Path("a.bmp"));
        ASSERT_TRUE(picture);
        ASSERT_EQ(picture->pixelWidth(), width);
        ASSERT_EQ(picture->pixelHeight(), 5);
        EXPECT_FALSE(picture->hasTransparency());
        for (int y = 0; y < 5; ++y)
          for (int x = 0; x < width; ++x)
            ASSERT_EQ(picture->argb()[static_cast<std::size_t>(y * width + x)], Sample(x, y))
                << bits << " bits, width " << width << " at " << x << ", " << y;
      }
    }
  }
}

TEST(Picture, TellsWhyAFileIsNone) {
  Load(Path("not_there.png"), ENOENT);
  Load(testing::TempDir(), EISDIR);
  std::string large = Bitmap(1, 1, 24, false);
  large.replace(18, 4, std::string("\x01\x20\0\0", 4));  // 8193 pixels wide
  std::string wrong = Bitmap(3, 3, 24, false);
  wrong.replace(18, 8, std::string("\xFF\xFF\xFF\x7F\0\0\0\x80", 8));
  for (const std::string& bytes :
       {std::string(), std::string("BM"), std::string("no picture"),
        std::string("\x89PNG\r\n\x1A\n"), large + std::string(40000, 0), wrong}) {
    Write(Path("bad"), bytes);
    Load(Path("bad"), EILSEQ);
  }
}

TEST(Picture, RefusesFilesCutOffAnywhere) {
  std::vector<std::uint8_t> rgb;
  for (int i = 0; i < 40 * 30; ++i)
    for (const int v : {i, i * 3, i / 40 * 8}) rgb.push_back(static_cast<std::uint8_t>(v));
  ASSERT_TRUE(stbi_write_png(Path("whole.png").c_str(), 40, 30, 3, rgb.data(), 0));
  ASSERT_TRUE(stbi_write_jpg(Path("whole.jpg").c_str(), 40, 30, 3, rgb.data(), 80));
  Write(Path("whole.bmp"), Bitmap(40, 30, 24, false));
  Write(Path("whole32.bmp"), Bitmap(40, 30, 32, false));
  for (const char* name : {"whole.png", "whole.jpg", "whole.bmp", "whole32.bmp"}) {
    const std::string bytes = Read(Path(name));
    const auto picture = Load(Path(name));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixelWidth(), 40);
    // A PNG ends with twelve bytes that carry nothing.
    const std::size_t tail = std::string(name).ends_with("png") ? 12 : 0;
    for (std::size_t size = 0; size + tail < bytes.size(); size += 1 + bytes.size() / 150) {
      Write(Path("cut"), bytes.substr(0, size));
      Load(Path("cut"), EILSEQ);
    }
    // Changed bytes may or may not be noticed; they must do no harm.
    for (std::size_t at = 0; at < bytes.size(); at += 1 + bytes.size() / 90) {
      std::string changed = bytes;
      changed[at] = static_cast<char>(changed[at] ^ 0xA5);
      Write(Path("changed"), changed);
      int error = 0;
      Picture::Load(Path("changed"), error);
    }
  }
}

TEST(Picture, ComesBackFromItsFile) {
  Surface s(9, 7, 2, colors::kNavy);
  s.Line(0, 0, 8, 6, {3, colors::kYellow});
  ASSERT_TRUE(SavePng(s, Path("saved.png")));
  EXPECT_FALSE(SavePng(s, Path("no/such/folder.png")));
  EXPECT_FALSE(SavePng(s, "/dev/full"));
  const auto picture = Load(Path("saved.png"));
  ASSERT_TRUE(picture);
  const Surface back = picture->Fit(9, 7, 2);
  for (int y = 0; y < s.deviceHeight(); ++y)
    for (int x = 0; x < s.deviceWidth(); ++x) ASSERT_EQ(back.row(y)[x], s.row(y)[x]);
}

// A disc with a notch, at twice its logical size of 30 by 30: a picture on a transparent ground, or
// its mask, black on white.
std::shared_ptr<const Picture> Shape(std::uint32_t color) {
  std::vector<std::uint32_t> argb;
  for (int y = 0; y < 60; ++y)
    for (int x = 0; x < 60; ++x)
      argb.push_back(std::hypot(x - 29.5, y - 27.0) < 26 && !(x > 35 && std::abs(y - 20) < 7)
                         ? 0xFF000000 | (color ? color + static_cast<std::uint32_t>(x) : 0)
                         : (color ? 0 : 0xFFFFFFFF));
  return Picture::FromPixels(60, 60, std::move(argb));
}

TEST(Picture, AMaskAndItsSpriteKeepOneOutlineAtEveryScale) {
  const auto mask = Shape(0);
  const auto sprite = Shape(0x20C000);
  ASSERT_TRUE(mask && sprite && !mask->hasTransparency());
  for (int k = 1; k <= 4; ++k) {
    const Surface black = mask->Fit(30, 30, k, colors::kWhite, true);
    const Surface image = sprite->Fit(30, 30, k, colors::kWhite, true);
    Surface ground(40, 40, k, 0x336699);
    ground.BitBlt(4, 6, 30, 30, black, 0, 0, RasterOp::MergePaint);
    ground.BitBlt(4, 6, 30, 30, image, 0, 0, RasterOp::SrcAnd);
    int inside = 0;
    for (int y = 0; y < 30 * k; ++y) {
      for (int x = 0; x < 30 * k; ++x) {
        const std::uint32_t shown = ground.row(y + 6 * k)[x + 4 * k];
        const std::uint32_t outline = black.row(y)[x];
        ASSERT_TRUE(outline == 0 || outline == 0xFFFFFF);
        inside += outline == 0;
        // Nothing in between: no fringe of either colour. Blue counts the columns of the sprite.
        if (outline != 0) {
          ASSERT_EQ(shown, 0x996633u) << x << ", " << y << " at scale " << k;
        } else {
          ASSERT_TRUE((shown >> 8) == 0x20C0 && std::abs(int(shown & 0xFF) - 2 * x / k) <= 3)
              << std::hex << shown << " at scale " << k;
        }
      }
    }
    EXPECT_NEAR(double(inside) / (k * k), 477, 12) << k;
  }
}

TEST(Picture, BlendsWhatIsHalfTransparent) {
  const auto glass = Picture::FromPixels(2, 2, {0x80FF0000, 0x00FFFFFF, 0xFF00FF00, 0x80FF0000});
  ASSERT_TRUE(glass);
  const Surface fitted = glass->Fit(2, 2, 1, colors::kBlue);
  EXPECT_NEAR(fitted.row(0)[0] >> 16, 0x80, 1);
  EXPECT_NEAR(fitted.row(0)[0] & 0xFF, 0x7F, 1);
  EXPECT_EQ(fitted.row(0)[1], 0x0000FFu);
  EXPECT_EQ(fitted.row(1)[0], 0x00FF00u);
  Surface s(8, 8, 1, colors::kBlue);
  s.SetOrigin({3, 2});
  s.SetClip({0, 0, 8, 4});
  glass->Draw(s, {1, 1, 2, 2});
  EXPECT_EQ(s.row(3)[4], fitted.row(0)[0]);
  EXPECT_EQ(s.PixelAt(5, 3), colors::kBlue);
  EXPECT_EQ(s.PixelAt(4, 4), colors::kBlue);  // beyond the clip
  // In other sizes, again after one and another.
  for (const double size : {6.0, 1.0, 6.0}) {
    s.SetClip(s.deviceBounds());
    s.Cls(colors::kBlue);
    glass->Draw(s, {-3, -2, size, size});
    EXPECT_EQ(s.PixelAt(0, size - 1), size > 1 ? colors::kGreen : s.PixelAt(0, 0));
    EXPECT_NE(s.PixelAt(0, 0), colors::kBlue);
    EXPECT_EQ(s.PixelAt(size, 0), colors::kBlue);
    EXPECT_EQ(s.PixelAt(0, size), colors::kBlue);
  }
  EXPECT_FALSE(Picture::FromPixels(2, 2, {1, 2, 3}));
  EXPECT_EQ(glass->Fit(0, 5, 1).deviceWidth(), 0);
}

TEST(Picture, ReducesByAverageAndGrowsSmoothly) {
  std::vector<std::uint32_t> argb;
  for (int i = 0; i < 64; ++i) argb.push_back(i % 2 ? 0xFFFFFFFF : 0xFF000000);
  const auto stripes = Picture::FromPixels(8, 8, argb);
  ASSERT_TRUE(stripes);
  EXPECT_NEAR(stripes->Fit(4, 4, 1).PixelAt(2, 2) & 0xFF, 0x80, 1);
  const Surface large = stripes->Fit(8, 8, 4);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(large.row(y)[x], large.row(0)[x]);
  EXPECT_LT(large.PixelAt(2, 0) & 0xFF, 0x40u);
  EXPECT_GT(large.PixelAt(3, 0) & 0xFF, 0xC0u);
}

}  // namespace
}  // namespace platform
