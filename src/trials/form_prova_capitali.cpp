#include "trials/form_prova_capitali.h"

#include "content/quiz.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/mappa_logica.h"

namespace girovia {

FormProvaCapitali::FormProvaCapitali(Ambiente& ambiente)
    : FormProvaMappa(ambiente, "FormProvaCapitali", MappaProva::Capitali) {
  Row(LblCitta, "LblCitta", {0, 0, 87, 18},
      {.font = Verdana(12), .fore = platform::colors::kWhite, .autoSize = true, .visible = false});
}

// The number of the entry becomes that of the capital's square.
std::string FormProvaCapitali::Domanda() {
  const Capitale capitale = LeggiCapitale(mod_Messaggi::IndiceProvaCapitali);
  mod_Messaggi::IndiceProvaCapitali = capitale.citta;
  return DomandaCapitale(mod_Girovia::Nome[mod_Girovia::Giocatore], capitale.paese);
}

int FormProvaCapitali::Richiesta() const { return mod_Messaggi::IndiceProvaCapitali; }

void FormProvaCapitali::cmdcitta_MouseMove(int Index) {
  LblCitta.SetCaption(std::string(NomeCasella(Index)));
}

// Only off every control: over a label or the bar the last name stays.
void FormProvaCapitali::Form_MouseMove(const platform::MouseArgs&) {
  LblCitta.SetCaption("");
  LblCitta.SetVisible(true);
}

}  // namespace girovia
