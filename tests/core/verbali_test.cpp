// What the rules do, call by call, held against records that were read line by line when they were
// made: verbali/<name>.txt. GIROVIA_RINNOVA=1 makes them anew; read the difference.
#include <cstdlib>
#include <fstream>

#include "content/atlante.h"
#include "core/eventi.h"
#include "core/frasi.h"
#include "core/gruzzolo.h"
#include "core/imprevisti.h"
#include "core/premiazione.h"
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

// Answers all trials alike. The bonus screen sets the prize where a trial has none.
void RispondiSempre(Mondo& mondo, int risposta) {
  for (const Schermata prova : {Schermata::FormProvaOrdinamento, Schermata::FormProvaPuzzle,
                                Schermata::FormCarte4Items, Schermata::FormCarte2Items})
    mondo.alla[prova] = Risponde(risposta, Euro::Centesimi(504));
  for (const Schermata prova : {Schermata::FormProvaCitta, Schermata::FormProvaCapitali})
    mondo.alla[prova] = Risponde(risposta, Euro::Interi(99));
  mondo.alla[Schermata::FormBonus] = [] { Premio = Euro::Centesimi(504); };
}

// Runs something that may end the program.
template <class Cosa>
void FinoAllaFine(const Cosa& cosa) {
  try {
    cosa();
  } catch (const FineDelGioco&) {
  }
}

std::string Numero(int n) { return std::to_string(n); }

// --- Each writes its part of a record, under headings of its own.
using Scrittura = std::function<void(const std::string& titolo, Mondo&)>;

// Each outcome of a move with each answer, for both players; and the statement that is false.
void Esiti(const Scrittura& scrivi) {
  for (int r = 0; r < 9; ++r)
    for (const int risposta : {0, 1, 2}) {
      if (r == 2 && risposta > 0) continue;
      Mondo mondo;
      const int g = 1 + (r + risposta) % 2;
      Disponi(g, 15, 0);
      RispondiSempre(mondo, risposta);
      RispostaEsatta = 1 + r % 2;
      mondo.Esce(r, 9);
      if (r < 7 && r != 1) mondo.Esce(r == 2 ? 7 : 1, r == 2 ? 31 : 100);  // the pool's draw
      mondo.Tira(g, 2);
      scrivi("esito " + Numero(r) + ", risposta " + Numero(risposta) + ", esatta " +
                 Numero(RispostaEsatta),
             mondo);
    }
}

// The last squares and the overlap: where a throw ends, with what purse, and who throws next.
void Arrivo(const Scrittura& scrivi) {
  struct Caso {
    const char* nome;
    int g, pos, altro, dado, esito, scelta, risposta;
  };
  const Caso casi[] = {
      {"passa il traguardo, perde", 2, 90, 0, 12, 2, 0, 2},
      {"sul traguardo, rinuncia", 1, 87, 0, 12, 7, 0, 0},
      {"sul traguardo, vince", 2, 87, 0, 12, 3, 0, 1},
      {"passa il traguardo, vince il primo", 1, 95, 94, 12, 3, 0, 1},
      {"puzzle di strada, vince", 2, 20, 0, 12, 1, 0, 1},
      {"puzzle di strada, rinuncia", 2, 20, 0, 12, 1, 0, 0},
      {"un passo prima, rinuncia", 2, 86, 0, 12, 7, 0, 0},
      {"paga da 98, perde", 2, 90, 98, 8, 7, 1, 2},
      {"paga da 98, rinuncia", 1, 90, 98, 8, 7, 1, 0},
      {"paga da 97, rinuncia", 2, 90, 97, 7, 7, 1, 0},
      {"torna da 98, rinuncia", 2, 90, 98, 8, 7, 2, 0},
      {"paga, sbaglia", 2, 15, 20, 5, 0, 1, 2},
      {"torna, sbaglia", 2, 15, 20, 5, 0, 2, 2},
      {"torna fino al via, il primo", 1, 0, 2, 2, 0, 2, 2},
      {"si lascia la casella dell'altro", 2, 20, 20, 5, 7, 0, 0},
  };
  for (const Caso& caso : casi) {
    Mondo mondo;
    Disponi(caso.g, caso.pos, caso.altro);
    RispondiSempre(mondo, caso.risposta);
    mondo.alla[Schermata::FormSovrapposizioni] = Risponde(caso.scelta);
    mondo.alla[Schermata::FormPremiazione] = Risponde(6);
    mondo.uscite = {kSi};
    mondo.Esce(caso.esito, 9);
    if (caso.esito == 0) mondo.Esce(1, 9);
    if (caso.altro > 0) mondo.Esce(0, 3);
    FinoAllaFine([&] { mondo.Tira(caso.g, caso.dado); });
    mondo.sorti.clear();
    scrivi(caso.nome, mondo);
  }
}

