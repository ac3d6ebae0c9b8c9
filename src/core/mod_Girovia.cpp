#include "core/mod_Girovia.h"

namespace girovia::mod_Girovia {

int Giocatore;
int Pos[3];
Euro Gruzzolo[3];
Euro GruzzoloPrima[3];
std::string Nome[3];
std::string Colore[3];
int Ritratto[3];

int Dado;
Euro Premio;
int Sorpresa;
Flag ArrivoRaggiunto;
int CittaCliccata;

Flag RitornoProva;
Flag RitornoCitta;
Flag SorpresaAperta;
Flag UscitaDaSplash;
Flag InfoDaPartita;

}  // namespace girovia::mod_Girovia
