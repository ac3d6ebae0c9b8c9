#include "simulazione/controllore.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string>

#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace girovia::simulazione {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

constexpr int kDono[] = {5, 10, 6, -5, -4, -3, 10, -2, 12};

// What a card should leave in the purses, reckoned from the texts that the players read: in
// ten-thousandths, the shares with all their decimals.
struct Gruzzoli {
  double uno, due;
};

Gruzzoli DopoLaCarta(int carta, double uno, double due, int g) {
  constexpr double kEuro = 10'000;
  const auto aChiTira = [&](double euro) {
    return g == 1 ? Gruzzoli{uno + euro * kEuro, due} : Gruzzoli{uno, due + euro * kEuro};
  };
  const auto passano = [&](double euro) {  // from player 2 to player 1
    return Gruzzoli{uno + euro * kEuro, due - euro * kEuro};
  };
  constexpr int kFeste[] = {9, 8, 8, 9, 5, 5, 7};
  if (carta <= 1) return passano(carta == 0 ? 5 : -5);
  if (carta <= 3) return {(uno + due) / 2, (uno + due) / 2};
  if (carta == 4) return {due, uno};
  if (carta == 5) return {uno * 1.05, due * 1.05};
  if (carta == 6) return {uno * 0.9, due * 0.9};
  if (carta == 7) return {uno - 4.5 * kEuro, due - 4.5 * kEuro};
  if (carta <= 9) return passano(uno > due ? -5 : 5);
  if (carta <= 13) return aChiTira(5);
  if (carta <= 19) return {uno, due};
  if (carta == 20) return {uno - 10 * kEuro, due};
  if (carta == 21) return {uno, due - 10 * kEuro};
  if (carta <= 28) return aChiTira(kFeste[carta - 22]);
  if (carta == 29) return aChiTira(10);
  return {uno - 10 * kEuro, due - 10 * kEuro};
}

bool AncoraDado(int carta) { return carta >= 10 && carta <= 13; }
bool Volo(int carta) { return carta >= 14 && carta <= 19; }

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

// Photo set 41 and ordering sets from 9 on are never drawn, as their pools are shorter; nor are
// squares without a button, and cards that would change nothing between equal purses.
bool NonSiEstrae(Urna urna, int indice) {
  if (urna == Urna::ProvaCitta)
    return indice == 0 || indice == 20 || indice == 36 || indice == 54 ||
           (indice >= 77 && indice <= 80);
  return urna == Urna::Imprevisti && indice >= 2 && indice <= 4 && Gruzzolo[1] == Gruzzolo[2];
}

bool SulPercorso(int casella) { return casella >= 0 && casella <= kUltimaCasella; }

}  // namespace

void Controllore::InizioPartita() {
  for (auto& visti : visti_) visti.reset();
}

void Controllore::InizioTurno() {
  for (int p = 1; p <= 2; ++p) {
    attesi_[p] = Gruzzolo[p];
    caselle_[p] = Pos[p];
  }
  giocatore_ = Giocatore;
  partenza_ = Pos[Giocatore];
  carta_ = false;
}

void Controllore::Dadi() {
  if (Dado < 2 || Dado > 12) Viola(Regola::Indice);
  attesi_[giocatore_] += Euro::Interi(Dado);
  caselle_[giocatore_] = std::min(partenza_ + Dado, kUltimaCasella);
}

void Controllore::Sovrapposizione(bool paga) {
  if (caselle_[1] != caselle_[2]) Viola(Regola::Mossa);
  if (paga) attesi_[giocatore_] -= Euro::Interi(5);
  caselle_[giocatore_] += paga ? 1 : -1;
}

void Controllore::Vinta(Euro premio) { attesi_[giocatore_] += premio; }

void Controllore::Persa() {
  attesi_[giocatore_] -= Euro::Interi(Dado);
  caselle_[giocatore_] = partenza_;
}

void Controllore::Dono(std::string_view testo, Euro prima) {
  const std::int64_t euro = (Gruzzolo[Giocatore] - prima).decimillesimi() / 10'000;
  const bool detto = testo.find(' ' + std::to_string(std::abs(euro)) + " €") != testo.npos;
  if (!detto || std::find(std::begin(kDono), std::end(kDono), euro) == std::end(kDono))
    Viola(Regola::Denaro);
}

void Controllore::Estratto(Urna quale) {
  const DatiUrna& urna = kUrna[static_cast<int>(quale)];
  auto& visti = visti_[static_cast<std::size_t>(quale)];
  if (urna.conta == 1) {
    if (visti.any()) ++conti_.ripartenze[static_cast<std::size_t>(quale)];
    visti.reset();
  }
  if (urna.indice < 0 || urna.indice >= urna.ampiezza) return Viola(Regola::Indice);
  if (NonSiEstrae(quale, urna.indice)) Viola(Regola::Indice);
  if (visti.test(static_cast<std::size_t>(urna.indice))) Viola(Regola::Ripetizione);
  visti.set(static_cast<std::size_t>(urna.indice));
}

void Controllore::PrimaDellaCarta() {
  // The paper costs a euro.
  attesi_[giocatore_] -= Euro::Interi(1);
  ControllaGruzzoli();
  carta_ = true;
}

void Controllore::FineTurno(bool finita) {
  if (carta_) {
    ControllaCarta();
  } else {
    ControllaGruzzoli();
  }
  if (carta_ && Volo(IndiceImprevisto)) ControllaVolo();
  if (Pos[1] != caselle_[1] || Pos[2] != caselle_[2]) Viola(Regola::Mossa);
  const bool ancora = carta_ && AncoraDado(IndiceImprevisto);
  if (!finita && Giocatore != (ancora ? giocatore_ : 3 - giocatore_)) Viola(Regola::Alternanza);
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
  const auto [uno, due] =
      DopoLaCarta(IndiceImprevisto, static_cast<double>(attesi_[1].decimillesimi()),
                  static_cast<double>(attesi_[2].decimillesimi()), giocatore_);
  // Shares and halves are rounded to the ten-thousandth.
  const auto torna = [](Euro gruzzolo, double atteso) {
    return std::abs(static_cast<double>(gruzzolo.decimillesimi()) - atteso) < 0.51;
  };
  if (!torna(Gruzzolo[1], uno) || !torna(Gruzzolo[2], due)) Viola(Regola::Denaro);
}

// Six squares, or seven where the other player stands on the sixth; near the ends of the route one
// way only.
void Controllore::ControllaVolo() {
  const int da = caselle_[giocatore_];
  const int verso = Pos[giocatore_] > da ? 1 : -1;
  if ((da > 91 && verso > 0) || (da < 8 && verso < 0)) Viola(Regola::Mossa);
  caselle_[giocatore_] += 6 * verso;
  if (caselle_[1] == caselle_[2]) caselle_[giocatore_] += verso;
}

}  // namespace girovia::simulazione
