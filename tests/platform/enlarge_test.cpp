#include "platform/drawing/enlarge.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "platform/drawing/resample.h"

namespace platform {
namespace {

struct Sizes {
  int width, height, largeWidth, largeHeight;
};

const Sizes kSizes[] = {{40, 30, 80, 60}, {40, 30, 60, 45}, {17, 9, 17, 40},
                        {23, 31, 24, 32}, {1, 1, 5, 4},     {3, 2, 40, 2}};

double Channel(std::uint32_t pixel, int c) { return double(pixel >> (8 * c) & 0xFF); }

// The cubic through the four nearest pixels of a row, which goes on as it ends.
template <class Row>
double Cubic(const Row& row, int count, double at) {
  const double t = at - std::floor(at);
  const auto p = [&](int k) { return row(std::clamp(int(std::floor(at)) + k, 0, count - 1)); };
  return p(0) + 0.5 * t *
                    (p(1) - p(-1) +
                     t * (2 * p(-1) - 5 * p(0) + 4 * p(1) - p(2) +
                          t * (3 * (p(0) - p(1)) + p(2) - p(-1))));
}

TEST(Enlarge, RunsACubicThroughTheFourNearestPixels) {
  std::mt19937 random(4);
  for (const Sizes& s : kSizes) {
    std::vector<std::uint32_t> source(static_cast<std::size_t>(s.width * s.height));
    for (std::uint32_t& p : source) p = std::uint32_t(random());
    std::vector<std::uint32_t> large(static_cast<std::size_t>(s.largeWidth * s.largeHeight));
    Enlarge({source.data(), s.width, s.width, s.height}, s.largeWidth, s.largeHeight, false,
            large.data());
    double bias = 0;
    for (int y = 0; y < s.largeHeight; ++y)
      for (int x = 0; x < s.largeWidth; ++x)
        for (int c = 0; c < 3; ++c) {
          const auto along = [&](int row) {
            return Cubic([&](int i) { return Channel(source[std::size_t(row * s.width + i)], c); },
                         s.width, (x + 0.5) * s.width / s.largeWidth - 0.5);
          };
          const double exact = std::clamp(
              Cubic(along, s.height, (y + 0.5) * s.height / s.largeHeight - 0.5), 0.0, 255.0);
          const double got = Channel(large[std::size_t(y * s.largeWidth + x)], c);
          ASSERT_NEAR(got, exact, 2.5) << x << " " << y;
          bias += (got - exact) / double(large.size() * 3);
        }
    EXPECT_LT(std::abs(bias), 0.3);
    std::fill(source.begin(), source.end(), 0xFE01FFu);
    Enlarge({source.data(), s.width, s.width, s.height}, s.largeWidth, s.largeHeight, false,
            large.data());
    EXPECT_EQ(large, std::vector<std::uint32_t>(large.size(), 0xFE01FFu));
  }
}

// What cannot be seen lends nothing of its colour to what can.
TEST(Enlarge, HiddenColoursStayHidden) {
  std::vector<std::uint32_t> source(12 * 4, 0xFFC04020);
  for (std::size_t i = 0; i < source.size(); ++i)
    if (i % 12 >= 6) source[i] = 0x0000FF00;
  std::vector<std::uint32_t> large(30 * 10);
  Enlarge({source.data(), 12, 12, 4}, 30, 10, true, large.data());
  int halves = 0;
  for (const std::uint32_t p : large) {
    const std::uint32_t alpha = p >> 24;
    halves += alpha > 40 && alpha < 215;
    if (alpha < 40) continue;
    EXPECT_NEAR(Channel(p, 2), 0xC0, 4);
    EXPECT_NEAR(Channel(p, 1), 0x40, 4);
    EXPECT_NEAR(Channel(p, 0), 0x20, 4);
  }
  EXPECT_EQ(halves, 20);
}

}  // namespace
}  // namespace platform
