#include "trials/puzzle_logica.h"

#include <gtest/gtest.h>

#include "trials/caso_scritto.h"

namespace girovia {
namespace {

constexpr std::array<int, 12> kRisolto = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

TEST(Puzzle, DealRoundsSoTheEndTilesComeHalfAsOften) {
  // Halves go to the even tile, taken ones are drawn again, and the deal may be the solved one.
  CasoScritto caso({0.5 / 11, 0.0, 1.0 / 11, 1.5 / 11, 2.5 / 11, 3.0 / 11, 3.5 / 11, 5.0 / 11,
                    5.5 / 11, 7.0 / 11, 8.5 / 11, 9.0 / 11, 9.5 / 11, 10.5 / 11, 0.999});
  EXPECT_EQ(ProvaPuzzle::Distribuisci(caso), kRisolto);
  EXPECT_EQ(caso.usati(), 15u);
}

TEST(Puzzle, LiftLiesOverTheCellAndCarriesFractions) {
  ProvaPuzzle prova(kRisolto);
  ASSERT_TRUE(prova.Solleva(6, 10.5F, 20.25F));
  EXPECT_FALSE(prova.Solleva(0, 1, 1));
  EXPECT_EQ(prova.x(), 240);
  EXPECT_EQ(prova.y(), 120);
  EXPECT_EQ(prova.recinto(482, 362), (Recinto{10.5, 20.25, 372.5, 262.25}));
  prova.Trascina(11, 20);
  EXPECT_EQ(prova.x(), 240.5F);
  EXPECT_EQ(prova.y(), 119.75F);
}

TEST(Puzzle, TheCentreOfTheTileDecides) {
  const struct {
    float cx, cy;
    int cella;
  } kCasi[] = {
      {120, 119.5F, 0}, {120.5F, 60, 1},  {240, 60, 1},   {240.5F, 60, 2},  {360, 60, 2},
      {360.5F, 60, 3},  {60, 120, 4},     {240, 240, 5},  {360, 239.5F, 6}, {420, 240, 7},
      {60, 240.5F, 8},  {180, 240.5F, 9}, {300, 300, 10}, {420, 300, 11},
  };
  for (const auto& caso : kCasi) {
    ProvaPuzzle prova(kRisolto);
    prova.Solleva(0, 0, 0);
    prova.Trascina(caso.cx - 60, caso.cy - 60);
    EXPECT_EQ(prova.Posa().arrivo, caso.cella) << caso.cx << ' ' << caso.cy;
  }
}

TEST(Puzzle, ElevenDropsSolveAnyDeal) {
  ProvaPuzzle prova({11, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  for (int c = 0; c < 11; ++c) {
    int da = 0;
    while (prova.tassello(da) != c) ++da;
    ASSERT_TRUE(prova.Solleva(da, 0, 0));
    prova.Trascina(static_cast<float>(120 * (c % 4)) - prova.x(),
                   static_cast<float>(120 * (c / 4)) - prova.y());
    const Posata posata = prova.Posa();
    EXPECT_EQ(posata.partenza, da);
    EXPECT_EQ(posata.arrivo, c);
    EXPECT_EQ(posata.risolta, c == 10);
  }
  // Solved from the start, it still takes a drop to say so.
  ProvaPuzzle gia(kRisolto);
  gia.Solleva(11, 5, 5);
  EXPECT_TRUE(gia.Posa().risolta);
}

TEST(Puzzle, TextsOfTheTwoVariants) {
  const TestiPuzzle foto = TestiDelPuzzle(false, 36, "Messaggio");
  EXPECT_EQ(foto.figura, 436);
  EXPECT_EQ(foto.titolo, "Reykiavik: la chiesa Hallgrímskirkja");
  EXPECT_EQ(foto.info,
            "Ricomponi la foto: clicca i pezzi della foto per spostarli.\r\n"
            "Se ci riesci guadagni 20 euro.\r\nMessaggio.");
  const TestiPuzzle finale = TestiDelPuzzle(true, 99, "M");
  EXPECT_EQ(finale.figura, 500);
  EXPECT_EQ(finale.titolo, "GIROVIA GRANDETAPPA\r\nPROVA FINALE");
  EXPECT_TRUE(finale.info.starts_with("Ricomponi la carta d'Europa:"));
  EXPECT_EQ(BottonePuzzle(1), (PostoBottone{447, 479, 56, 84}));
}

}  // namespace
}  // namespace girovia
