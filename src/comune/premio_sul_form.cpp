#include "comune/premio_sul_form.h"

#include "comune/premio_cadente.h"
#include "core/mod_Girovia.h"

namespace girovia {

void PremioSulForm::Carica() {
  const GradinoPremio gradino = GradinoIniziale(primoGradino_);
  PicBonus.SetPicture(a_.immagini.LoadResPicture(gradino.bitmap));
  mod_Girovia::Premio = gradino.importo;
}

bool PremioSulForm::Scatta() {
  const ScattoPremio scatto = ScattoDelPremio(primoGradino_, ++Scatti);
  if (scatto.suono) SuonoAsync("215");
  if (scatto.gradino) {
    if (scatto.togliBordo) PicBonus.SetBorder(false);
    PicBonus.SetPicture(a_.immagini.LoadResPicture(scatto.gradino->bitmap));
    const auto [left, top] = CentraPremio(PicBonus.place().width, PicBonus.place().height);
    PicBonus.Move({left, top, PicBonus.place().width, PicBonus.place().height});
    mod_Girovia::Premio = scatto.gradino->importo;
  }
  return scatto.scaduto;
}

}  // namespace girovia
