#include "content/testi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "content/atlante.h"
#include "content/quiz.h"

namespace girovia {
namespace {

using testing::ElementsAre;

TEST(Testi, TableHasItsNumbersAndNoOthers) {
  const auto prevista = [](int id) {
    return (id >= 0 && id <= 507) || id == 510 || (id >= 600 && id <= 809) ||
           (id >= 830 && id <= 864) || (id >= 900 && id <= 916) || (id >= 998 && id <= 1092);
  };
  for (int id = -2; id < 1300; ++id) EXPECT_EQ(!LoadResString(id).empty(), prevista(id)) << id;
}

TEST(Testi, StatementsSayTrueAndFalseInTheRightMeasure) {
  int vere[4] = {};
  for (int id = 0; id < 400; ++id) {
    const std::string_view testo = LoadResString(id);
    EXPECT_EQ(std::count(testo.begin(), testo.end(), '*'), 1) << id;
    const Affermazione a = LeggiAffermazione(testo);
    EXPECT_TRUE(a.esatta == 1 || a.esatta == 2) << id;
    EXPECT_EQ(a.frase.size(), testo.size() - 1) << id;  // "*1" gone, "." there
    EXPECT_TRUE(a.frase.ends_with('.') && !a.frase.ends_with("..")) << id;
    if (a.esatta == 1) ++vere[id / 100];
  }
  EXPECT_THAT(vere, ElementsAre(100, 1, 100, 15));
}

TEST(Quiz, EveryPhotoSetHasOneCityThatDoesNotFit) {
  for (int n = 0; n < 42; ++n) {
    int segnate = 0;
    for (int k = 1; k <= 4; ++k) segnate += LoadResString(600 + 5 * n + k).ends_with('x');
    EXPECT_EQ(segnate, 1) << n;
    const SetFoto set = LeggiSetFoto(n);
    ASSERT_TRUE(set.sbagliata >= 1 && set.sbagliata <= 4) << n;
    EXPECT_TRUE(LoadResString(600 + 5 * n + set.sbagliata).ends_with('x')) << n;
    for (int citta : set.citta) EXPECT_FALSE(NomeCasella(citta).empty()) << n;
  }
  const SetFoto primo = LeggiSetFoto(0);
  EXPECT_THAT(primo.citta, ElementsAre(13, 14, 15, 82));
  EXPECT_EQ(primo.sbagliata, 4);
  const SetFoto una_cifra = LeggiSetFoto(39);
  EXPECT_EQ(una_cifra.domanda, "Clicca le tre città che si trovano su isole:");
  EXPECT_THAT(una_cifra.citta, ElementsAre(55, 80, 0, 44));
  EXPECT_EQ(una_cifra.sbagliata, 1);
  EXPECT_THAT(LeggiSetFoto(16).citta, ElementsAre(76, 83, 76, 73));  // one city twice
}

TEST(Quiz, EveryCapitalCanBeClicked) {
  std::set<int> capitali;
  for (int n = 0; n < 35; ++n) {
    const Capitale c = LeggiCapitale(n);
    EXPECT_TRUE(PostoSuMappa(MappaProva::Capitali, c.citta).visibile) << n;
    EXPECT_TRUE(c.paese.starts_with("del") && c.paese.find('*') == c.paese.npos) << n;
    capitali.insert(c.citta);
  }
  EXPECT_EQ(capitali.size(), 35u);
  EXPECT_EQ(LeggiCapitale(0).paese, "dell'Italia");
  EXPECT_EQ(LeggiCapitale(0).citta, 3);
  // These two stand crosswise in the question bank.
  EXPECT_EQ(LeggiCapitale(11).citta, 50);
  EXPECT_EQ(LeggiCapitale(13).citta, 51);
}

TEST(Quiz, OrderingSetsRunFromNorthWestToSouthEast) {
  for (int n = 0; n < 17; ++n) {
    const auto citta = LeggiOrdinamento(n);
    EXPECT_EQ(std::set(citta.begin(), citta.end()).size(), 9u) << n;
    // Latitude and longitude decide, but on the map a row must at least stand above the next one
    // and each row run eastward.
    const auto y = [&](std::size_t riga) {
      return casella(citta[3 * riga]).y + casella(citta[3 * riga + 1]).y +
             casella(citta[3 * riga + 2]).y;
    };
    EXPECT_LT(y(0), y(1)) << n;
    EXPECT_LT(y(1), y(2)) << n;
    for (std::size_t i : {0, 1, 3, 4, 6, 7}) {
      EXPECT_LE(casella(citta[i]).x, casella(citta[i + 1]).x) << n;
    }
  }
  EXPECT_THAT(LeggiOrdinamento(0), ElementsAre(37, 45, 50, 41, 62, 58, 9, 96, 92));
}

TEST(Quiz, BrokenStringsGiveEmptyAnswers) {
  EXPECT_EQ(LeggiAffermazione("senza segno").esatta, 0);
  EXPECT_EQ(LeggiAffermazione("in fondo*").esatta, 0);
  EXPECT_EQ(LeggiAffermazione("").frase, ".");
  EXPECT_EQ(LeggiSetFoto(1000).sbagliata, 0);
  EXPECT_TRUE(LeggiCapitale(50).paese.empty());
  EXPECT_EQ(LeggiOrdinamento(50), (std::array<int, 9>{}));
}

}  // namespace
}  // namespace girovia
