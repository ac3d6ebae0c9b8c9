#pragma once

#include <string>

#include "simulazione/argomenti.h"
#include "simulazione/conti.h"

namespace girovia::simulazione {

std::string RelazioneTesto(const Argomenti& argomenti, const Conti& conti);
std::string RelazioneJson(const Argomenti& argomenti, const Conti& conti);

// The smallest value below which lie so many percent of the games.
template <int N>
int Percentile(const Istogramma<N>& istogramma, std::int64_t partite, int percento) {
  std::int64_t sotto = 0;
  for (int i = 0; i < N; ++i) {
    sotto += istogramma.quanti[static_cast<std::size_t>(i)];
    if (sotto * 100 >= partite * percento) return i;
  }
  return N - 1;
}

// The share of games won by the player who drew the card, less the half that he would win anyway,
// in points of a hundred.
double VantaggioDellaCarta(const ContoCarta& carta);

}  // namespace girovia::simulazione
