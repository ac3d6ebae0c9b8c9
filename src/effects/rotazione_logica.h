// The card that turns about its upright axis before a card trial.
#pragma once

#include <vector>

namespace girovia {

inline constexpr int kLarghezzaCarta = 472;  // of the card seen flat on
inline constexpr int kAltezzaCarta = 510;
inline constexpr int kLeftCarta = 164;
inline constexpr int kTopCarta = 45;

struct FotogrammaCarta {
  bool retro;  // the back of the card, or its front
  int indice;  // 0 the narrowest, 7 the full width
  int left, larghezza;
  bool pulisciPrima;  // a narrower frame does not cover the one before it
};

std::vector<FotogrammaCarta> RotazioneCarta();

}  // namespace girovia
