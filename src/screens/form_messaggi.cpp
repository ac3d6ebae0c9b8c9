#include "screens/form_messaggi.h"

#include "comune/cornice.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

FormMessaggi::FormMessaggi(Ambiente& ambiente)
    : FormConTitolo(ambiente, "FormMessaggi", 356, 167, 0xFF0000) {
  RigheTitolo({5, 5, 345, 63}, 0xFF0000);
  Row(LblMessaggio, "LblMessaggio", {5, 72, 345, 89},
      {.font = Verdana(14.25),
       .back = 0xFFFFFF,
       .transparent = false,
       .align = platform::Align::Center});
  Row(cmdRisposta.Load(1), "cmdRisposta(1)", {292, 101, 54, 54},
      {.picture = a_.immagini.DiSchermata("FormMessaggi.cmdRisposta1"),
       .back = 0xC0FFC0,
       .hand = &a_.mani,
       .focusOnMove = true});
  Row(cmdRisposta.Load(2), "cmdRisposta(2)", {233, 101, 54, 54},
      {.picture = a_.immagini.DiSchermata("FormMessaggi.cmdRisposta2"),
       .back = 0xC0FFC0,
       .hand = &a_.mani,
       .focusOnMove = true});
  for (int i : {1, 2}) cmdRisposta(i).OnClick = [this, i] { cmdRisposta_Click(i); };
}

void FormMessaggi::Form_Load() {
  DisegnaCornice(*this, kSmussoDialogo);
  PreparaTitolo();
  TimerTitolo.SetEnabled(true);
  LblMessaggio.SetCaption(mod_Messaggi::Messaggio);
  SuonoAsync("122");
}

void FormMessaggi::cmdRisposta_Click(int Index) {
  TimerTitolo.SetEnabled(false);
  SuonoAsync("102");
  mod_Girovia::RitornoProva = Vero;
  mod_Messaggi::Risposta = Index;
  Unload();
  if (mod_Girovia::UscitaDaSplash == Vero) {
    mod_Girovia::UscitaDaSplash = Falso;
    a_.iniziale->TornaDallaDomanda();
  } else {
    servizi().comandi->MostraUscita();
  }
}

}  // namespace girovia
