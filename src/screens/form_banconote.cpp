#include "screens/form_banconote.h"

#include "comune/cornice.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "screens/banconote_logica.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Align;

FormBanconote::FormBanconote(Ambiente& ambiente)
    : FormConTitolo(ambiente, "FormBanconote", 356, 237, 0xFF0000) {
  RigheTitolo({5, 5, 345, 63}, 0xFF0000);
  Row(LblMessaggio, "LblMessaggio", {125, 176, 154, 23},
      {.font = Verdana(14.25), .align = Align::Right, .autoSize = true, .maxWidth = 270});
  Row(Label1, "Label1", {125, 200, 154, 23},
      {.caption = "passa alla cassa", .font = Verdana(14.25), .align = Align::Right});
  // The coins lie half over the note.
  Row(PicBanconota1, "PicBanconota1", {16, 85, 138, 73},
      {.autoSize = true, .visible = false, .clear = true});
  Row(PicBanconota2, "PicBanconota2", {136, 64, 100, 100},
      {.autoSize = true, .visible = false, .clear = true});
  Row(PicBanconota3, "PicBanconota3", {236, 64, 100, 100},
      {.autoSize = true, .visible = false, .clear = true});
  Row(cmdRisposta, "cmdRisposta", {293, 175, 54, 54},
      {.back = 0xC0FFC0, .hand = &a_.mani, .focusOnMove = true});
  cmdRisposta.OnClick = [this] { cmdRisposta_Click(); };
  Row(Timer1, 400, false, [this] { Timer1_Timer(); });
}

void FormBanconote::Form_Load() {
  SuonoAsync("112");
  surface().Line(0, 200, 352, 200, {62, NumeroColore(Colore[Giocatore])});
  DisegnaCornice(*this, kSmussoDialogo);
  cmdRisposta.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  TimerTitolo.SetEnabled(true);
  LblMessaggio.SetCaption(mod_Messaggi::Messaggio);
  platform::PictureBox* riquadri[] = {&PicBanconota1, &PicBanconota2, &PicBanconota3};
  std::size_t n = 0;
  for (const Banconota& b : BanconoteDelDado(Dado)) {
    platform::PictureBox& riquadro = *riquadri[n++];
    riquadro.SetPicture(a_.immagini.LoadResPicture(b.bitmap));
    riquadro.Move({b.left, b.top, riquadro.place().width, riquadro.place().height});
    riquadro.SetVisible(true);
  }
  PreparaTitolo();
  Timer1.SetEnabled(true);
}

void FormBanconote::Timer1_Timer() {
  BottoneGrande = !BottoneGrande;
  cmdRisposta.Move(BottoneGrande ? platform::Rect{291, 173, 58, 58}
                                 : platform::Rect{293, 175, 54, 54});
}

void FormBanconote::cmdRisposta_Click() {
  TimerTitolo.SetEnabled(false);
  RitornoProva = Vero;
  for (int n : {1, 2}) a_.dadi->MostraDadi(n, false);
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
