// A world for the rules to run in: its screens answer from a script, its dice and draws come from
// queues, and every call that the rules make is written down, with what a screen can read as it
// opens.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace girovia {

class Mondo : public Tabellone,
              public Comandi,
              public Cerimonia,
              public Schermi,
              public Suoni,
              public Attese,
              public Caso {
 public:
  Mondo();  // a fresh game with players Primo and Secondo
  ~Mondo() override;

  // The next draws: k of n each. A draw beyond the queue throws, and so does one asked of another
  // n where it matters: its value would be wrong.
  void Esce(int k, int n) { sorti.push_back((k + 0.5) / n); }

  // Throws the dice for the player, who clicks his portrait.
  void Tira(int giocatore, int dado);

  std::deque<double> sorti;
  std::function<double()> generatore;  // instead of the queue
  // What a screen does before it closes; the default leaves everything as it is.
  std::map<Schermata, std::function<void()>> alla;
  std::vector<std::string> righe;
  std::deque<int> uscite;  // answers of the question box
  int lancio = 0;

  // Everything so far, a line each, with the state of the game at the end; and begins afresh.
  std::string Verbale();

 private:
  template <class... Pezzi>
  void Scrivi(std::string_view nome, Pezzi... pezzi) {
    std::ostringstream riga;
    riga << nome;
    ((riga << ' ' << pezzi), ...);
    righe.push_back(riga.str());
  }

  void RiduciCasella(int i) override { Scrivi("Riduci", i); }
  void IngrandisciCasella(int i) override { Scrivi("Ingrandisci", i); }
  void ColoraCasella(int i, int colore) override { Scrivi("Colora", i, colore); }
  void LiberaCasella(int i) override { Scrivi("Libera", i); }
  void MostraTratto(int p, int i) override { Scrivi("Mostra", p, i); }
  void NascondiTratto(int p, int i) override { Scrivi("Nascondi", p, i); }
  void AttivaTurno(int p) override { Scrivi("AttivaTurno", p); }
  void RefreshPrBar() override { Scrivi("PrBar"); }
  void Ridisegna() override { Scrivi("Ridisegna"); }
  void ContaGruzzolo(int p, Euro da, Euro a) override {
    Scrivi("Conta", p, TestoImporto(da) + ".." + TestoImporto(a));
  }
  void ScriviGruzzolo(int p, Euro valore) override { Scrivi("Scrivi", p, TestoImporto(valore)); }
  void ColoraGruzzoli(int uno, int due) override { Scrivi("Colori", uno, due); }
  void SvuotaGruzzolo(int p) override { Scrivi("Svuota", p); }
  void ScriviAnnuncio(std::string_view testo) override { Scrivi("Annuncio", testo); }
  void AvviaLampeggio() override { Scrivi("AvviaLampeggio"); }
  void FermaLampeggio() override { Scrivi("FermaLampeggio"); }
  void ScambiaAnnuncio() override { Scrivi("ScambiaAnnuncio"); }

  void EseguiEventi() override { Scrivi("Eventi"); }
  void SpegniTimer() override { Scrivi("SpegniTimer"); }
  void NascondiAiuto() override { Scrivi("NascondiAiuto"); }
  void NascondiUscita() override { Scrivi("NascondiUscita"); }
  void MostraUscita() override { Scrivi("MostraUscita"); }
  void RiposaRitratti() override { Scrivi("RiposaRitratti"); }
  void NascondiRitratti() override { Scrivi("NascondiRitratti"); }
  void NascondiAnnuncio() override { Scrivi("NascondiAnnuncio"); }

  void SgombraTabellone() override { Scrivi("Sgombra"); }
  void NascondiPercorso() override { Scrivi("NascondiPercorso"); }
  void TingiTabellone() override { Scrivi("Tingi"); }
  void MostraCorona() override { Scrivi("Corona"); }
  void MostraVincitore(int ritratto) override { Scrivi("Vincitore", ritratto); }
  void SalvaSfondoPremio() override { Scrivi("SalvaSfondo"); }
  void MostraTrofeo() override { Scrivi("Trofeo"); }
  void MostraBanconota500(int p) override { Scrivi("Banconota500", p); }
  void MostraBanconota50(int p) override { Scrivi("Banconota50", p); }
  void TogliPremioSpeciale() override { Scrivi("TogliPremio"); }
  void MostraPremioSpeciale(int numero) override { Scrivi("Premio", numero); }
  void MostraCongratulazioni() override { Scrivi("Congratulazioni"); }
  int Chiedi(std::string_view titolo, std::string_view testo) override;

  void PreparaSovrapposizioni(std::string_view label2, std::string_view label3) override {
    Scrivi("Scelta", label2, "|", label3);
  }
  void MostraModale(Schermata form) override;
  void MostraNonModale(Schermata form) override;
  void FineProgramma() override;

  void SuonoAsync(std::string_view nome) override { Scrivi("~" + std::string(nome)); }
  void SuonoSync(std::string_view nome) override { Scrivi("=" + std::string(nome)); }
  void Pausa04() override { Scrivi("Pausa"); }
  double Rnd() override;
};

// Thrown by the end of the program, as the real one throws.
struct FineDelGioco {};

// A trial that closes with this answer, and this prize.
std::function<void()> Risponde(int risposta, Euro premio = {});

}  // namespace girovia
