// Shows of modal screens, and the draws that choose what a screen asks. A draw does not repeat an
// entry of its pool until the pool starts afresh.
#pragma once

#include <string_view>

#include "core/interfacce.h"

namespace girovia {

void MostraModale(Schermata form);
// The colour comes along for the form's sake; the form reads ColoreCornice instead.
void MostraModaleColore(Schermata form, std::string_view colore);
void MostraCarte2(Schermata form);

void SorteggioImprevisto(Schermata form);
void SorteggioOrdinamento(Schermata form);
void SorteggioCarte4(Schermata form);
void SorteggioProvaCitta(Schermata form);
void SorteggioProvaCapitali(Schermata form);

}  // namespace girovia
