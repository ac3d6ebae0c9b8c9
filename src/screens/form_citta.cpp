#include "screens/form_citta.h"

#include "core/mod_Girovia.h"
#include "core/sorprese.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Rect;

// Two photographs are a little smaller than the others and the frame is wider than they are: where
// no picture is, all is frame.
FormCitta::FormCitta(Ambiente& ambiente)
    : Form(ambiente.screen, "FormCitta", 497, 377, 0x000000), a_(ambiente) {
  Row(Line1, "Line1", {}, {.x1 = 84, .y1 = 348, .x2 = 413, .y2 = 348, .width = 40});
  Row(LblSorpresa, "LblSorpresa", {80, 330, 338, 40},
      {.font = Verdana(12), .fore = 0xFFFFFF, .align = platform::Align::Center});
  Row(cmdExit, "cmdExit", {424, 304, 54, 54},
      {.picture = a_.immagini.DiSchermata("Splash.CmdOK"), .back = 0xFF8080, .hand = &a_.mani});
  cmdExit.OnClick = [this] { cmdExit_Click(); };
  Row(CmdSorpresa, "CmdSorpresa", {16, 304, 54, 54},
      {.picture = a_.immagini.DiSchermata("FormCitta.CmdSorpresa"),
       .back = 0x808080,
       .visible = false,
       .hand = &a_.mani});
  CmdSorpresa.OnClick = [this] { CmdSorpresa_Click(); };
  Row(Timer1, 300, true, [this] { Timer1_Timer(); });
}

void FormCitta::Form_Load() {
  const PaginaCitta pagina = CaricaCitta();
  cmdExit.SetPointer(a_.mani.closed);
  SetPicture(cLoadResPicture(a_.immagini).LoadResPicture(400 + CittaCliccata, "CUSTOM"));
  if (pagina.pacco) {
    CmdSorpresa.SetPointer(a_.mani.closed);
    CmdSorpresa.SetVisible(true);
    cmdExit.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  }
  LblSorpresa.SetCaption(std::string(pagina.testo));
  RitagliaForm();
}

void FormCitta::RitagliaForm() {
  const Rect cornice{-2, -2, width() - 3.0, height() - 3.0};
  Cls();
  ShapeRoundRect(cornice, 90, 90);
  surface().RoundRect(cornice, 90, 90, {16, 0x000000});
}

void FormCitta::Timer1_Timer() {
  const bool pacco = Lampeggio == Falso;  // whose turn it is to be large
  Lampeggio = pacco ? Vero : Falso;
  cmdExit.Move(pacco ? Rect{424, 304, 54, 54} : Rect{422, 302, 58, 58});
  CmdSorpresa.Move(pacco ? Rect{14, 302, 58, 58} : Rect{16, 304, 54, 54});
}

void FormCitta::cmdExit_Click() {
  SuonoAsync("102");
  RitornoCitta = Vero;
  Unload();
  servizi().comandi->MostraUscita();
}

void FormCitta::CmdSorpresa_Click() {
  CmdSorpresa.SetVisible(false);
  LblSorpresa.SetCaption(std::string(ApriSorpresa()));
}

}  // namespace girovia
