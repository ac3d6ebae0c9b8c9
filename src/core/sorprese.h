// The surprise that may wait in the city of the player about to throw.
#pragma once

#include <string_view>

namespace girovia {

// Draws for the player in turn, and announces a surprise.
void ProceduraSorpresa();

// One tick of the announcement's flashing.
void TimerSorpresa_Timer();

struct PaginaCitta {
  bool pacco;  // the gift parcel, and the player's portrait on the exit button
  std::string_view testo;
};

// What the postcard of CittaCliccata shows. Opening it claims a surprise, or loses it.
PaginaCitta CaricaCitta();

// A click on the parcel: changes the purse and returns what has happened.
std::string_view ApriSorpresa();

}  // namespace girovia
