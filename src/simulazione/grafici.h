// The charts of docs/numeri.md.
#pragma once

#include <string>

#include "simulazione/conti.h"

namespace girovia::simulazione {

std::string GraficoDurata(const Conti& conti);  // how many games last how long
std::string GraficoCarte(const Conti& conti);   // what each card does for who draws it

// Writes both into the folder. Throws std::runtime_error if it cannot.
void ScriviGrafici(const Conti& conti, const std::string& cartella);

}  // namespace girovia::simulazione
