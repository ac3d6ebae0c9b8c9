#include "core/tabellone.h"

#include "core/sorprese.h"
#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

void RinunciaAlPrimoTurno(Mondo& mondo, int giocatore) {
  mondo.Esce(0, 9);
  mondo.Esce(0, 9);
  mondo.alla[Schermata::FormProvaOrdinamento] = Risponde(0);
  mondo.Tira(giocatore, 7);
  EXPECT_EQ(Pos[giocatore], 7);
  // Square 0 keeps the size of its pulse through the dice; the move puts it at rest.
  EXPECT_TRUE(mondo.Da("NascondiAnnuncio")
                  .starts_with("NascondiAnnuncio Ridisegna Dadi FormBanconote Riduci 0"));
  EXPECT_EQ(Gruzzolo[giocatore], Euro::Interi(17));
  EXPECT_EQ(Giocatore, 3 - giocatore);
  EXPECT_EQ(statoTabellone.TurnoInCorso, Falso);
}

TEST(Tabellone, LeDomandePrimaDelPrimoLancioNonRisolvonoTurni) {
  Mondo mondo;
  tabellone::Form_Activate();  // the board is first shown
  mondo.alla[Schermata::FormMessaggi] = [] {
    EXPECT_EQ(Messaggio, "Vuoi uscire dal gioco?");
    Risposta = 2;
  };
  tabellone::cmdExit_Click();
  EXPECT_EQ(RitornoProva, Falso);
  tabellone::CmdHelp_Click();
  EXPECT_EQ(InfoDaPartita, Vero);
  // The start screen's question left its flag up; the board's first activation takes it down.
  RitornoProva = Vero;
  tabellone::Form_Activate();
  EXPECT_EQ(mondo.righe, (std::vector<std::string>{"FormMessaggi", "FormInfo"}));
  EXPECT_EQ(Giocatore, 0);
  RinunciaAlPrimoTurno(mondo, 2);
}

TEST(Tabellone, LaPrimaCartolinaDaLaMossaAlPrimo) {
  Mondo mondo;
  statoTabellone.TurnoInCorso = Vero;  // the cities are silent during a throw
  tabellone::cmdcitta_Click(42);
  EXPECT_TRUE(mondo.righe.empty());
  statoTabellone.TurnoInCorso = Falso;
  mondo.alla[Schermata::FormCitta] = [] { EXPECT_FALSE(CaricaCitta().pacco); };
  tabellone::cmdcitta_Click(42);
  EXPECT_EQ(CittaCliccata, 42);
  EXPECT_EQ(Giocatore, 1);
  EXPECT_EQ(mondo.Da("FormCitta"), "FormCitta AttivaTurno 1");
  RinunciaAlPrimoTurno(mondo, 1);
}

}  // namespace
}  // namespace girovia
