#include "trials/mappa_logica.h"

#include "content/atlante.h"

namespace girovia {

int RispostaClicCitta(int cliccata, int richiesta) { return cliccata == richiesta ? 1 : 2; }

BarraTempo BarraMappa(int scatti) { return BarraDopo(72, 569, 4, scatti); }

PostoBottone BottoneMappa(int scatti) { return BottoneDopo(744, 516, scatti); }

std::string DomandaCitta(std::string_view giocatore, int citta) {
  return std::string(giocatore) + ", clicca la città di " + std::string(NomeCasella(citta));
}

std::string DomandaCapitale(std::string_view giocatore, std::string_view paese) {
  return std::string(giocatore) + ", clicca la capitale " + std::string(paese);
}

}  // namespace girovia
