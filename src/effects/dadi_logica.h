// A throw of the dice: the draw and the path of the two dice across the screen.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/interfacce.h"

namespace girovia {

inline constexpr int kLarghezzaDado = 98;  // of a die's cell, and the width of a step
inline constexpr int kAltezzaDado = 120;

int TiraDado(Caso& caso);

// What one die does in a step: its old cell is restored, then its new one saved and drawn over.
struct MossaDado {
  int fotogramma;
  int vecchiaX, vecchiaY;
  int x, y;
  friend bool operator==(const MossaDado&, const MossaDado&) = default;
};

// All cells are restored first, then all saved, then the first die is drawn and the second.
struct PassoDadi {
  std::string_view suono;                        // played before the step; empty for none
  std::array<std::optional<MossaDado>, 2> dadi;  // a die that does not take part stays in view
};

// Out to the right edge and back again, the same for every throw.
std::vector<PassoDadi> PercorsoIniziale();

// The last leg, from where the first part ends to each die's place of rest.
std::vector<PassoDadi> PercorsoFinale(int d1, int d2);

// The frame that shows a die lying with this face up.
constexpr int FotogrammaDelValore(int valore) { return 2 * valore; }

}  // namespace girovia
