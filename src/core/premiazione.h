// The end of the game.
#pragma once

namespace girovia {

// The player with the higher purse; between equal purses the one further along the route.
int Vincitore();

// A number of a special prize, 0 to 13, other than the last one.
int SorteggioPremioSpeciale(int ultimo);

// Names the winner and gives him prizes until he leaves, which ends the program.
void CerimoniaDiPremiazione();

}  // namespace girovia
