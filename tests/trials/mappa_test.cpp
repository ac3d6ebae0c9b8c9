#include "trials/mappa_logica.h"

#include <gtest/gtest.h>

#include "trials/puzzle_logica.h"

namespace girovia {
namespace {

TEST(Barra, ShrinksBlinksAndRunsOut) {
  const struct {
    BarraTempo (*barra)(int);
    int scatti, left, larghezza;
    bool rossa, visibile, scaduta;
  } kCasi[] = {
      {BarraMappa, 0, 72, 569, false, true, false},
      {BarraMappa, 1, 74, 565, false, true, false},
      {BarraMappa, 92, 256, 201, false, true, false},
      {BarraMappa, 93, 258, 197, true, false, false},
      {BarraMappa, 94, 260, 193, true, true, false},
      {BarraMappa, 141, 354, 5, true, false, false},
      {BarraMappa, 142, 356, 1, true, true, true},
      {BarraPuzzle, 0, 24, 459, false, true, false},
      {BarraPuzzle, 129, 153, 201, false, true, false},
      {BarraPuzzle, 130, 154, 199, true, false, false},
      {BarraPuzzle, 227, 251, 5, true, true, false},
      {BarraPuzzle, 228, 252, 3, true, false, true},
  };
  for (const auto& caso : kCasi) {
    const auto [left, larghezza, rossa, visibile, scaduta] = caso.barra(caso.scatti);
    EXPECT_EQ(left, caso.left) << caso.scatti;
    EXPECT_EQ(larghezza, caso.larghezza) << caso.scatti;
    EXPECT_EQ(rossa, caso.rossa) << caso.scatti;
    EXPECT_EQ(visibile, caso.visibile) << caso.scatti;
    EXPECT_EQ(scaduta, caso.scaduta) << caso.scatti;
  }
}

TEST(Mappa, ClickQuestionsAndButton) {
  EXPECT_EQ(RispostaClicCitta(3, 3), 1);
  EXPECT_EQ(RispostaClicCitta(4, 3), 2);
  EXPECT_EQ(DomandaCitta("", 59), ", clicca la città di Lòdz");
  EXPECT_EQ(DomandaCapitale("Primo", "dell'Italia"), "Primo, clicca la capitale dell'Italia");
  EXPECT_EQ(BottoneMappa(0), (PostoBottone{744, 516, 54, 82}));
  EXPECT_EQ(BottoneMappa(1), (PostoBottone{743, 515, 56, 84}));
  EXPECT_EQ(BottoneMappa(2), BottoneMappa(0));
}

}  // namespace
}  // namespace girovia
