#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

#include "effects/dadi_logica.h"
#include "trials/caso_scritto.h"

namespace girovia {
namespace {

using testing::ElementsAre;

TEST(Dadi, EachValueHasItsSixth) {
  int quante[7] = {};
  for (int k = 0; k < 600; ++k) {
    CasoScritto caso({(k + 0.5) / 600});
    ++quante[TiraDado(caso)];
  }
  EXPECT_THAT(quante, ElementsAre(0, 100, 100, 100, 100, 100, 100));
}

TEST(Dadi, EveryThrowEndsOnItsFacesAndKeepsToTheScreen) {
  constexpr int kRiposo[] = {0, 114, 310, 506, 702, 506, 310};
  int piu_basso = 0;
  for (int d1 = 1; d1 <= 6; ++d1) {
    for (int d2 = 1; d2 <= 6; ++d2) {
      auto passi = PercorsoIniziale();
      for (const PassoDadi& passo : PercorsoFinale(d1, d2)) passi.push_back(passo);
      const int massimo = std::max(d1, d2);
      ASSERT_EQ(passi.size(), 17u + 2 * static_cast<std::size_t>(massimo));
      std::array<std::optional<MossaDado>, 2> ora;
      for (const PassoDadi& passo : passi) {
        EXPECT_TRUE(passo.dadi[0] || passo.dadi[1]);
        for (std::size_t d = 0; d < 2; ++d) {
          const auto& mossa = passo.dadi[d];
          if (!mossa) continue;
          // What is wiped is what was drawn, except before the first step, off the screen.
          const int x = ora[d] ? ora[d]->x : -180;
          const int y = ora[d] ? ora[d]->y : d == 0 ? 0 : 120;
          EXPECT_EQ(mossa->vecchiaX, x);
          EXPECT_EQ(mossa->vecchiaY, y);
          EXPECT_EQ(std::abs(mossa->x - mossa->vecchiaX), 98);
          EXPECT_TRUE(mossa->x >= -82 && mossa->x <= 702);
          EXPECT_TRUE(mossa->fotogramma >= 0 && mossa->fotogramma <= 12);
          ora[d] = mossa;
          piu_basso = std::max(piu_basso, mossa->y);
        }
        EXPECT_GT(ora[1]->y, ora[0]->y + 120);
      }
      EXPECT_EQ(ora[0]->fotogramma, 2 * d1);
      EXPECT_EQ(ora[1]->fotogramma, 2 * d2);
      EXPECT_EQ(ora[0]->x, kRiposo[d1]);
      EXPECT_EQ(ora[1]->x, kRiposo[d2]);
      std::vector<std::pair<std::size_t, std::string_view>> suoni;
      for (std::size_t k = 0; k < passi.size(); ++k) {
        if (!passi[k].suono.empty()) suoni.emplace_back(k, passi[k].suono);
      }
      std::vector<std::pair<std::size_t, std::string_view>> attesi = {
          {0, "118"}, {9, "118"}, {17, "118"}};
      if (massimo > 4) attesi.emplace_back(25, "230");
      EXPECT_EQ(suoni, attesi) << d1 << ' ' << d2;
    }
  }
  EXPECT_EQ(piu_basso, 390);
}

TEST(Dadi, FirstPartSwaysOutAndBack) {
  const auto passi = PercorsoIniziale();
  EXPECT_EQ(*passi[0].dadi[0], (MossaDado{0, -180, 0, -82, 0}));
  EXPECT_EQ(*passi[0].dadi[1], (MossaDado{11, -180, 120, -82, 130}));
  EXPECT_EQ(*passi[8].dadi[0], (MossaDado{8, 604, 0, 702, 0}));
  EXPECT_EQ(*passi[8].dadi[1], (MossaDado{3, 604, 200, 702, 210}));
  EXPECT_EQ(*passi[9].dadi[0], (MossaDado{0, 702, 0, 604, 5}));
  EXPECT_EQ(*passi[9].dadi[1], (MossaDado{11, 702, 210, 604, 220}));
  EXPECT_EQ(*passi[16].dadi[0], (MossaDado{7, 16, 35, -82, 40}));
  EXPECT_EQ(*passi[16].dadi[1], (MossaDado{4, 16, 280, -82, 290}));
}

TEST(Dadi, LastLegByTheValues) {
  // 6 and 1: the first die goes on alone, to the edge and back.
  const auto sei_uno = PercorsoFinale(6, 1);
  ASSERT_EQ(sei_uno.size(), 12u);
  EXPECT_EQ(*sei_uno[0].dadi[0], (MossaDado{1, -82, 40, 16, 48}));
  EXPECT_EQ(*sei_uno[0].dadi[1], (MossaDado{1, -82, 290, 16, 300}));
  EXPECT_EQ(*sei_uno[1].dadi[1], (MossaDado{2, 16, 300, 114, 310}));
  for (std::size_t k = 2; k < 12; ++k) {
    const int f = static_cast<int>(k) + 1;
    EXPECT_FALSE(sei_uno[k].dadi[1]);
    EXPECT_EQ(sei_uno[k].dadi[0]->fotogramma, f);
    EXPECT_EQ(sei_uno[k].dadi[0]->x, f <= 8 ? 98 * f - 82 : 702 - 98 * (f - 8));
    EXPECT_EQ(sei_uno[k].dadi[0]->y, f <= 8 ? 40 + 8 * f : 104 + 5 * (f - 8));
  }
  // 4 and 5: both reach the edge on one frame, one of them turns. Alone it falls by 8, not by 10.
  const auto quattro_cinque = PercorsoFinale(4, 5);
  EXPECT_EQ(quattro_cinque[7].dadi[0]->x, 702);
  EXPECT_EQ(*quattro_cinque[7].dadi[1], (MossaDado{8, 604, 360, 702, 370}));
  EXPECT_EQ(*quattro_cinque[9].dadi[1], (MossaDado{10, 604, 375, 506, 380}));
  EXPECT_EQ(*PercorsoFinale(1, 3)[2].dadi[1], (MossaDado{3, 114, 310, 212, 318}));
  // 5 and 6: the first die counts down on the way out and jumps at the turn.
  const auto cinque_sei = PercorsoFinale(5, 6);
  std::vector<int> primo, secondo;
  for (const PassoDadi& passo : cinque_sei) {
    if (passo.dadi[0]) primo.push_back(passo.dadi[0]->fotogramma);
    secondo.push_back(passo.dadi[1]->fotogramma);
  }
  EXPECT_THAT(primo, ElementsAre(11, 10, 9, 8, 7, 6, 5, 4, 9, 10));
  EXPECT_THAT(secondo, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
  EXPECT_EQ(*cinque_sei[0].dadi[0], (MossaDado{11, -82, 40, 16, 55}));
  EXPECT_EQ(*cinque_sei[9].dadi[0], (MossaDado{10, 604, 165, 506, 170}));
}

}  // namespace
}  // namespace girovia
