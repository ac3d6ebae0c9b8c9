#include "trials/mappa_logica.h"

#include <gtest/gtest.h>

#include "trials/puzzle_logica.h"

namespace girovia {
namespace {

struct CasoBarra {
  int scatti, left, larghezza;
  bool rossa, visibile, scaduta;
};

template <std::size_t N>
void ProvaBarra(BarraTempo (*barra)(int), const CasoBarra (&casi)[N]) {
  for (const CasoBarra& c : casi) {
    const BarraTempo b = barra(c.scatti);
    EXPECT_EQ(b.left, c.left) << c.scatti;
    EXPECT_EQ(b.larghezza, c.larghezza) << c.scatti;
    EXPECT_EQ(b.rossa, c.rossa) << c.scatti;
    EXPECT_EQ(b.visibile, c.visibile) << c.scatti;
    EXPECT_EQ(b.scaduta, c.scaduta) << c.scatti;
  }
}

TEST(Barra, ShrinksBlinksAndRunsOut) {
  ProvaBarra(BarraMappa, {{0, 72, 569, false, true, false},
                          {1, 74, 565, false, true, false},
                          {92, 256, 201, false, true, false},
                          {93, 258, 197, true, false, false},
                          {94, 260, 193, true, true, false},
                          {95, 262, 189, true, false, false},
                          {141, 354, 5, true, false, false},
                          {142, 356, 1, true, true, true}});
  ProvaBarra(BarraPuzzle, {{0, 24, 459, false, true, false},
                           {129, 153, 201, false, true, false},
                           {130, 154, 199, true, false, false},
                           {131, 155, 197, true, true, false},
                           {227, 251, 5, true, true, false},
                           {228, 252, 3, true, false, true}});
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
