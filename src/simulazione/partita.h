// Whole games played by the rules themselves, with two players made of odds.
#pragma once

#include "simulazione/argomenti.h"
#include "simulazione/conti.h"

namespace girovia::simulazione {

// Plays the games primo, primo + passo, ... below argomenti.partite. What comes of a game depends
// on the seed and its number alone.
Conti Gioca(const Argomenti& argomenti, std::int64_t primo, std::int64_t passo);

// The same, shared out among argomenti.processi processes. Throws std::runtime_error if one fails.
Conti GiocaInsieme(const Argomenti& argomenti);

}  // namespace girovia::simulazione
