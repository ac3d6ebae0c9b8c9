#include "effects/rotazione_logica.h"

#include <cmath>

namespace girovia {
namespace {

constexpr int kLarghezzaForm = 800;
constexpr int kPiena = 7;

void Aggiungi(std::vector<FotogrammaCarta>& sequenza, bool retro, int da, int a) {
  const int verso = da <= a ? 1 : -1;
  for (int i = da; i != a + verso; i += verso) {
    const int w = kLarghezzaCarta / (kPiena + 1) * (i + 1);
    const int left = static_cast<int>(std::lrint((kLarghezzaForm - w) / 2.0));
    sequenza.push_back({retro, i, left, w, verso < 0});
  }
}

}  // namespace

std::vector<FotogrammaCarta> RotazioneCarta() {
  std::vector<FotogrammaCarta> sequenza;
  for (int giro = 0; giro < 3; ++giro) {
    Aggiungi(sequenza, true, 0, kPiena);
    Aggiungi(sequenza, true, kPiena - 1, 0);
    Aggiungi(sequenza, false, 1, kPiena);
    Aggiungi(sequenza, false, kPiena - 1, 0);
  }
  // The last turn stops just short of the flat front, where the trial takes over.
  Aggiungi(sequenza, true, 1, kPiena);
  Aggiungi(sequenza, true, kPiena - 1, 0);
  Aggiungi(sequenza, false, 1, kPiena - 1);
  return sequenza;
}

}  // namespace girovia
