// A turn, from the dice to the next player.
#pragma once

namespace girovia {

// Called when the dice have closed, with their sum in Dado. Returns when the turn is over, all its
// screens included.
void AggiornaPosizioniSulPercorso();

}  // namespace girovia
