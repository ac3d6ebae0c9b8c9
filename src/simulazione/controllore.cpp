#include "simulazione/controllore.h"

#include <cstdlib>

#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace girovia::simulazione {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

// How much each card brings into the two purses together: euro, and percent of what they hold.
struct Legge {
  int centesimi = 0;
  int percento = 0;
};

constexpr Legge LeggeDellaCarta(int carta) {
  if (carta == 5) return {0, 5};
  if (carta == 6) return {0, -10};
  if (carta == 7) return {-900};
  if (carta >= 10 && carta <= 13) return {500};
  if (carta == 20 || carta == 21) return {-1000};
  constexpr int kFeste[] = {900, 800, 800, 900, 500, 500, 700};
  if (carta >= 22 && carta <= 28) return {kFeste[carta - 22]};
  if (carta == 29) return {1000};
  if (carta == 30) return {-2000};
  return {};  // the others move money from one player to the other, or none
}

struct DatiUrna {
  const int& indice;
  const int& conta;
  int ampiezza;
};

const DatiUrna kUrna[kUrne] = {{IndiceImprevisto, ContaImprevisti, 31},
                               {IndiceOrdinamento, ContaOrdinamento, 9},
                               {IndiceCarte4, ContaCarte4, 41},
                               {IndiceProvaCitta, ContaProvaCitta, 100},
                               {IndiceProvaCapitali, ContaProvaCapitali, 35}};

bool SulPercorso(int casella) { return casella >= 0 && casella <= kUltimaCasella; }

}  // namespace

void Controllore::InizioPartita() {
  for (auto& visti : visti_) visti.reset();
}

void Controllore::InizioTurno() {
  attesi_[1] = Gruzzolo[1];
  attesi_[2] = Gruzzolo[2];
  giocatore_ = Giocatore;
  carta_ = false;
}

void Controllore::Attende(Euro importo) { attesi_[Giocatore] += importo; }

void Controllore::Estratto(Urna quale) {
  const DatiUrna& urna = kUrna[static_cast<int>(quale)];
  auto& visti = visti_[static_cast<std::size_t>(quale)];
  if (urna.conta == 1) {
    if (visti.any()) ++conti_.ripartenze[static_cast<std::size_t>(quale)];
    visti.reset();
  }
  if (urna.indice < 0 || urna.indice >= urna.ampiezza) return Viola(Regola::Indice);
  if (visti.test(static_cast<std::size_t>(urna.indice))) Viola(Regola::Ripetizione);
  visti.set(static_cast<std::size_t>(urna.indice));
}

void Controllore::PrimaDellaCarta() {
  ControllaGruzzoli();
  carta_ = true;
  primaDellaCarta_ = Gruzzolo[1] + Gruzzolo[2];
}

void Controllore::FineTurno(bool finita) {
  if (carta_) {
    ControllaCarta();
  } else {
    ControllaGruzzoli();
  }
  for (int p = 1; p <= 2; ++p) {
    if (!SulPercorso(Pos[p]) || !SulPercorso(statoTabellone.PosPrecedente[p])) {
      Viola(Regola::Casella);
    }
    // Only the end of the game leaves anybody on the last square.
    if (Pos[p] == kUltimaCasella && !finita) Viola(Regola::Casella);
  }
  const bool fermo = statoTabellone.TurnoInCorso == (finita ? Vero : Falso);
  if (!fermo || ArrivoRaggiunto != Falso || Giocatore < 1 || Giocatore > 2) Viola(Regola::Stato);
}

void Controllore::ControllaGruzzoli() {
  if (Gruzzolo[1] != attesi_[1] || Gruzzolo[2] != attesi_[2]) Viola(Regola::Denaro);
}

void Controllore::ControllaCarta() {
  const Legge legge = LeggeDellaCarta(IndiceImprevisto);
  const std::int64_t prima = primaDellaCarta_.decimillesimi();
  const std::int64_t portati = (Gruzzolo[1] + Gruzzolo[2]).decimillesimi() - prima;
  const std::int64_t previsti = legge.centesimi * 100 + prima * legge.percento / 100;
  // Shares and halves are rounded to the ten-thousandth, once for each player.
  const int tolleranza = legge.percento != 0 || IndiceImprevisto == 2 || IndiceImprevisto == 3;
  if (std::abs(portati - previsti) > 2 * tolleranza) Viola(Regola::Denaro);
}

}  // namespace girovia::simulazione
