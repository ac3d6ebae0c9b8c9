#include "trials/form_prova_citta.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/mappa_logica.h"

namespace girovia {

std::string FormProvaCitta::Domanda() {
  return DomandaCitta(mod_Girovia::Nome[mod_Girovia::Giocatore], Richiesta());
}

int FormProvaCitta::Richiesta() const { return mod_Messaggi::IndiceProvaCitta; }

}  // namespace girovia
