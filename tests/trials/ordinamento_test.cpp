#include "trials/ordinamento_logica.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "trials/caso_scritto.h"

namespace girovia {
namespace {

using testing::ElementsAre;

constexpr std::array<int, 9> kRisolto = {0, 1, 2, 3, 4, 5, 6, 7, 8};

double Per(int tassello) { return (tassello + 0.5) / 9; }

TEST(Ordinamento, DealKeepsTheMiddleAndDrawsAgainForTakenTiles) {
  // 4 is never free, and 8 comes three times, at last by a number just below 1.
  CasoScritto caso({Per(8), Per(4), Per(8), Per(7), Per(0), Per(1), Per(2), Per(3), 5.0 / 9,
                    0.99999999, Per(6)});
  EXPECT_THAT(ProvaOrdinamento::Distribuisci(caso), ElementsAre(8, 7, 0, 1, 4, 2, 3, 5, 6));
  EXPECT_EQ(caso.usati(), 11u);
}

TEST(Ordinamento, LiftRoundsHalvesToTheEvenNumber) {
  const struct {
    int cella;
    double presaX, presaY;
    int x, y;
  } kCasi[] = {
      {0, 0, 0, 0, 0},
      {5, 11, 13, 486, 186},      // 491 - 5.5 up to even, 193 - 6.5 down to even
      {5, 10.5, 11.5, 485, 186},  // 490.5 to 490, 191.5 to 192, the grip to 10 and 12
      {8, 215, 161, 588, 440},    // 695 - 107.5, 521 - 80.5
  };
  for (const auto& caso : kCasi) {
    ProvaOrdinamento prova(kRisolto);
    ASSERT_TRUE(prova.Solleva(caso.cella, caso.presaX, caso.presaY));
    EXPECT_EQ(prova.x(), caso.x);
    EXPECT_EQ(prova.y(), caso.y);
  }
  ProvaOrdinamento prova(kRisolto);
  EXPECT_FALSE(prova.Solleva(4, 10, 10));
  EXPECT_TRUE(prova.Solleva(5, 11, 13));
  EXPECT_FALSE(prova.Solleva(6, 10, 10));
  EXPECT_EQ(prova.partenza(), 5);
  EXPECT_EQ(prova.recinto(), (Recinto{11, 13, 595, 451}));
  // The pointer has not left the point of the cell where it pressed.
  prova.Trascina(ProvaOrdinamento::LeftCella(5) + 11 - prova.x(),
                 ProvaOrdinamento::TopCella(5) + 13 - prova.y());
  EXPECT_EQ(prova.x(), ProvaOrdinamento::LeftCella(5));
  EXPECT_EQ(prova.y(), ProvaOrdinamento::TopCella(5));
  prova.Trascina(11.5, 12.5);  // 528.5 and 215.5
  EXPECT_EQ(prova.x(), 528);
  EXPECT_EQ(prova.y(), 216);
}

TEST(Ordinamento, TheCentreOfTheTileDecides) {
  const struct {
    int cx, cy, cella;
  } kCasi[] = {
      {240, 179, 0}, {241, 179, 1}, {480, 179, 1}, {481, 179, 2}, {240, 180, 3}, {480, 360, 4},
      {700, 360, 5}, {108, 361, 6}, {241, 519, 7}, {692, 519, 8}, {239, 300, 3},
  };
  for (const auto& caso : kCasi) {
    ProvaOrdinamento prova(kRisolto);
    prova.Solleva(0, 0, 0);
    prova.Trascina(caso.cx - 108, caso.cy - 81);
    EXPECT_EQ(prova.Posa().arrivo, caso.cella) << caso.cx << ' ' << caso.cy;
  }
}

// Lifts from one cell and drops on the middle of another.
Posata Sposta(ProvaOrdinamento& prova, int da, int a) {
  EXPECT_TRUE(prova.Solleva(da, 0, 0));
  prova.Trascina(240 * (a % 3) + 12 - prova.x(), 180 * (a / 3) + 9 - prova.y());
  return prova.Posa();
}

TEST(Ordinamento, DropsSwapAndTheLastOneSolves) {
  ProvaOrdinamento gia_risolta(kRisolto);
  EXPECT_FALSE(gia_risolta.in_mano());
  EXPECT_TRUE(Sposta(gia_risolta, 2, 2).risolta);

  ProvaOrdinamento prova({1, 0, 2, 3, 4, 5, 6, 7, 8});
  const Posata ferma = Sposta(prova, 7, 7);
  EXPECT_EQ(ferma.partenza, 7);
  EXPECT_EQ(ferma.arrivo, 7);
  EXPECT_FALSE(ferma.risolta);
  // The reference tile can be driven out of the middle, and only it can be brought back.
  EXPECT_FALSE(Sposta(prova, 8, 4).risolta);
  EXPECT_EQ(prova.tassello(4), 8);
  EXPECT_EQ(prova.tassello(8), 4);
  EXPECT_FALSE(prova.Solleva(4, 0, 0));
  EXPECT_FALSE(Sposta(prova, 8, 4).risolta);
  EXPECT_EQ(prova.tassello(4), 4);
  EXPECT_TRUE(Sposta(prova, 0, 1).risolta);
  EXPECT_FALSE(prova.in_mano());
}

TEST(Ordinamento, RingOfMarks) {
  int segni = 0;
  for (int n = 1; n <= 124; ++n) {
    const ScattoOrdinamento scatto = ScattoDellAnello(n);
    const bool vuoto =
        (n >= 29 && n <= 31) || n == 61 || n == 62 || (n >= 90 && n <= 95) || n > 122;
    EXPECT_EQ(scatto.segno.has_value(), !vuoto) << n;
    EXPECT_EQ(scatto.scaduto, n == 124) << n;
    if (!scatto.segno) continue;
    ++segni;
    EXPECT_EQ(scatto.segno->colore, n > 95 ? 0x0000FFu : 0x00FFFFu) << n;
  }
  EXPECT_EQ(segni, 111);
  // 0.1 radians below the level of the middle, at the right.
  const SegnoAnello segno = *ScattoDellAnello(32).segno;
  EXPECT_NEAR(segno.x1, 782.0816, 1e-3);
  EXPECT_NEAR(segno.y1, 328.7520, 1e-3);
  EXPECT_NEAR(segno.x2, 786.0616, 1e-3);
  EXPECT_NEAR(segno.y2, 329.0515, 1e-3);
  // The first one stands just right of the top.
  const SegnoAnello primo = *ScattoDellAnello(1).segno;
  EXPECT_GT(primo.x1, 400);
  EXPECT_LT(primo.y1, 20);
  EXPECT_EQ(BottoneOrdinamento(1), (PostoBottone{735, 511, 56, 84}));
}

TEST(Ordinamento, Texts) {
  const auto righe =
      IstruzioniOrdinamento("Lòdz", "Se non ci riesci restituisci 7 euro e torni a Màlaga");
  EXPECT_EQ(righe[4], " LÒDZ.");
  EXPECT_EQ(righe[8], " Se non ci riesci restituisci ");
  EXPECT_EQ(righe[9], " 7 euro e torni a Màlaga.");
  const auto corte = IstruzioniOrdinamento("Berlino", "più");
  EXPECT_EQ(corte[8], " più");
  EXPECT_EQ(corte[9], " .");
  EXPECT_EQ(IstruzioniOrdinamento("", std::string(28, 'a') + "èb")[9], " b.");
  EXPECT_EQ(ScrittaTassello("Roma"), " Roma                           ");
}

}  // namespace
}  // namespace girovia
