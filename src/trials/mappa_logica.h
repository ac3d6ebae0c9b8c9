// The two map trials: find the city, find the capital.
#pragma once

#include <string>
#include <string_view>

#include "comune/segni_tempo.h"

namespace girovia {

// 1 solved, 2 failed. There is no second try.
int RispostaClicCitta(int cliccata, int richiesta);

BarraTempo BarraMappa(int scatti);
PostoBottone BottoneMappa(int scatti);

std::string DomandaCitta(std::string_view giocatore, int citta);
std::string DomandaCapitale(std::string_view giocatore, std::string_view paese);

}  // namespace girovia
