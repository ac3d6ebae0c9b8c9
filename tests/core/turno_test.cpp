#include "core/turno.h"

#include "core/eventi.h"
#include "core/sorprese.h"
#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

// The game as it stands before a throw of player g.
void Disponi(int g, int pos, int altro) {
  Pos[g] = statoTabellone.PosPrecedente[g] = pos;
  Pos[3 - g] = statoTabellone.PosPrecedente[3 - g] = altro;
  Giocatore = g;
}

constexpr Euro kPremio = Euro::Centesimi(504);

// Answers all trials alike. The bonus screen sets the prize where a trial has none.
void RispondiSempre(Mondo& mondo, int risposta) {
  for (const Schermata prova : {Schermata::FormProvaOrdinamento, Schermata::FormProvaPuzzle,
                                Schermata::FormCarte4Items, Schermata::FormCarte2Items}) {
    mondo.alla[prova] = Risponde(risposta, kPremio);
  }
  for (const Schermata prova : {Schermata::FormProvaCitta, Schermata::FormProvaCapitali}) {
    mondo.alla[prova] = Risponde(risposta, Euro::Interi(99));
  }
  mondo.alla[Schermata::FormBonus] = [] { Premio = kPremio; };
}

// What follows the draw, for each outcome and answer: given up, right, wrong.
TEST(Turno, NoveEsitiTreRisposte) {
  const std::string persa =
      " ~124 Pausa Pausa Pausa Nascondi 1 17 Nascondi 1 16 Ridisegna Libera 17 Riduci 17"
      " Colora 15 65280 Ingrandisci 15 PrBar Ridisegna Conta 1 10,00..10,00 Scrivi 1 10,00"
      " Colori 65535 65535 =123";
  const std::string vinta = " Conta 1 10,00..17,04 Scrivi 1 17,04 Colori 65280 255 =123";
  const std::string carta = "FormRotazioneCarta ";
  const struct {
    int r;
    std::string apre;
    std::string seVinta;
  } casi[] = {
      {0, "FormProvaOrdinamento", vinta + " Pausa"},
      {1, "FormProvaPuzzle", vinta},
      {3, "FormProvaCitta", " FormBonus" + vinta + " Pausa"},
      {4, "FormProvaCapitali", " FormBonus" + vinta + " Pausa"},
      {5, carta + "FormCarte4Items", vinta + " Pausa"},
      {6, carta + "FormCarte4Items", vinta + " Pausa"},
      {7, carta + "FormCarte2Items", " ~106 Pausa Pausa" + vinta + " Pausa"},
      {8, carta + "FormCarte2Items", " ~106 Pausa Pausa" + vinta + " Pausa"},
  };
  for (const auto& caso : casi) {
    for (const int risposta : {0, 1, 2}) {
      Mondo mondo;
      SCOPED_TRACE(testing::Message() << caso.r << " risposta " << risposta);
      Disponi(1, 15, 0);
      RispondiSempre(mondo, risposta);
      RispostaEsatta = 1;
      mondo.Esce(caso.r, 9);
      if (caso.r < 7 && caso.r != 1) mondo.Esce(1, 100);  // the pool's draw
      mondo.Tira(1, 2);
      const std::string fine = risposta == 0 ? " ~116" : risposta == 1 ? caso.seVinta : persa;
      EXPECT_EQ(mondo.Da("Libera 15"), "Libera 15 " + caso.apre + fine + " AttivaTurno 2");
      EXPECT_EQ(Messaggio, std::string(caso.r < 2 ? "Se non ci riesci" : "Se sbagli") +
                               " restituisci 2 euro e torni a Barcellona");
      EXPECT_EQ(Pos[1], risposta == 2 ? 15 : 17);
      EXPECT_EQ(Giocatore, 2);
      EXPECT_EQ(statoTabellone.TurnoInCorso, Falso);
    }
  }
}

