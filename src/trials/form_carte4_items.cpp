#include "trials/form_carte4_items.h"

#include "comune/premio_cadente.h"
#include "content/atlante.h"
#include "content/quiz.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;

// The buttons come last: they stand in front of the falling coin.
FormCarte4Items::FormCarte4Items(Ambiente& ambiente)
    : FormCarta(ambiente, "FormCarte4Items", kPrimoGradinoCarte4) {
  RigheTesti({32, 16, 408, 48});
  RigaPremio({47, 406, 148, 80});
  for (int k = 1; k <= 4; ++k) {
    const double left = k % 2 != 0 ? 32 : 256, top = k <= 2 ? 64 : 232;
    Row(ImgCitta.Load(k), Indexed("ImgCitta", k), {left, top, 192, 144}, {});
    RigaRisposta(k, {left + 24, k <= 2 ? 192.0 : 368.0, 142, 30}, "", 12);
  }
  RigaRisposta(0, {392, 408, 54, 82}, "non lo so", 8.25);
}

void FormCarte4Items::Form_Load() {
  const SetFoto foto = LeggiSetFoto(mod_Messaggi::IndiceCarte4);
  carta_ = Carte4(foto.sbagliata);
  for (int k = 1; k <= 4; ++k) {
    const int citta = foto.citta[std::size_t(k - 1)];
    ImgCitta(k).SetPicture(cLoadResPicture(a_.immagini).LoadResPicture(400 + citta, "CUSTOM"));
    cmdRisposta(k).SetCaption(std::string(NomeCasella(citta)));
  }
  LblDomanda.SetCaption(std::string(foto.domanda));
  cmdRisposta(0).SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  lblInfo.SetCaption(mod_Messaggi::Messaggio);
  premio_.Carica();
  RitagliaForm({-2, -2, width() - 8.0, height() - 8.0});
}

void FormCarte4Items::cmdRisposta_Click(int Index) {
  SuonoAsync("102");
  const EsitoCarte4 esito = carta_.Clic(Index);
  if (esito.nascondiBottone) cmdRisposta(Index).SetVisible(false);
  if (!esito.risposta) return;
  // The card waits for the sound with all three buttons gone.
  if (*esito.risposta == 1) SuonoSync("106");
  Uscita(*esito.risposta);
}

}  // namespace girovia
