// The four-photo card: three right cities, one that must be left alone.
#pragma once

#include <optional>

namespace girovia {

struct EsitoCarte4 {
  std::optional<int> risposta;   // the card is over: 0 no answer, 1 solved, 2 wrong
  bool nascondiBottone = false;  // a right city: its button goes
};

class Carte4 {
 public:
  explicit Carte4(int indice_sbagliata) : indice_sbagliata_(indice_sbagliata) {}

  // Button 1 to 4, or 0 for "non lo so".
  EsitoCarte4 Clic(int i);
  EsitoCarte4 TempoScaduto() const { return {.risposta = 0}; }

 private:
  int indice_sbagliata_;
  int cliccate_giuste_ = 0;
};

}  // namespace girovia
