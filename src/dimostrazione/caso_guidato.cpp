#include "dimostrazione/caso_guidato.h"

#include <algorithm>
#include <iterator>

#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/stato.h"
#include "platform/forms/form.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

// A number by which the k-th of n is drawn.
double Via(int k, int n) { return (k + 0.5) / n; }

// The outcomes of the first moves: each trial and the news once. Those with tiles take long and do
// not come again.
constexpr int kEsiti = 9;
constexpr int kPrimi[] = {7, 3, 5, 2, 0, 4, 1};
constexpr int kAltri[] = {2, 3, 4, 5, 7};

}  // namespace

// The rules do not say what they draw for; where the game stands does.
double CasoGuidato::Rnd() {
  const platform::Form* davanti = screen_ ? screen_->top() : nullptr;
  if (davanti && davanti->name() == "Dadi") return Dado();
  if (davanti && davanti->name() == "FormGirovia" && Giocatore > 0) {
    if (daDecidere_) return Esito();
    if (statoTabellone.TurnoInCorso == Falso) return Sorpresa();
  }
  return orologio_.Draw();
}

// 6 to 12 squares, or once as many as the other player is ahead.
double CasoGuidato::Dado() {
  int faccia = altroDado_;
  altroDado_ = 0;
  if (faccia == 0) {
    int somma = 6 + int(orologio_.Draw() * 7);
    const int distanza = Pos[3 - Giocatore] - Pos[Giocatore];
    if (!incontrati_ && distanza >= 2 && distanza <= 12 && Pos[3 - Giocatore] < kUltimaCasella) {
      incontrati_ = true;
      somma = distanza;
    }
    const int minima = std::max(1, somma - 6), massima = std::min(6, somma - 1);
    faccia = minima + int(orologio_.Draw() * (massima - minima + 1));
    altroDado_ = somma - faccia;
    daDecidere_ = true;
  }
  return Via(faccia - 1, 6);
}

double CasoGuidato::Esito() {
  daDecidere_ = false;
  if (ArrivoRaggiunto == Vero) return orologio_.Draw();
  if (esiti_ < std::size(kPrimi)) return Via(kPrimi[esiti_++], kEsiti);
  return Via(kAltri[int(orologio_.Draw() * double(std::size(kAltri)))], kEsiti);
}

// The third one comes for certain.
double CasoGuidato::Sorpresa() { return ++sorprese_ == 3 ? Via(1, 3) : orologio_.Draw(); }

}  // namespace girovia
