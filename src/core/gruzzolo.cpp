#include "core/gruzzolo.h"

#include "core/interfacce.h"
#include "core/mod_Girovia.h"

namespace girovia {

using namespace mod_Girovia;

void ColoraGruzzoli() {
  constexpr int kGiallo = 65535, kVerde = 65280, kRosso = 255;
  Tabellone& tabellone = *servizi().tabellone;
  if (Gruzzolo[1] == Gruzzolo[2]) {
    tabellone.ColoraGruzzoli(kGiallo, kGiallo);
  } else if (Gruzzolo[1] > Gruzzolo[2]) {
    tabellone.ColoraGruzzoli(kVerde, kRosso);
  } else {
    tabellone.ColoraGruzzoli(kRosso, kVerde);
  }
}

void RicalcolaGruzzolo() {
  Tabellone& tabellone = *servizi().tabellone;
  const int g = Giocatore;
  tabellone.ContaGruzzolo(g, GruzzoloPrima[g], Gruzzolo[g]);
  tabellone.ScriviGruzzolo(g, Gruzzolo[g]);
  ColoraGruzzoli();
  SuonoSync("123");
}

}  // namespace girovia
