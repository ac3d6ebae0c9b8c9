#include "trials/carte2_logica.h"

#include <cmath>

#include "content/testi.h"

namespace girovia {

int PostoAffermazione(double u) { return static_cast<int>(std::lrint(3 * u)); }

int IdAffermazione(int posto, int citta) { return 100 * posto + citta; }

Affermazione EstraiAffermazione(double u, int citta) {
  return LeggiAffermazione(LoadResString(IdAffermazione(PostoAffermazione(u), citta)));
}

}  // namespace girovia