// Button 2, "falso", is the right one when the sentence is false.
TEST(Turno, LaCartaVeroFalsoConfrontaDueNumeri) {
  for (const int risposta : {1, 2}) {
    Mondo mondo;
    Disponi(2, 15, 0);
    mondo.alla[Schermata::FormCarte2Items] = [=] {
      RispostaEsatta = 2;
      Risposta = risposta;
      Premio = kPremio;
    };
    mondo.Esce(7, 9);
    mondo.Tira(2, 2);
    EXPECT_EQ(Gruzzolo[2], risposta == 2 ? Euro::Centesimi(1704) : Euro::Interi(10));
  }
}

TEST(Turno, IlCostoDiUnoSbaglio) {
  const struct {
    int casella;
    const char* testo;
  } casi[] = {{41, "Se sbagli restituisci 7 e torni ad Amsterdam"},
              {43, "Se sbagli restituisci 7 e torni ad Amburgo"},
              {46, "Se sbagli restituisci 7 euro e torni a Oslo"},
              {81, "Se sbagli restituisci 7 euro e torni a Istanbul"}};
  for (const auto& caso : casi) {
    Mondo mondo;
    Disponi(1, caso.casella, 0);
    mondo.alla[Schermata::FormBanconote] = [] { EXPECT_EQ(Messaggio, "Vinci 7 euro"); };
    RispondiSempre(mondo, 0);
    mondo.Esce(8, 9);
    mondo.Tira(1, 7);
    EXPECT_EQ(Messaggio, caso.testo);
    EXPECT_EQ(ColoreCornice, "65280");
  }
}

TEST(Turno, IPassiDellaMossa) {
  Mondo mondo;
  Disponi(2, 3, 4);
  statoTabellone.PosPrecedente[2] = 1;
  RispondiSempre(mondo, 0);
  mondo.Esce(7, 9);
  mondo.Esce(0, 3);
  mondo.Tira(2, 2);
  EXPECT_EQ(mondo.Da("NascondiAnnuncio"),
            "NascondiAnnuncio Riduci 4 Riduci 3 Ridisegna Dadi FormBanconote Riduci 1"
            " Conta 2 10,00..12,00 Scrivi 2 12,00 Colori 255 65280 =123 PrBar"
            " Mostra 2 4 ~116 Pausa Mostra 2 5 ~116 Pausa Colora 5 65535 Libera 3"
            " FormRotazioneCarta FormCarte2Items ~116 AttivaTurno 1");
}

// The last squares, and the overlap: where it ends, with what purse, and who throws next.
TEST(Turno, ArrivoESovrapposizione) {
  struct Caso {
    const char* nome;
    int pos, altro, dado, esito, scelta, risposta;
    int dove, euro;
    bool finale;
  };
  const Caso casi[] = {
      {"passa il traguardo, perde", 90, 0, 12, 2, 0, 2, 90, 10, true},
      {"sul traguardo, rinuncia", 87, 0, 12, 7, 0, 0, 87, 10, true},
      {"puzzle di strada, rinuncia", 20, 0, 12, 1, 0, 0, 32, 22, false},
      {"un passo prima, rinuncia", 86, 0, 12, 7, 0, 0, 98, 22, false},
      {"paga da 98, perde", 90, 98, 8, 7, 1, 2, 90, 5, true},
      {"paga da 98, rinuncia", 90, 98, 8, 7, 1, 0, 90, 5, true},
      {"paga da 97, rinuncia", 90, 97, 7, 7, 1, 0, 98, 12, false},
      {"torna da 98, rinuncia", 90, 98, 8, 7, 2, 0, 97, 18, false},
      {"paga, sbaglia", 15, 20, 5, 0, 1, 2, 15, 5, false},
      {"torna, sbaglia", 15, 20, 5, 0, 2, 2, 15, 10, false},
      {"torna fino al via", 0, 2, 2, 0, 2, 2, 0, 10, false},
  };
  for (const Caso& caso : casi) {
    Mondo mondo;
    SCOPED_TRACE(caso.nome);
    Disponi(2, caso.pos, caso.altro);
    RispondiSempre(mondo, caso.risposta);
    mondo.alla[Schermata::FormSovrapposizioni] = [&] { Risposta = caso.scelta; };
    mondo.Esce(caso.esito, 9);
    if (caso.esito == 0) mondo.Esce(1, 9);
    if (caso.altro > 0) mondo.Esce(0, 3);
    mondo.Tira(2, caso.dado);
    EXPECT_EQ(Pos[2], caso.dove);
    EXPECT_EQ(Gruzzolo[2], Euro::Interi(caso.euro));
    EXPECT_EQ(mondo.Conta("FormSovrapposizioni"), caso.scelta == 0 ? 0 : 1);
    EXPECT_EQ(mondo.Conta("FormProvaPuzzle"), caso.finale || caso.esito == 1 ? 1 : 0);
    EXPECT_EQ(ArrivoRaggiunto, Falso);
    EXPECT_EQ(Giocatore, 1);
    // Segments shown and hidden leave the path as long as the player's way.
    EXPECT_EQ(mondo.Conta("Mostra 2") - mondo.Conta("Nascondi 2"), caso.dove - caso.pos);
    EXPECT_TRUE(mondo.sorti.empty());
  }
}