void CostiEAnnunci(const Scrittura& scrivi) {
  for (const int casella : {3, 36, 37, 41, 43, 46, 73, 81, 86}) {
    Mondo mondo;
    Disponi(1 + casella % 2, casella, 1);
    RispondiSempre(mondo, 0);
    mondo.Esce(8, 9);
    mondo.Esce(1, 3);
    const int g = Giocatore;
    mondo.Tira(g, 7);
    Giocatore = g;
    Pos[g] = casella;
    mondo.righe.assign(1, Messaggio);
    mondo.righe.push_back(TestoPrBar(g));
    mondo.Esce(1, 3);
    ProceduraSorpresa();
    scrivi("costo e annuncio di " + std::string(NomeCasella(casella)), mondo);
  }
}

// All cards for both players, with the page as it is composed.
void Carte(const Scrittura& scrivi) {
  for (int carta = 0; carta < 31; ++carta)
    for (int g : {1, 2}) {
      Mondo mondo;
      Disponi(g, 30, 50);
      Gruzzolo[1] = Euro::Interi(20);
      Gruzzolo[2] = Euro::Centesimi(1235);
      IndiceImprevisto = carta;
      mondo.Esce(carta % 2, 2);
      const PaginaImprevisto pagina = CaricaImprevisto();
      mondo.sorti.clear();
      mondo.righe.insert(
          mondo.righe.begin(),
          {pagina.titolo, pagina.sinistra, pagina.destra,
           "aereo " + Numero(pagina.aereo) + ", intanto " + TestoImporto(Gruzzolo[1]) + " e " +
               TestoImporto(Gruzzolo[2]) + ", casella " + Numero(Pos[g])});
      GestioneImprevisti();
      scrivi("carta " + Numero(carta) + ", giocatore " + Numero(g), mondo);
    }
}

