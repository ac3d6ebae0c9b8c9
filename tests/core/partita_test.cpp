#include <sstream>

#include "core/imprevisti.h"
#include "core/sorprese.h"
#include "core/tabellone.h"
#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

// Writes a game down, one line a throw: who, the dice, the screens and answers, and where both
// stand with what.
class Cronaca {
 public:
  Cronaca() {
    for (const Schermata prova :
         {Schermata::FormProvaOrdinamento, Schermata::FormProvaPuzzle, Schermata::FormCarte4Items,
          Schermata::FormCarte2Items, Schermata::FormProvaCitta, Schermata::FormProvaCapitali,
          Schermata::FormSovrapposizioni}) {
      mondo.alla[prova] = [this] {
        Risposta = risposte.front();
        risposte.pop_front();
        RispostaEsatta = 1;
        Premio = Euro::Centesimi(250);
        mondo.righe.back().append("=").append(std::to_string(Risposta));
      };
    }
    mondo.alla[Schermata::FormImprevisti] = [this] {
      const PaginaImprevisto pagina = CaricaImprevisto();
      mondo.righe.back().append(" (" + pagina.destra + ")");
    };
    mondo.alla[Schermata::FormCitta] = [] {
      if (CaricaCitta().pacco) ApriSorpresa();
    };
    mondo.alla[Schermata::FormPremiazione] = Risponde(6);
    mondo.uscite = {kSi};
  }

  // esito of nine, then what its pool, flight or the surprise of the next player draw.
  void Turno(int dado, std::vector<std::pair<int, int>> sorti, std::deque<int> con = {}) {
    const int g = Giocatore == 0 ? 2 : Giocatore;
    risposte = std::move(con);
    for (const auto& [k, n] : sorti) mondo.Esce(k, n);
    try {
      mondo.Tira(g, dado);
    } catch (const FineDelGioco&) {
      mondo.righe.push_back("Annuncio fine");
    }
    Chiudi(mod_Girovia::Nome[g] + " " + std::to_string(dado));
  }

  void Sorpresa(int r) {
    mondo.Esce(r, 9);
    tabellone::cmdcitta_Click(Pos[Giocatore]);
    Chiudi(mod_Girovia::Nome[Giocatore] + " apre");
  }

  std::string Testo() const { return cronaca.str(); }

 private:
  void Chiudi(const std::string& inizio) {
    cronaca << inizio << ":";
    for (const std::string& riga : mondo.righe) {
      if (riga.starts_with("Form") && riga != "FormBanconote") cronaca << ' ' << riga.substr(4);
      if (riga.starts_with("Annuncio ")) cronaca << " [" << riga.substr(riga.rfind(' ') + 1) << "]";
    }
    for (int p = 1; p <= 2; ++p) cronaca << " | " << Pos[p] << ' ' << TestoImporto(Gruzzolo[p]);
    cronaca << '\n';
    EXPECT_TRUE(mondo.sorti.empty());
    EXPECT_TRUE(risposte.empty());
    mondo.righe.clear();
  }

  Mondo mondo;
  std::deque<int> risposte;
  std::ostringstream cronaca;
};

TEST(Partita, DaLaVallettaABruxelles) {
  Cronaca c;
  c.Turno(9, {{7, 9}}, {1});
  c.Turno(9, {{0, 9}, {3, 9}, {1, 3}}, {1, 1});
  c.Sorpresa(3);
  c.Turno(12, {{1, 9}, {0, 3}}, {2});
  c.Turno(12, {{2, 9}, {14, 31}, {1, 2}, {2, 3}});
  c.Turno(12, {{2, 9}, {6, 31}, {0, 3}});
  c.Turno(12, {{2, 9}, {10, 31}});
  c.Turno(11, {{5, 9}, {7, 41}, {0, 3}}, {0});
  c.Turno(12, {{3, 9}, {1, 100}, {0, 3}}, {1});
  c.Turno(12, {{4, 9}, {34, 35}, {0, 3}}, {1});
  c.Turno(12, {{8, 9}, {0, 3}}, {2});
  c.Turno(12, {{6, 9}, {7, 41}, {8, 41}, {0, 3}}, {1});
  c.Turno(11, {{0, 9}, {8, 9}, {0, 3}}, {1});
  c.Turno(12, {{2, 9}, {4, 31}, {29, 31}, {0, 3}});
  c.Turno(12, {{7, 9}, {0, 3}}, {0});
  c.Turno(12, {{6, 9}, {0, 3}}, {2});
  c.Turno(12, {{7, 9}, {1, 3}}, {1});
  c.Turno(12, {{0, 9}}, {1});
  EXPECT_EQ(c.Testo(), R"(Secondo 9: RotazioneCarta Carte2Items=1 | 0 10,00 | 9 21,50
Primo 9: Sovrapposizioni=1 ProvaOrdinamento=1 [Strasburgo] | 10 16,50 | 9 21,50
Secondo apre: Citta | 10 16,50 | 9 16,50
Secondo 12: ProvaPuzzle=2 | 10 16,50 | 9 16,50
Primo 12: Imprevisti (Primo ha ricevuto un biglietto omaggio per andare a Parigi.) | 28 27,50 | 9 16,50
Secondo 12: Imprevisti (Ogni giocatore paga un importo pari al 10% del suo conto.) | 28 24,75 | 21 24,75
Primo 12: Imprevisti (Girovia ti regala 5 € e tu tiri ancora il dado!) | 40 40,75 | 21 24,75
Primo 11: RotazioneCarta Carte4Items=0 | 51 51,75 | 21 24,75
Secondo 12: ProvaCitta=1 Bonus | 51 51,75 | 33 39,25
Primo 12: ProvaCapitali=1 Bonus | 63 66,25 | 33 39,25
Secondo 12: RotazioneCarta Carte2Items=2 | 63 66,25 | 33 39,25
Primo 12: RotazioneCarta Carte4Items=1 | 75 80,75 | 33 39,25
Secondo 11: ProvaOrdinamento=1 | 75 80,75 | 44 52,75
Primo 12: Imprevisti (Girovia News regala 10 euro a Primo.) | 87 101,75 | 44 52,75
Secondo 12: RotazioneCarta Carte2Items=0 | 87 101,75 | 56 64,75
Primo 12: ProvaPuzzle=2 | 87 101,75 | 56 64,75
Secondo 12: RotazioneCarta Carte2Items=1 [Tirana] | 87 101,75 | 68 79,25
Primo 12: ProvaPuzzle=1 Premiazione [fine] | 99 116,25 | 68 79,25
)");
}

}  // namespace
}  // namespace girovia
