#include <gtest/gtest.h>

#include "comune/premio_cadente.h"
#include "trials/carte2_logica.h"
#include "trials/carte4_logica.h"

namespace girovia {
namespace {

TEST(PremioCadente, FallsByAStepEveryFourTicks) {
  const struct {
    int bitmap;
    std::int64_t cent;
  } kScala[] = {{203, 2000}, {204, 1000}, {205, 500}, {500, 200}, {501, 100}, {502, 50},
                {503, 20},   {504, 10},   {505, 5},   {506, 2},   {507, 1}};
  for (int primo : {kPrimoGradinoCarte4, kPrimoGradinoCarte2}) {
    GradinoPremio ora = GradinoIniziale(primo);
    int suoni = 0;
    const int fine = primo == kPrimoGradinoCarte4 ? 44 : 40;
    for (int tick = 1; tick <= fine; ++tick) {
      const ScattoPremio scatto = ScattoDelPremio(primo, tick);
      suoni += scatto.suono;
      EXPECT_EQ(scatto.scaduto, tick == fine) << tick;
      EXPECT_EQ(scatto.gradino.has_value(), tick % 4 == 0 && tick != fine) << tick;
      if (scatto.gradino) ora = *scatto.gradino;
      const auto& atteso = kScala[tick == fine ? 10 : primo + tick / 4];
      EXPECT_EQ(ora.bitmap, atteso.bitmap) << tick;
      EXPECT_EQ(ora.importo, Euro::Centesimi(atteso.cent)) << tick;
      EXPECT_EQ(scatto.togliBordo, scatto.gradino && scatto.gradino->bitmap == 500) << tick;
    }
    EXPECT_EQ(suoni, primo == kPrimoGradinoCarte4 ? 11 : 10);
  }
  // A late tick, should one come, does not start anything over.
  EXPECT_FALSE(ScattoDelPremio(kPrimoGradinoCarte4, 48).gradino);
  EXPECT_FALSE(ScattoDelPremio(kPrimoGradinoCarte4, 48).scaduto);
  EXPECT_EQ(CentraPremio(133, 69).left, 53.5);
  EXPECT_EQ(CentraPremio(133, 69).top, 410.5);
}

TEST(Carte2, HalvesGoToTheEvenSlot) {
  const struct {
    double u;
    int posto;
  } kCasi[] = {{0, 0},       {0.16, 0}, {0.5 / 3, 0}, {0.167, 1},  {0.49, 1},
               {1.5 / 3, 2}, {0.6, 2},  {2.5 / 3, 2}, {0.8334, 3}, {0.999999, 3}};
  for (const auto& caso : kCasi) EXPECT_EQ(PostoAffermazione(caso.u), caso.posto) << caso.u;
}

TEST(Carte2, TheAnswerComesFromTheText) {
  const Affermazione roma = EstraiAffermazione(0.3, 3);
  EXPECT_EQ(roma.frase, "Roma è il capoluogo del Lazio.");
  EXPECT_EQ(roma.esatta, 1);
  EXPECT_EQ(EstraiAffermazione(0.3, 4).esatta, 2);
  EXPECT_EQ(EstraiAffermazione(0.99, 99).frase, "Il 19 Maggio è la festa dell'Unione Europea.");
}

TEST(Carte4, OnlyTheThirdRightCityWins) {
  const struct {
    std::vector<int> clic;
    int risposta;  // after the last click; -1 if the card goes on
  } kCasi[] = {
      {{0}, 0}, {{3}, 2}, {{1, 2}, -1}, {{4, 2, 1}, 1}, {{1, 2, 0}, 0}, {{2, 4, 3}, 2},
  };
  for (const auto& caso : kCasi) {
    Carte4 carta(3);
    EsitoCarte4 esito;
    for (std::size_t k = 0; k < caso.clic.size(); ++k) {
      EXPECT_FALSE(esito.risposta);
      esito = carta.Clic(caso.clic[k]);
      EXPECT_EQ(esito.nascondiBottone, caso.clic[k] != 0 && caso.clic[k] != 3);
    }
    EXPECT_EQ(esito.risposta.value_or(-1), caso.risposta);
  }
  Carte4 carta(1);
  carta.Clic(2);
  carta.Clic(3);
  EXPECT_EQ(carta.TempoScaduto().risposta, 0);
}

}  // namespace
}  // namespace girovia
