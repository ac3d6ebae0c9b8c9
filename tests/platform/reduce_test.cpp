#include "platform/drawing/reduce.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace platform {
namespace {

struct Sizes {
  int sourceWidth, sourceHeight, targetWidth, targetHeight;
};

const Sizes kSizes[] = {{40, 30, 36, 27}, {40, 30, 20, 15}, {40, 30, 40, 30}, {41, 29, 17, 29},
                        {60, 50, 7, 3},   {13, 9, 1, 1},    {1, 1, 1, 1},     {50, 37, 49, 36}};

std::vector<std::uint32_t> Noise(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(count));
  for (std::uint32_t& p : pixels) p = random() & 0xFFFFFF;
  return pixels;
}

// The target as a whole.
std::vector<std::uint32_t> Whole(const Sizes& s, const std::vector<std::uint32_t>& source) {
  std::vector<std::uint32_t> target(static_cast<std::size_t>(s.targetWidth * s.targetHeight));
  Reducer(s.sourceWidth, s.sourceHeight, s.targetWidth, s.targetHeight)
      .Run(source.data(), s.sourceWidth, target.data(), s.targetWidth,
           {0, 0, s.targetWidth, s.targetHeight});
  return target;
}

// How much of source pixel i lies in target pixel x.
double Share(int i, int x, double step) {
  return std::max(0.0, std::min(i + 1.0, (x + 1) * step) - std::max(i + 0.0, x * step));
}

TEST(Reducer, AveragesTheAreaOfEachPixel) {
  for (const Sizes& s : kSizes) {
    const auto source = Noise(s.sourceWidth * s.sourceHeight, 3);
    const auto target = Whole(s, source);
    const double across = double(s.sourceWidth) / s.targetWidth;
    const double down = double(s.sourceHeight) / s.targetHeight;
    double bias = 0;  // of the three channels together
    for (int y = 0; y < s.targetHeight; ++y) {
      for (int x = 0; x < s.targetWidth; ++x) {
        for (int shift = 0; shift <= 16; shift += 8) {
          const auto channel = [&](std::uint32_t pixel) { return double(pixel >> shift & 0xFF); };
          double sum = 0;
          for (int j = 0; j < s.sourceHeight; ++j)
            for (int i = 0; i < s.sourceWidth; ++i)
              sum += Share(i, x, across) * Share(j, y, down) *
                     channel(source[static_cast<std::size_t>(j * s.sourceWidth + i)]);
          const std::uint32_t got = target[static_cast<std::size_t>(y * s.targetWidth + x)];
          ASSERT_NEAR(channel(got), sum / across / down, 1);
          bias += (channel(got) - sum / across / down) / static_cast<double>(target.size());
        }
      }
    }
    EXPECT_LT(std::abs(bias), 1.2);
    EXPECT_EQ(Whole(s, std::vector<std::uint32_t>(source.size(), 0xFE01FF)),
              std::vector<std::uint32_t>(target.size(), 0xFE01FF));
    if (s.sourceWidth == s.targetWidth && s.sourceHeight == s.targetHeight) {
      EXPECT_EQ(target, source);
    }
  }
}

TEST(Reducer, APartIsThePartOfTheWhole) {
  std::mt19937 random(5);
  for (const Sizes& s : kSizes) {
    auto source = Noise(s.sourceWidth * s.sourceHeight, 9);
    auto target = Whole(s, source);
    Reducer reducer(s.sourceWidth, s.sourceHeight, s.targetWidth, s.targetHeight);
    for (int round = 0; round < 40; ++round) {
      // Change a rectangle of the source, then run what is told to depend on it.
      const auto below = [&](int n) {
        return static_cast<int>(random() % static_cast<unsigned>(n));
      };
      DeviceRect r{below(s.sourceWidth), below(s.sourceHeight), 0, 0};
      r.right = r.left + 1 + below(s.sourceWidth - r.left);
      r.bottom = r.top + 1 + below(s.sourceHeight - r.top);
      for (int y = r.top; y < r.bottom; ++y)
        for (int x = r.left; x < r.right; ++x)
          source[static_cast<std::size_t>(y * s.sourceWidth + x)] = random() & 0xFFFFFF;
      reducer.Run(source.data(), s.sourceWidth, target.data(), s.targetWidth, reducer.TargetOf(r));
      ASSERT_EQ(target, Whole(s, source));
    }
    EXPECT_TRUE(reducer.TargetOf({5, 5, 5, 9}).empty());
    EXPECT_TRUE(reducer.TargetOf({-9, -9, 0, 0}).empty());
    reducer.Run(source.data(), s.sourceWidth, target.data(), s.targetWidth, {-5, -5, 999, 999});
    EXPECT_EQ(target, Whole(s, source));
  }
  Reducer nothing(0, 0, 5, 5);
  nothing.Run(nullptr, 0, nullptr, 0, {0, 0, 5, 5});
  EXPECT_TRUE(nothing.TargetOf({0, 0, 5, 5}).empty());
}

}  // namespace
}  // namespace platform
