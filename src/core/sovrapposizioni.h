// The two rules that change where a player stands after his move.
#pragma once

namespace girovia {

// Whole euro to go on one square further.
inline constexpr int kPedaggio = 5;

// Both stand on one square after a move: the one who came pays to go on or goes back for nothing.
void GestioneSovrapposizioni();

// A failed trial takes the whole move back, and its money.
void Perdita();

}  // namespace girovia
