#include "core/mod_Messaggi.h"

namespace girovia::mod_Messaggi {

std::string Messaggio;
std::string ColoreCornice;
int Risposta;
int RispostaEsatta;

int IndiceCarte2;
int IndiceCarte4;
int IndiceProvaCitta;
int IndiceProvaCapitali;
int IndiceImprevisto;
int IndiceOrdinamento;

std::array<Flag, 31> UsatiImprevisti;
std::array<Flag, 21> UsatiOrdinamento;
std::array<Flag, 41> UsatiCarte4;
std::array<Flag, 100> UsatiProvaCitta;
std::array<Flag, 35> UsatiProvaCapitali;
int ContaImprevisti;
int ContaOrdinamento;
int ContaCarte4;
int ContaProvaCitta;
int ContaProvaCapitali;

}  // namespace girovia::mod_Messaggi
