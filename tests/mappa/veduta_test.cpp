#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "content/catalogo.h"
#include "mappa/dati.h"
#include "mappa/tavole.h"

namespace mappa {
namespace {

const World& world() {
  static const World data = readWorld(DATI);
  return data;
}

struct Pixels {
  explicit Pixels(int square) {
    const Canvas picture = cityPicture(world(), square, PARTI, 1);
    width = picture.width();
    height = picture.height();
    bytes = picture.rgbBytes();
  }
  const std::uint8_t* at(int x, int y) const {
    return &bytes[(static_cast<std::size_t>(y) * width + x) * 3];
  }
  int width = 0, height = 0;
  std::vector<std::uint8_t> bytes;
};

// The share of the places in a square of the puzzle's size where two pictures differ to the eye.
double difference(const Pixels& a, int ax, int ay, const Pixels& b, int bx, int by) {
  constexpr int kTile = 120, kVisible = 60;
  int different = 0;
  for (int y = 0; y < kTile; ++y) {
    for (int x = 0; x < kTile; ++x) {
      const std::uint8_t *p = a.at(ax + x, ay + y), *q = b.at(bx + x, by + y);
      different += std::abs(p[0] - q[0]) + std::abs(p[1] - q[1]) + std::abs(p[2] - q[2]) > kVisible;
    }
  }
  return static_cast<double>(different) / (kTile * kTile);
}

TEST(CityPicture, HasTheSizeThatTheGameShows) {
  for (const int square : {0, 67, 72}) {
    const Canvas picture = cityPicture(world(), square, PARTI, 2);
    const auto* entry = girovia::TrovaVoce(girovia::Tipo::Jpeg, 400 + square);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(picture.pixelWidth(), 2 * entry->larghezza) << square;
    EXPECT_EQ(picture.pixelHeight(), 2 * entry->altezza) << square;
  }
}

// The puzzle could not be solved if two of its tiles looked alike: open sea and flat land are the
// hard cases.
TEST(CityPicture, GivesEveryTileOfThePuzzleALookOfItsOwn) {
  constexpr int kLisbon = 22, kReykyavik = 36, kMinsk = 56, kKharkov = 70, kNicosia = 80;
  for (const int square : {kLisbon, kReykyavik, kMinsk, kKharkov, kNicosia}) {
    const Pixels picture(square);
    for (int i = 0; i < 12; ++i) {
      for (int j = 0; j < i; ++j) {
        EXPECT_GT(difference(picture, i % 4 * 120, i / 4 * 120, picture, j % 4 * 120, j / 4 * 120),
                  0.15)
            << world().cities[static_cast<std::size_t>(square)].name << ", tiles " << i << ", "
            << j;
      }
    }
  }
}

// Neighbours in England, whose maps overlap the most.
TEST(CityPicture, TellsNeighbouringCitiesApart) {
  constexpr int kLeeds = 38, kSheffield = 39;
  const Pixels a(kLeeds), b(kSheffield), again(kLeeds);
  EXPECT_EQ(a.bytes, again.bytes);
  double sum = 0;
  for (int i = 0; i < 12; ++i)
    sum += difference(a, i % 4 * 120, i / 4 * 120, b, i % 4 * 120, i / 4 * 120);
  EXPECT_GT(sum / 12, 0.1);
}

}  // namespace
}  // namespace mappa