TEST(Turno, LaDomandaDellaSovrapposizione) {
  Mondo mondo;
  Disponi(1, 38, 42);
  RispondiSempre(mondo, 0);
  mondo.alla[Schermata::FormSovrapposizioni] = Risponde(2);
  mondo.Esce(7, 9);
  mondo.Esce(0, 3);
  mondo.Tira(1, 4);
  EXPECT_TRUE(mondo.Da("Scelta").starts_with(
      "Scelta Pago 5 euro e vado a Amburgo | Non pago niente e torno a Amsterdam"
      " FormSovrapposizioni Pausa Nascondi 1 42 PrBar Ridisegna Colora 41 65280 Libera 38"))
      << mondo.Da("Scelta");
}

// An extra throw goes to the same player, and no surprise is drawn for it.
TEST(Turno, AncoraIlDado) {
  for (const int g : {1, 2}) {
    Mondo mondo;
    Disponi(g, 10, 30);
    Sorpresa = 1;
    mondo.Esce(2, 9);
    mondo.Esce(10, 31);
    mondo.Tira(g, 5);
    EXPECT_EQ(Giocatore, g);
    EXPECT_EQ(Sorpresa, 0);
    EXPECT_EQ(Gruzzolo[g], Euro::Interi(10 + 5 - 1 + 5));
    EXPECT_EQ(statoTabellone.PosPrecedente[g], 15);
    EXPECT_TRUE(mondo.Da("AttivaTurno").ends_with("AttivaTurno " + std::to_string(g)));
    EXPECT_TRUE(mondo.sorti.empty());
  }
}

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

TEST(Eventi, LeDomandePrimaDelPrimoLancioNonRisolvonoTurni) {
  Mondo mondo;
  eventi::Form_Activate();  // the board is first shown
  mondo.alla[Schermata::FormMessaggi] = [] {
    EXPECT_EQ(Messaggio, "Vuoi uscire dal gioco?");
    Risposta = 2;
  };
  eventi::cmdExit_Click();
  EXPECT_EQ(RitornoProva, Falso);
  eventi::CmdHelp_Click();
  EXPECT_EQ(InfoDaPartita, Vero);
  // The start screen's question left its flag up; the board's first activation takes it down.
  RitornoProva = Vero;
  eventi::Form_Activate();
  EXPECT_EQ(mondo.righe, (std::vector<std::string>{"FormMessaggi", "FormInfo"}));
  EXPECT_EQ(Giocatore, 0);
  RinunciaAlPrimoTurno(mondo, 2);
}

TEST(Eventi, LaPrimaCartolinaDaLaMossaAlPrimo) {
  Mondo mondo;
  statoTabellone.TurnoInCorso = Vero;  // the cities are silent during a throw
  eventi::cmdcitta_Click(42);
  EXPECT_TRUE(mondo.righe.empty());
  statoTabellone.TurnoInCorso = Falso;
  mondo.alla[Schermata::FormCitta] = [] { EXPECT_FALSE(CaricaCitta().pacco); };
  eventi::cmdcitta_Click(42);
  EXPECT_EQ(CittaCliccata, 42);
  EXPECT_EQ(Giocatore, 1);
  EXPECT_EQ(mondo.Da("FormCitta"), "FormCitta AttivaTurno 1");
  RinunciaAlPrimoTurno(mondo, 1);
}

}  // namespace
}  // namespace girovia
