// A world for the rules to run in: its screens answer from a script, its dice and draws come from
// queues, and all that the rules ask of it is written down.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace girovia {

std::string NomeForm(Schermata form);

class Mondo : public Tabellone,
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
  int lancio = 0;

  // The transcript from the last line that starts so, joined by blanks.
  std::string Da(const std::string& inizio) const;
  int Conta(const std::string& inizio) const;

 private:
  void Scrivi(std::string riga) { righe.push_back(std::move(riga)); }

  void RiduciCasella(int i) override;
  void IngrandisciCasella(int i) override;
  void ColoraCasella(int i, int colore) override;
  void LiberaCasella(int i) override;
  void MostraTratto(int p, int i) override;
  void NascondiTratto(int p, int i) override;
  void AttivaTurno(int p) override;
  void RefreshPrBar() override { Scrivi("PrBar"); }
  void Ridisegna() override { Scrivi("Ridisegna"); }
  void ContaGruzzolo(int p, Euro da, Euro a) override;
  void ScriviGruzzolo(int p, Euro valore) override;
  void ColoraGruzzoli(int colore1, int colore2) override;
  void EseguiEventi() override { Scrivi("Eventi"); }
  void NascondiAnnuncio() override { Scrivi("NascondiAnnuncio"); }
  void ScriviAnnuncio(std::string_view testo) override;
  void AvviaLampeggio() override { Scrivi("AvviaLampeggio"); }
  void FermaLampeggio() override { Scrivi("FermaLampeggio"); }
  void ScambiaAnnuncio() override { Scrivi("ScambiaAnnuncio"); }
  void PreparaSovrapposizioni(std::string_view label2, std::string_view label3) override;

  void MostraTrofeo() override { Scrivi("Trofeo"); }
  void MostraBanconota500(int p) override;
  void MostraBanconota50(int p) override;
  void TogliPremioSpeciale() override { Scrivi("TogliPremio"); }
  void MostraPremioSpeciale(int numero) override;
  void MostraCongratulazioni() override { Scrivi("Congratulazioni"); }
  int Chiedi(std::string_view titolo, std::string_view testo) override;

  void MostraModale(Schermata form) override;
  void MostraNonModale(Schermata form) override;
  void FineProgramma() override;

  void SuonoAsync(std::string_view nome) override;
  void SuonoSync(std::string_view nome) override;
  void Pausa04() override { Scrivi("Pausa"); }
  double Rnd() override;

 public:
  std::deque<int> uscite;  // answers of the question box
};

// Thrown by the end of the program, as the real one throws.
struct FineDelGioco {};

// A trial that closes with this answer, and this prize.
std::function<void()> Risponde(int risposta, Euro premio = {});

}  // namespace girovia
