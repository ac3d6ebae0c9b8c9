#include "core/sorteggi.h"

#include <algorithm>
#include <span>

#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

struct Urna {
  std::span<Flag> usati;
  int& conta;
  int& indice;                     // where the screen looks for what was drawn
  int ampiezza;                    // indices 0 to ampiezza - 1 are drawn
  int ripartenza;                  // the accepted draw that is dropped and starts the pool afresh
  bool (*escludi)(int) = nullptr;  // what counts as drawn already
};

// With equal purses levelling and swapping them would change nothing.
bool CartaInutile(int i) { return i >= 2 && i <= 4 && Gruzzolo[1] == Gruzzolo[2]; }

// There is no button to click.
bool CittaFuoriMappa(int i) { return !PostoSuMappa(MappaProva::Citta, i).visibile; }

// The ranges and counts are the game's own, pool by pool; none follows from another.
constexpr Urna kImprevisti{UsatiImprevisti, ContaImprevisti, IndiceImprevisto, 31, 29,
                           CartaInutile};
constexpr Urna kOrdinamento{UsatiOrdinamento, ContaOrdinamento, IndiceOrdinamento, 9, 9};
constexpr Urna kCarte4{UsatiCarte4, ContaCarte4, IndiceCarte4, 41, 40};
constexpr Urna kProvaCitta{UsatiProvaCitta, ContaProvaCitta, IndiceProvaCitta, 100, 90,
                           CittaFuoriMappa};
constexpr Urna kProvaCapitali{UsatiProvaCapitali, ContaProvaCapitali, IndiceProvaCapitali, 35, 34};

void SegnaEsclusi(const Urna& urna) {
  if (urna.escludi == nullptr) return;
  for (int i = 0; i < urna.ampiezza; ++i)
    if (urna.escludi(i)) urna.usati[std::size_t(i)] = Vero;
}

void Riparti(const Urna& urna) {
  urna.conta = 0;
  std::ranges::fill(urna.usati, Falso);
}

bool Esaurita(const Urna& urna) {
  return std::ranges::find(urna.usati.first(urna.ampiezza), Falso) ==
         urna.usati.first(urna.ampiezza).end();
}

void Sorteggia(const Urna& urna, Schermata form) {
  for (;;) {
    SegnaEsclusi(urna);
    // The event pool can run dry one short of its count, when the three useless cards were marked
    // without being drawn. It then starts afresh just as at its count: players see the same thing,
    // a card from a full deck, and only the accepted draw that would have been dropped is missing.
    if (Esaurita(urna)) {
      Riparti(urna);
      continue;
    }
    do {
      urna.indice = Estrai(urna.ampiezza);
    } while (urna.usati[urna.indice] != Falso);
    urna.usati[urna.indice] = Vero;
    if (++urna.conta != urna.ripartenza) break;
    Riparti(urna);
  }
  MostraModale(form);
}

}  // namespace

void MostraModale(Schermata form) { servizi().schermi->MostraModale(form); }

void MostraModaleColore(Schermata form, std::string_view /*colore*/) { MostraModale(form); }

void MostraCarte2(Schermata form) {
  IndiceCarte2 = Pos[Giocatore];
  MostraModale(form);
}

void SorteggioImprevisto(Schermata form) { Sorteggia(kImprevisti, form); }
void SorteggioOrdinamento(Schermata form) { Sorteggia(kOrdinamento, form); }
void SorteggioCarte4(Schermata form) { Sorteggia(kCarte4, form); }
void SorteggioProvaCitta(Schermata form) { Sorteggia(kProvaCitta, form); }
void SorteggioProvaCapitali(Schermata form) { Sorteggia(kProvaCapitali, form); }

}  // namespace girovia
