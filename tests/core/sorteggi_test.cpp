#include "core/sorteggi.h"

#include <random>
#include <set>

#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

struct Prova {
  const char* nome;
  void (*sorteggia)(Schermata);
  const int& indice;
  const int& conta;
  int diversi;  // entries shown before the first restart
  int massimo;
  std::set<int> mai;
};

const std::set<int> kNascoste = {0, 20, 36, 54, 77, 78, 79, 80};
const Prova kProve[] = {
    {"imprevisti", SorteggioImprevisto, IndiceImprevisto, ContaImprevisti, 28, 30, {}},
    {"ordinamento", SorteggioOrdinamento, IndiceOrdinamento, ContaOrdinamento, 8, 8, {}},
    {"carte4", SorteggioCarte4, IndiceCarte4, ContaCarte4, 39, 40, {}},
    {"citta", SorteggioProvaCitta, IndiceProvaCitta, ContaProvaCitta, 89, 99, kNascoste},
    {"capitali", SorteggioProvaCapitali, IndiceProvaCapitali, ContaProvaCapitali, 33, 34, {}},
};

TEST(Sorteggi, NessunaRipetizionePrimaDellaRipartenza) {
  for (const Prova& prova : kProve) {
    Mondo mondo;
    Gruzzolo[1] = Euro::Interi(11);
    std::mt19937 motore(7);
    mondo.generatore = [&] { return std::uniform_real_distribution<>()(motore); };
    std::set<int> tutti;
    for (int giro = 0; giro < 60; ++giro) {
      std::set<int> visti;
      for (int i = 1; i <= prova.diversi; ++i) {
        prova.sorteggia(Schermata::FormInfo);
        // The draw that restarts is dropped, so each run opens with a counter of 1.
        ASSERT_EQ(prova.conta, i) << prova.nome;
        ASSERT_TRUE(visti.insert(prova.indice).second) << prova.nome << ' ' << prova.indice;
      }
      tutti.merge(visti);
    }
    EXPECT_EQ(int(mondo.righe.size()), 60 * prova.diversi);
    EXPECT_EQ(*tutti.rbegin(), prova.massimo) << prova.nome;
    EXPECT_EQ(static_cast<int>(tutti.size() + prova.mai.size()), prova.massimo + 1) << prova.nome;
    for (int i : prova.mai) EXPECT_FALSE(tutti.contains(i)) << i;
  }
}

// The 29th accepted event shows nothing: the screen gets the card of the draw after it.
TEST(Sorteggi, IlVentinovesimoImprevistoSiPerde) {
  Mondo mondo;
  Gruzzolo[1] = Euro::Interi(11);
  for (int carta = 0; carta < 28; ++carta) {
    mondo.Esce(carta, 31);
    SorteggioImprevisto(Schermata::FormImprevisti);
  }
  EXPECT_EQ(IndiceImprevisto, 27);
  mondo.Esce(5, 31);   // used: tried again
  mondo.Esce(30, 31);  // accepted, and dropped
  mondo.Esce(27, 31);  // may repeat even the last one shown
  SorteggioImprevisto(Schermata::FormImprevisti);
  EXPECT_EQ(IndiceImprevisto, 27);
  EXPECT_EQ(ContaImprevisti, 1);
  EXPECT_EQ(mondo.righe.size(), 29u);
  EXPECT_TRUE(mondo.sorti.empty());
}

TEST(Sorteggi, AGruzzoliPariTreCarteRestanoFuoriFinoAllaRipartenza) {
  Mondo mondo;
  mondo.Esce(3, 31);
  mondo.Esce(0, 31);
  SorteggioImprevisto(Schermata::FormImprevisti);
  EXPECT_EQ(IndiceImprevisto, 0);
  EXPECT_EQ(ContaImprevisti, 1);
  Gruzzolo[1] += Euro::Decimillesimi(1);
  for (int carta : {2, 3, 4, 5}) mondo.Esce(carta, 31);
  SorteggioImprevisto(Schermata::FormImprevisti);
  EXPECT_EQ(IndiceImprevisto, 5);

  // 28 cards drawn and the three marked: no card is left one short of the count.
  for (int carta = 6; ContaImprevisti < 28; ++carta) {
    mondo.Esce(carta == 31 ? 1 : carta, 31);
    SorteggioImprevisto(Schermata::FormImprevisti);
  }
  mondo.Esce(2, 31);
  SorteggioImprevisto(Schermata::FormImprevisti);
  EXPECT_EQ(IndiceImprevisto, 2);
  EXPECT_EQ(ContaImprevisti, 1);
}

}  // namespace
}  // namespace girovia
