#include <gtest/gtest.h>

#include "perspective.h"

namespace {

using dipingi::Image;

Image Filled(int width, int height) {
  Image image(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      image.at(x, y)[0] = x < width / 2 ? 200 : 100;
      image.at(x, y)[3] = 255;
    }
  return image;
}

int Height(const Image& image, int x) {
  int rows = 0;
  for (int y = 0; y < image.height; ++y) rows += image.at(x, y)[3] >= 128;
  return rows;
}

TEST(Prospettiva, ATurnedCardNarrowsAndKeepsItsNearEdge) {
  const Image flat = Filled(236, 255);
  double far = 255;
  for (int step = 6; step >= 0; --step) {
    const Image seen = TurnCard(flat, 59 * (step + 1) / 2);
    EXPECT_NEAR(Height(seen, seen.width - 1), 255, 2) << step;
    EXPECT_LT(Height(seen, 0), far) << step;
    far = Height(seen, 0);
  }
  EXPECT_GT(far, 255 * 0.6);
  EXPECT_EQ(TurnCard(flat, 236).rgba, flat.rgba);
}

TEST(Prospettiva, ATiltedDieIsABarrelWithItsFacesSideBySide) {
  const Image seen = TiltDie(Filled(240, 120), 98, 120);
  EXPECT_EQ(Height(seen, 48), 120);
  EXPECT_NEAR(Height(seen, 0), 98, 2);
  for (int x = 0; x < 49; ++x) {
    EXPECT_LE(Height(seen, x), Height(seen, x + 1));
    EXPECT_EQ(Height(seen, x), Height(seen, 97 - x));
  }
  // The face at the left is lit, the one at the right lies in shade.
  EXPECT_GT(seen.at(20, 60)[0], 170);
  EXPECT_LT(seen.at(78, 60)[0], 90);
}

}  // namespace
