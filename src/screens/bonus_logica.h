// The money prize of a map trial: one note and four coins.
#pragma once

#include <array>
#include <string>

#include "core/interfacce.h"
#include "core/soldi.h"

namespace girovia {

struct Bonus {
  int biglietto = 0;            // bitmap of the note
  std::array<int, 4> monete{};  // bitmaps of the coins
  Euro premio;
};

Bonus EstraiBonus(Caso& caso);

std::string MessaggioBonus(Euro premio);

}  // namespace girovia
