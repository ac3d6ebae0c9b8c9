// What the turn tells the next screen and that screen's answer, and the pools of the draws.
#pragma once

#include <array>
#include <string>

#include "core/tipi.h"

namespace girovia::mod_Messaggi {

extern std::string Messaggio;      // text for the next dialog or trial
extern std::string ColoreCornice;  // Colore of the moving player
extern int Risposta;               // outcome of the screen that closed last
extern int RispostaEsatta;         // the right answer of the true-or-false card: 1 or 2

// The content chosen for the next screen.
extern int IndiceCarte2;
extern int IndiceCarte4;
extern int IndiceProvaCitta;
extern int IndiceProvaCapitali;
extern int IndiceImprevisto;
extern int IndiceOrdinamento;

// Marks of the entries already drawn, and how many draws were accepted since the last restart.
// Only the draws touch them.
extern std::array<Flag, 31> UsatiImprevisti;
extern std::array<Flag, 21> UsatiOrdinamento;
extern std::array<Flag, 41> UsatiCarte4;
extern std::array<Flag, 100> UsatiProvaCitta;
extern std::array<Flag, 35> UsatiProvaCapitali;
extern int ContaImprevisti;
extern int ContaOrdinamento;
extern int ContaCarte4;
extern int ContaProvaCitta;
extern int ContaProvaCapitali;

}  // namespace girovia::mod_Messaggi