void CarteAlLimite(const Scrittura& scrivi) {
  const struct {
    int carta, g;
    std::int64_t uno, due;
    int pos, altro, d;
  } casi[] = {
      {8, 1, 100'000, 100'000, 30, 50, 0},
      {9, 2, 100'000, 100'001, 30, 50, 0},
      {2, 1, 75'000, 100'000, 30, 50, 0},
      {3, 2, 100'001, 100'002, 30, 50, 0},
      {3, 1, 100'000, 100'001, 30, 50, 0},
      {5, 1, 0, -100'000, 30, 50, 0},
      {6, 2, 0, -100'000, 30, 50, 0},
      {5, 1, 10, 30, 30, 50, 0},
      {30, 1, 40'000, 0, 30, 50, 0},
      {14, 1, 0, 0, 2, 50, 0},
      {14, 2, 0, 0, 7, 50, 0},
      {15, 1, 0, 0, 7, 13, 0},
      {16, 2, 0, 0, 8, 50, 0},
      {17, 2, 0, 0, 8, 2, 0},
      {18, 1, 0, 0, 8, 50, 1},
      {19, 2, 0, 0, 91, 50, 1},
      {14, 2, 0, 0, 91, 97, 1},
      {14, 1, 0, 0, 91, 85, 0},
      {15, 2, 0, 0, 92, 50, 1},
      {16, 1, 0, 0, 98, 92, 1},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    Disponi(caso.g, caso.pos, caso.altro);
    Gruzzolo[1] = Euro::Decimillesimi(caso.uno);
    Gruzzolo[2] = Euro::Decimillesimi(caso.due);
    IndiceImprevisto = caso.carta;
    mondo.Esce(caso.d, 2);
    mondo.righe.push_back(CaricaImprevisto().destra);
    mondo.sorti.clear();
    GestioneImprevisti();
    scrivi(
        "carta " + Numero(caso.carta) + ", giocatore " + Numero(caso.g) + " da " + Numero(caso.pos),
        mondo);
  }
}

// Whole turns that end with a card: another throw, a flight.
void TurniConCarta(const Scrittura& scrivi) {
  for (int g : {1, 2})
    for (const int carta : {10, 14}) {
      Mondo mondo;
      Disponi(g, 10, 30);
      Sorpresa = 1;
      mondo.alla[Schermata::FormImprevisti] = [] { CaricaImprevisto(); };
      mondo.Esce(2, 9);
      mondo.Esce(carta, 31);
      if (carta == 14) {
        mondo.Esce(1, 2);
        mondo.Esce(2, 3);
      }
      mondo.Tira(g, 5);
      scrivi("turno con la carta " + Numero(carta) + ", giocatore " + Numero(g), mondo);
    }
}

void Doni(const Scrittura& scrivi) {
  for (int r = 0; r < 9; ++r) {
    Mondo mondo;
    const int g = 1 + r % 2;
    Disponi(g, r == 8 ? 1 : 5, 7);
    Gruzzolo[g] = Euro::Interi(1);
    Sorpresa = 1;
    mondo.Esce(r, 9);
    mondo.alla[Schermata::FormCitta] = [&] {
      const PaginaCitta pagina = CaricaCitta();
      mondo.righe.push_back((pagina.pacco ? "pacco: " : "") + std::string(pagina.testo));
      mondo.righe.push_back(std::string(ApriSorpresa()));
    };
    eventi::cmdcitta_Click(Pos[g]);
    scrivi("dono " + Numero(r) + ", giocatore " + Numero(g), mondo);
  }
}

// A surprise rolled, announced, blinking to its end, lost, and left over from the other player.
void Sorprese(const Scrittura& scrivi) {
  for (const int k : {0, 1, 2}) {
    Mondo mondo;
    Disponi(1, 1, 7);
    statoTabellone.ContaLampeggi = 30;
    mondo.Esce(k, 3);
    ProceduraSorpresa();
    if (k == 1)
      for (int i = 0; i < 30; ++i) TimerSorpresa_Timer();
    scrivi("sorte " + Numero(k), mondo);
  }
  Mondo mondo;
  const auto cartolina = [&](int citta) {
    CittaCliccata = citta;
    const PaginaCitta pagina = CaricaCitta();
    mondo.righe.push_back((pagina.pacco ? "pacco: " : "") + std::string(pagina.testo));
  };
  Disponi(2, 5, 0);
  Sorpresa = 1;
  cartolina(6);
  cartolina(5);
  scrivi("persa per un'altra cartolina", mondo);
  Sorpresa = 1;
  Giocatore = 1;
  cartolina(0);
  scrivi("rimasta dall'altro, sul via", mondo);
  mondo.alla[Schermata::FormProvaOrdinamento] = Risponde(0);
  Disponi(2, 1, 1);
  mondo.Esce(0, 9);
  mondo.Esce(0, 9);
  mondo.Esce(1, 3);
  mondo.Tira(2, 7);
  scrivi("per chi sta sulla prima casella", mondo);
}

// What a click puts away, and what brings it back.
void Clic(const Scrittura& scrivi) {
  Mondo mondo;
  eventi::Form_Activate();
  scrivi("il tabellone si apre", mondo);
  mondo.alla[Schermata::FormMessaggi] = Risponde(2);
  eventi::cmdExit_Click();
  scrivi("uscita: no", mondo);
  eventi::CmdHelp_Click();
  scrivi("aiuto", mondo);
  RitornoProva = Vero;  // left by the start screen's question
  eventi::Form_Activate();
  scrivi("il tabellone dopo la domanda dell'inizio", mondo);
  statoTabellone.TurnoInCorso = Vero;
  eventi::cmdcitta_Click(42);
  scrivi("una citta durante un turno", mondo);
  statoTabellone.TurnoInCorso = Falso;
  mondo.alla[Schermata::FormCitta] = [] { CaricaCitta(); };
  eventi::cmdcitta_Click(42);
  scrivi("una citta prima del primo lancio", mondo);
  mondo.alla[Schermata::FormProvaOrdinamento] = Risponde(0);
  for (int g : {1, 2}) {
    mondo.Esce(0, 9);
    mondo.Esce(g, 9);
    if (g == 2) mondo.Esce(0, 3);
    mondo.Tira(g, 7 + g);
    scrivi("primo lancio del giocatore " + Numero(g), mondo);
  }
  eventi::cmdcitta_Click(8);
  scrivi("una citta tra due turni", mondo);
  mondo.alla[Schermata::FormMessaggi] = Risponde(1);
  FinoAllaFine([] { eventi::cmdExit_Click(); });
  scrivi("uscita: si", mondo);
}

void Cerimonie(const Scrittura& scrivi) {
  const struct {
    int uno, due, pos1, pos2;
  } casi[] = {{30, 20, 50, 99}, {20, 30, 99, 50}, {20, 20, 99, 50},
              {20, 20, 50, 99}, {20, 20, 50, 50}, {-5, -4, 99, 50}};
  for (const auto& caso : casi) {
    Mondo mondo;
    Ritratto[1] = 124;
    Ritratto[2] = 135;
    Gruzzolo[1] = Euro::Interi(caso.uno);
    Gruzzolo[2] = Euro::Interi(caso.due);
    Disponi(1, caso.pos1, caso.pos2);
    std::deque<int> scelte = {1, 2, 3, 6, 4, 4, 5, 6};
    mondo.alla[Schermata::FormPremiazione] = [&] {
      Risposta = scelte.front();
      scelte.pop_front();
    };
    mondo.uscite = {kNo, kSi};
    for (int n : {0, 13, 13, 0}) mondo.Esce(n, 14);  // never 0 first, never the last one again
    FinoAllaFine([] { CerimoniaDiPremiazione(); });
    scrivi("cerimonia con " + Numero(caso.uno) + " e " + Numero(caso.due), mondo);
  }
}

// By the full value of the purses, though two of them look alike.
void Colori(const Scrittura& scrivi) {
  for (const int scarto : {-1, 0, 1})
    for (int g : {1, 2}) {
      Mondo mondo;
      Giocatore = g;
      Gruzzolo[1] += Euro::Decimillesimi(scarto);
      RicalcolaGruzzolo();
      scrivi("scarto " + Numero(scarto) + ", giocatore " + Numero(g), mondo);
    }
}

const struct {
  const char* nome;
  void (*scena)(const Scrittura&);
} kVerbali[] = {{"esiti", Esiti},
                {"arrivo", Arrivo},
                {"costi-e-annunci", CostiEAnnunci},
                {"carte", Carte},
                {"carte-al-limite", CarteAlLimite},
                {"turni-con-carta", TurniConCarta},
                {"doni", Doni},
                {"sorprese", Sorprese},
                {"clic", Clic},
                {"cerimonie", Cerimonie},
                {"colori", Colori}};

TEST(Verbali, TheRulesDoAsRecorded) {
  for (const auto& verbale : kVerbali) {
    std::string avuto;
    verbale.scena([&avuto](const std::string& titolo, Mondo& mondo) {
      avuto += "# " + titolo + "\n" + mondo.Verbale() + "\n";
    });
    const std::string file = std::string(VERBALI) + "/" + verbale.nome + ".txt";
    if (std::getenv("GIROVIA_RINNOVA")) std::ofstream(file) << avuto;
    std::stringstream atteso;
    atteso << std::ifstream(file).rdbuf();
    // The first line that differs says more than two long texts.
    std::istringstream a(avuto), b(atteso.str());
    std::string titolo, rigaA, rigaB;
    while (std::getline(a, rigaA)) {
      if (rigaA.starts_with('#')) titolo = rigaA;
      if (!std::getline(b, rigaB)) rigaB = "(the end)";
      ASSERT_EQ(rigaA, rigaB) << verbale.nome << ", under " << titolo;
    }
    EXPECT_FALSE(std::getline(b, rigaB)) << verbale.nome << " goes on with " << rigaB;
  }
}

}  // namespace
}  // namespace girovia
