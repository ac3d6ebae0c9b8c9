// Sentences put together from names and squares that more than one place needs.
#pragma once

#include <string>
#include <string_view>

namespace girovia {

// Whether "ad" goes before the name where the board speaks: before A, I and O, not before E and U.
bool VuoleAd(std::string_view citta);

// A player's status line: "Primo è ad Oslo".
std::string TestoPrBar(int giocatore);

}  // namespace girovia
