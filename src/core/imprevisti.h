// The 31 unforeseen events: what the newspaper says, and what each does to purses and squares.
#pragma once

#include <string>

namespace girovia {

struct PaginaImprevisto {
  std::string titolo;    // upper case
  std::string sinistra;  // the two columns
  std::string destra;
  bool aereo = false;  // the aeroplane of the air tickets
};

// Composes the page of card IndiceImprevisto. The two families of cards whose text tells of the
// effect, gifts of solidarity and air tickets, take effect here and not when the page closes.
PaginaImprevisto CaricaImprevisto();

// After the page has closed: the effects of the other cards, and the board brought up to date.
void GestioneImprevisti();

}  // namespace girovia
