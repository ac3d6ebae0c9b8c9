#include "screens/form_sovrapposizioni.h"

#include "comune/cornice.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using platform::MouseArgs;
using platform::MouseButton;
using platform::Pointer;

FormSovrapposizioni::FormSovrapposizioni(Ambiente& ambiente)
    : FormConTitolo(ambiente, "FormSovrapposizioni", 356, 201, 0xFF0000) {
  RigheTitolo({5, 4, 345, 64}, 0x0000FF);
  Row(LblMessaggio, "LblMessaggio", {5, 68, 346, 128},
      {.font = Verdana(14.25),
       .back = 0xFFFFFF,
       .transparent = false,
       .align = platform::Align::Center});
  Row(Label2, "Label2", {72, 136, 101, 53},
      {.caption = "Pago 1 euro e vado avanti di una casella", .font = Verdana(9.75)});
  Row(Label3, "Label3", {232, 136, 109, 53},
      {.caption = "Non pago niente e mi fermo una casella prima", .font = Verdana(9.75)});
  Row(cmdRisposta.Load(1), "cmdRisposta(1)", {16, 131, 54, 54},
      {.back = 0xC0FFC0, .hand = &a_.mani, .focusOnMove = true});
  Row(cmdRisposta.Load(2), "cmdRisposta(2)", {176, 131, 54, 54},
      {.back = 0xFFFFFF, .hand = &a_.mani, .focusOnMove = true});
  for (int i : {1, 2}) cmdRisposta(i).OnClick = [this, i] { cmdRisposta_Click(i); };

  const Pointer croce{.kind = Pointer::Kind::SizeAll, .picture = nullptr};
  PicCornice.SetPointer(croce);
  SetPointer(croce);
  PicCornice.OnMouseDown = [this](const MouseArgs& args) { PicCornice_MouseDown(args); };
  // Over the message the pointer is the plain one, and a press there does not drag.
  LblMessaggio.OnMouseMove = [this](const MouseArgs&) { SetPointer({}); };
}

void FormSovrapposizioni::Form_Load() {
  const platform::Color colore = NumeroColore(mod_Messaggi::ColoreCornice);
  SetBackColor(colore);
  PicCornice.SetBackColor(colore);
  DisegnaCornice(*this, kSmussoDialogo);
  PreparaTitolo();
  const auto ritratto = a_.immagini.LoadResPicture(mod_Girovia::Ritratto[mod_Girovia::Giocatore]);
  cmdRisposta(1).SetPicture(ritratto);
  cmdRisposta(2).SetPicture(ritratto);
  LblMessaggio.SetCaption(mod_Messaggi::Messaggio);
  SuonoAsync("122");
  TimerTitolo.SetEnabled(true);
}

void FormSovrapposizioni::Form_MouseMove(const MouseArgs&) {
  SetPointer({.kind = Pointer::Kind::SizeAll, .picture = nullptr});
  TimerTitolo.SetEnabled(true);
}

void FormSovrapposizioni::Form_MouseDown(const MouseArgs& args) {
  if (args.button == MouseButton::Left) BeginDrag();
}

void FormSovrapposizioni::PicCornice_MouseDown(const MouseArgs& args) {
  if (args.button == MouseButton::Left) BeginDrag();
}

void FormSovrapposizioni::cmdRisposta_Click(int Index) {
  TimerTitolo.SetEnabled(false);
  mod_Girovia::RitornoProva = Vero;
  mod_Messaggi::Risposta = Index;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
