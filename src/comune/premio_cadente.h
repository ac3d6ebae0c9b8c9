// The prize of the two card trials, which falls by a step every four seconds.
#pragma once

#include <optional>

#include "core/soldi.h"

namespace girovia {

// The first step of each card: 20 euro on the four-photo card, 10 on the true-or-false card.
inline constexpr int kPrimoGradinoCarte4 = 0;
inline constexpr int kPrimoGradinoCarte2 = 1;

struct GradinoPremio {
  int bitmap;
  Euro importo;
};

GradinoPremio GradinoIniziale(int primo_gradino);

struct ScattoPremio {
  bool suono = false;
  std::optional<GradinoPremio> gradino;  // the step that is shown from this tick on
  bool togliBordo = false;               // before its picture: notes have a border, coins none
  bool scaduto = false;                  // the card closes and the amount stays as it is
};

// Tick `scatti`, from 1 on, one a second.
ScattoPremio ScattoDelPremio(int primo_gradino, int scatti);

// Where the prize box stands with this size, its border included.
struct PostoPremio {
  double left, top;
};
PostoPremio CentraPremio(double larghezza, double altezza);

}  // namespace girovia
