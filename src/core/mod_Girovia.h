// The state of a game that the board and the screens share: a screen reads what it needs here,
// leaves its outcome here and closes.
#pragma once

#include <string>

#include "core/soldi.h"
#include "core/tipi.h"

namespace girovia::mod_Girovia {

// Players and the route. Slot 0 of the arrays holds nothing.
extern int Giocatore;          // whose turn it is; 0 before anybody has moved
extern int Pos[3];             // squares, 0 to 99
extern Euro Gruzzolo[3];       // purses; there is no lower bound
extern Euro GruzzoloPrima[3];  // where the next count-up of a purse starts
extern std::string Nome[3];    // at most 12 characters and "..."
extern std::string Colore[3];  // 0xBBGGRR as decimal text
extern int Ritratto[3];        // bitmap number of the portrait

// Hand-over within one turn.
extern int Dado;              // sum of the two dice
extern Euro Premio;           // the prize in play when a trial closes
extern int Sorpresa;          // 1: a surprise waits; 4: the same player throws again
extern Flag ArrivoRaggiunto;  // on the last square, the final puzzle not yet passed
extern int CittaCliccata;     // square of the city button clicked

// Return flags: what kind of screen closed last.
extern Flag RitornoProva;    // neither dice nor postcard
extern Flag RitornoCitta;    // the postcard
extern Flag SorpresaAperta;  // the gift on the postcard was opened
extern Flag UscitaDaSplash;  // the dialog is open over the start screen
extern Flag InfoDaPartita;   // the help was opened from the board; never cleared

}  // namespace girovia::mod_Girovia
