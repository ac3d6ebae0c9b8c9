#include "screens/pagina_giornale.h"

namespace girovia {

using platform::Align;

namespace {

constexpr platform::Rect kPiccolo{318, 358, 54, 54};
constexpr platform::Rect kGrande{316, 356, 58, 58};

// The font in the largest size in which the text, wrapped in `posto`, keeps this far off its sides.
platform::Font Adatta(platform::Font font, const std::string& testo, const platform::Rect& posto,
                      double margine = 0) {
  constexpr double kPuntiMinimi = 5;
  const auto entra = [&] {
    const auto misura = platform::MeasureText(testo, {.font = font, .wrap = true}, posto.width);
    return misura.width <= posto.width - 2 * margine && misura.height <= posto.height;
  };
  while (!entra() && font.points > kPuntiMinimi) font.points -= 0.25;
  return font;
}

}  // namespace

PaginaGiornale::PaginaGiornale(Ambiente& ambiente, std::string name)
    : Form(ambiente.screen, std::move(name), 379, 419, 0xFFFFFF), a_(ambiente) {
  SetPicture(a_.immagini.DiSchermata("FormImprevisti"));
}

void PaginaGiornale::RigheParola(const char* parola, double top, platform::Color colore) {
  const platform::Font font{"Courier New", 36, true, false};
  Row(Label2, "Label2", {250, top + 2, 116, 54}, {.caption = parola, .font = font});
  Row(Label1, "Label1", {248, top, 116, 54}, {.caption = parola, .font = font, .fore = colore});
}

void PaginaGiornale::RigheArticolo(double titolo, double colonne, double punti) {
  punti_ = punti;
  Row(lblGiornale.Load(0), "lblGiornale(0)", {0, titolo, 377, 65},
      {.font = Times(20.25, true), .align = Align::Center});
  Row(Line1, "Line1", {}, {.x1 = 184, .y1 = 232, .x2 = 184, .y2 = 408});
  Row(lblGiornale.Load(1), "lblGiornale(1)", {8, colonne, 169, 177}, {.font = Times(punti)});
  Row(lblGiornale.Load(2), "lblGiornale(2)", {200, colonne, 169, 177},
      {.font = Times(punti), .back = 0xFFFFFF, .transparent = false});
}

void PaginaGiornale::RigheFronte(const platform::SizedPicture& bottone) {
  Row(Shape1, "Shape1", {-1, -1, 377, 417}, {.borderWidth = 3});
  Row(cmdRisposta, "cmdRisposta", {320, 360, 54, 54},
      {.picture = bottone, .hand = &a_.mani, .focusOnMove = true});
}

void PaginaGiornale::DisegnaBordo() {
  surface().Box(0, 0, width() - 1, height() - 1, {1, 0x000000});
}

void PaginaGiornale::ScriviTitolo(const std::string& titolo) {
  lblGiornale(0).SetFont(Adatta(Times(20.25, true), titolo, lblGiornale(0).place(), 6));
  lblGiornale(0).SetCaption(titolo);
}

void PaginaGiornale::ScriviColonne(const std::string& sinistra, const std::string& destra,
                                   double alto) {
  const platform::Font intera = Times(punti_);
  const double coda = LineHeight(intera) - Ascent(intera);
  platform::Rect posto = lblGiornale(2).place();
  posto.height = kGrande.top - alto + coda;
  const platform::Font font = Adatta(intera, destra, posto);
  for (int i : {1, 2}) {
    lblGiornale(i).SetFont(font);
    lblGiornale(i).SetCaption(i == 1 ? sinistra : destra);
  }
  SetInOneSize(lblGiornale(1), lblGiornale(2));
}

// The button of the table is 54 wide but stands elsewhere: the first pulse makes it large.
void PaginaGiornale::Pulsa() {
  cmdRisposta.Move(cmdRisposta.place().width == 58 ? kPiccolo : kGrande);
}

}  // namespace girovia
