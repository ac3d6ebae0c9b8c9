#include "core/premiazione.h"

#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

TEST(Premiazione, VinceIlGruzzoloNonLArrivo) {
  const struct {
    int uno, due, pos1, pos2, vincitore;
  } casi[] = {{30, 20, 50, 99, 1}, {20, 30, 99, 50, 2}, {20, 20, 99, 50, 1},
              {20, 20, 50, 99, 2}, {20, 20, 50, 50, 2}, {-5, -4, 99, 50, 2}};
  for (const auto& caso : casi) {
    Mondo mondo;
    Gruzzolo[1] = Euro::Interi(caso.uno);
    Gruzzolo[2] = Euro::Interi(caso.due);
    Pos[1] = caso.pos1;
    Pos[2] = caso.pos2;
    EXPECT_EQ(Vincitore(), caso.vincitore);
  }
}

TEST(Premiazione, LeSeiScelte) {
  Mondo mondo;
  Giocatore = 1;
  Gruzzolo[1] = Euro::Interi(40);
  Gruzzolo[2] = Euro::Interi(60);
  std::deque<int> scelte = {1, 2, 3, 6, 4, 4, 5, 6};
  mondo.alla[Schermata::FormPremiazione] = [&] {
    Risposta = scelte.front();
    scelte.pop_front();
  };
  mondo.uscite = {kNo, kSi};
  for (int n : {0, 13, 13, 0}) mondo.Esce(n, 14);  // never 0 first, never the last one again
  EXPECT_THROW(CerimoniaDiPremiazione(), FineDelGioco);
  EXPECT_EQ(mondo.Da(""),
            "Ridisegna Pausa Scrivi 1 40,00 Scrivi 2 60,00 FormPremiazione ~101 Trofeo"
            " FormPremiazione ~123 Banconota500 2 Conta 2 540,00..560,00 Scrivi 2 560,00"
            " Colori 255 65280 =123 FormPremiazione ~123 Banconota50 2 Scrivi 1 90,00"
            " Scrivi 2 510,00 Ridisegna FormPremiazione"
            " Chiede GIROVIA GRANDETAPPA Vuoi uscire dal gioco? FormPremiazione"
            " TogliPremio ~117 Premio 13 FormPremiazione TogliPremio ~117 Premio 0"
            " FormPremiazione ~110 Congratulazioni FormPremiazione"
            " Chiede GIROVIA GRANDETAPPA Vuoi uscire dal gioco?");
  EXPECT_EQ(Giocatore, 2);
  EXPECT_EQ(Risposta, kSi);
  EXPECT_TRUE(mondo.sorti.empty());
}

}  // namespace
}  // namespace girovia
