#include "screens/form_imprevisti.h"

#include "core/imprevisti.h"
#include "core/mod_Girovia.h"
#include "screens/giornale_logica.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

constexpr double kPosto = 240;  // of the columns, once they have risen

}  // namespace

FormImprevisti::FormImprevisti(Ambiente& ambiente) : PaginaGiornale(ambiente, "FormImprevisti") {
  Row(lblGiornale.Load(3), "lblGiornale(3)", {146, 2, 223, 15},
      {.caption = "Giornale europeo indipendente. Costa 1 €.",
       .font = Times(9.75),
       .align = platform::Align::Center,
       .autoSize = true});
  Row(lblGiornale.Load(4), "lblGiornale(4)", {8, 130, 0, 0},
      {.font = Times(9.75), .autoSize = true});
  RigheParola("news", 104, 0x0000FF);
  RigheArticolo(168, 400, 15.75);
  Row(ImgAereo, "ImgAereo", {280, 360, 32, 32},
      {.picture = a_.immagini.DiSchermata("FormImprevisti.ImgAereo"), .visible = false});
  // The columns come out from under the frame: what is below it stays as it was drawn.
  Row(LinePiede.Load(0), "LinePiede(0)", {},
      {.x1 = 1, .y1 = 417, .x2 = 377, .y2 = 417, .width = 2, .color = 0xFFFFFF});
  Row(LinePiede.Load(1), "LinePiede(1)", {}, {.x1 = 0, .y1 = 418, .x2 = 378, .y2 = 418});
  RigheFronte({});
  cmdRisposta.OnClick = [this] { cmdRisposta_Click(); };
  Row(Timer1, 120, false, [this] { Timer1_Timer(); });
}

void FormImprevisti::Form_Load() {
  DisegnaBordo();
  cmdRisposta.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  const PaginaImprevisto pagina = CaricaImprevisto();
  ImgAereo.SetVisible(pagina.aereo);
  ScriviTitolo(pagina.titolo);
  ScriviColonne(pagina.sinistra, pagina.destra, kPosto);
  lblGiornale(4).SetCaption(DataGiornale(a_.screen.host().LocalTime()));
  Timer1.SetEnabled(true);
}

void FormImprevisti::Form_Activate() {
  servizi().comandi->NascondiUscita();
  servizi().tabellone->Ridisegna();
}

// The columns rise from under the foot of the page; then the portrait pulses.
void FormImprevisti::Timer1_Timer() {
  constexpr double kPasso = 10;
  if (lblGiornale(1).place().top > kPosto) {
    for (int i : {1, 2}) {
      platform::Rect posto = lblGiornale(i).place();
      posto.top -= kPasso;
      lblGiornale(i).Move(posto);
    }
    return;
  }
  Timer1.SetInterval(400);
  Pulsa();
}

void FormImprevisti::cmdRisposta_Click() {
  SuonoAsync("105");
  ImgAereo.SetVisible(false);
  Timer1.SetEnabled(false);
  RitornoProva = Vero;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
