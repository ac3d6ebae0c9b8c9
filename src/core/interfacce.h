// What the rules ask of the world around them. A run without a screen leaves most of it empty.
#pragma once

#include <string_view>

#include "core/soldi.h"

namespace girovia {

enum class Schermata {
  Dadi,
  FormBanconote,
  FormBonus,
  FormCarte2Items,
  FormCarte4Items,
  FormCitta,
  FormImprevisti,
  FormInfo,
  FormMessaggi,
  FormPremiazione,
  FormProvaCapitali,
  FormProvaCitta,
  FormProvaOrdinamento,
  FormProvaPuzzle,
  FormRotazioneCarta,
  FormSovrapposizioni,
  Splash,
};

inline constexpr int kNumeroSchermate = int(Schermata::Splash) + 1;

// The board, as the rules have it show what they do. p is a player, i a square; MostraTratto and
// NascondiTratto count the segment that ends on square i.
class Tabellone {
 public:
  virtual ~Tabellone() = default;

  virtual void RiduciCasella(int /*i*/) {}
  virtual void IngrandisciCasella(int /*i*/) {}
  virtual void ColoraCasella(int /*i*/, int /*colore*/) {}
  virtual void LiberaCasella(int /*i*/) {}

  // Each repaints its segment at once.
  virtual void MostraTratto(int /*p*/, int /*i*/) {}
  virtual void NascondiTratto(int /*p*/, int /*i*/) {}

  virtual void AttivaTurno(int /*p*/) {}
  virtual void RefreshPrBar() {}  // both lines from TestoPrBar
  virtual void Ridisegna() {}     // repaints the whole board

  // Runs the figure of p up cent by cent, repainting each; does nothing if da is above a.
  virtual void ContaGruzzolo(int /*p*/, Euro /*da*/, Euro /*a*/) {}
  // Writes the money text of the value, or no text at all, and repaints the figure.
  virtual void ScriviGruzzolo(int /*p*/, Euro /*valore*/) {}
  virtual void SvuotaGruzzolo(int /*p*/) {}
  virtual void ColoraGruzzoli(int /*colore1*/, int /*colore2*/) {}  // repaints both

  // The surprise.
  virtual void ScriviAnnuncio(std::string_view /*testo*/) {}
  virtual void AvviaLampeggio() {}   // TimerSorpresa on
  virtual void FermaLampeggio() {}   // TimerSorpresa off
  virtual void ScambiaAnnuncio() {}  // label and oval: both hidden if the label shows, else shown
};

// What a click puts away on the board, and what brings it back.
class Comandi {
 public:
  virtual ~Comandi() = default;

  virtual void EseguiEventi() {}   // lets pending events run
  virtual void SpegniTimer() {}    // TimerCitta, TimerPrimo(1), TimerPrimo(2)
  virtual void NascondiAiuto() {}  // CmdHelp
  virtual void NascondiUscita() {}
  virtual void MostraUscita() {}
  virtual void RiposaRitratti() {}    // both portraits to their place and size at rest
  virtual void NascondiRitratti() {}  // portraits, words, arrows; thin frames
  virtual void NascondiAnnuncio() {}  // LblSorpresa and ShpOvale, without stopping the timer
};

// Results of the system's question box.
inline constexpr int kSi = 6;
inline constexpr int kNo = 7;

// Pictures of the award ceremony. p is a player.
class Cerimonia {
 public:
  virtual ~Cerimonia() = default;

  // The opening, in this order.
  virtual void SgombraTabellone() {}  // portrait timers off; exit, portraits, words, arrows hidden
  virtual void NascondiPercorso() {}  // squares, labels and segments
  virtual void TingiTabellone() {}    // and repaints
  virtual void MostraCorona() {}
  virtual void MostraVincitore(int /*ritratto*/) {}
  virtual void SalvaSfondoPremio() {}

  // The prizes; each repaints.
  virtual void MostraTrofeo() {}
  virtual void MostraBanconota500(int /*p*/) {}         // at the side of p
  virtual void MostraBanconota50(int /*p*/) {}          // p gives
  virtual void TogliPremioSpeciale() {}                 // puts the saved piece back
  virtual void MostraPremioSpeciale(int /*numero*/) {}  // 0 to 13
  virtual void MostraCongratulazioni() {}

  // The system's question box with the buttons yes and no: kSi or kNo.
  virtual int Chiedi(std::string_view /*titolo*/, std::string_view /*testo*/) { return kSi; }
};

class Schermi {
 public:
  virtual ~Schermi() = default;

  // Returns when the screen has closed, and with it the chain of the board's activation has run.
  virtual void MostraModale(Schermata) {}
  virtual void MostraNonModale(Schermata) {}
  // The players are ready: the board comes, not modally, and stays to the end.
  virtual void ApriTabellone() {}

  // Texts of Label2 and Label3 of the overlap dialog, before it is shown.
  virtual void PreparaSovrapposizioni(std::string_view /*label2*/, std::string_view /*label3*/) {}

  // Ends the program at once. It may throw through the rules; where it returns, they do too.
  virtual void FineProgramma() {}
};

class Suoni {
 public:
  virtual ~Suoni() = default;
  virtual void SuonoAsync(std::string_view /*nome*/) {}
  virtual void SuonoSync(std::string_view /*nome*/) {}
};

class Attese {
 public:
  virtual ~Attese() = default;
  virtual void Pausa04() {}
};

class Caso {
 public:
  virtual ~Caso() = default;
  // Reseeds from the clock and draws: uniform, 0 <= u < 1.
  virtual double Rnd() = 0;
};

// The empty default of everything but caso, which must be set before a rule draws.
struct Servizi {
  Servizi();

  Tabellone* tabellone;
  Comandi* comandi;
  Cerimonia* cerimonia;
  Schermi* schermi;
  Suoni* suoni;
  Attese* attese;
  Caso* caso = nullptr;
};

// Set its members before the first rule runs, and keep what they point to alive.
Servizi& servizi();

// floor(u × n): each of 0 to n - 1 has the same chance.
int Estrai(int n);

// Short forms of the two that nearly every rule uses.
void SuonoAsync(std::string_view nome);
void SuonoSync(std::string_view nome);
void Pausa04();

}  // namespace girovia
