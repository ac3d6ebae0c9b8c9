#include "core/frasi.h"

#include "content/atlante.h"
#include "core/mod_Girovia.h"

namespace girovia {

bool VuoleAd(std::string_view citta) {
  return citta.starts_with('A') || citta.starts_with('O') || citta.starts_with('I');
}

std::string TestoPrBar(int giocatore) {
  const std::string_view citta = NomeCasella(mod_Girovia::Pos[giocatore]);
  std::string testo = mod_Girovia::Nome[giocatore];
  testo += VuoleAd(citta) ? " è ad " : " è a ";
  testo += citta;
  return testo;
}

}  // namespace girovia
