// The member fields of the board that hold game state, and the start of a game.
#pragma once

#include <string>

#include "core/tipi.h"

namespace girovia {

// A blink of the surprise that has counted this far ends at the next tick.
inline constexpr int kFineLampeggio = 30;

struct StatoTabellone {
  int PosPrecedente[3] = {};  // the square to which a failed trial sends a player back
  Flag TurnoInCorso = Falso;  // a throw or its resolution is under way
  Flag FaseCitta = Falso;     // phase of the pulse of the occupied squares
  int UltimaEtichetta = 0;    // the city label shown by hovering
  int ContaLampeggi = 0;      // ticks of the surprise blink
};

extern StatoTabellone statoTabellone;

// Everything back to the value that it has when the program starts, the pools too.
void AzzeraStato();

// What the board gives the players as it loads: 10 euro each, on square 0.
void NuovaPartita();

// The number in a colour's decimal text; 0 if there is none.
int ValoreColore(const std::string& colore);

}  // namespace girovia
