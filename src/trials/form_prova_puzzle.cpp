#include "trials/form_prova_puzzle.h"

#include "comune/cornice.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Rect;

namespace {

constexpr int kAltezzaRisolta = 420;
constexpr platform::Color kRosso = 0x0000FF;

}  // namespace

FormProvaPuzzle::FormProvaPuzzle(Ambiente& ambiente)
    : FormTasselli(ambiente, "FormProvaPuzzle", 507, 570) {
  Row(picOriginale, "picOriginale", {12, 12, 482, 362}, {.border = true, .autoSize = true});
  picOriginale.UseHand(&a_.mani, false);
  RigheCelle();
  RigaTassello({112, 16, 120, 120});
  Row(Shape1, "Shape1", {12, 376, 196, 139},
      {.border = 0x000080, .filled = true, .fill = 0x000080});
  Row(ImgRidotta, "ImgRidotta", {16, 380, 188, 131});
  Row(LblTitolo, "LblTitolo", {216, 384, 273, 67}, {.font = Verdana(12)});
  Row(LblInfo, "LblInfo", {216, 448, 216, 89}, {.font = Verdana(8.25)});
  Row(Linea, "Linea", {24, 534, 459, 7}, {.back = platform::colors::kNavy});
  RigaRinuncia({448, 480, 54, 82});
  Row(Timer1, 500, false, [this] { Timer1_Timer(); });
}

void FormProvaPuzzle::Form_Load() {
  Annuncia();
  surface().Line(32, 537, 474, 537, {42, 0x404040});
  surface().Line(30, 535, 472, 535, {40, NumeroColore(Colore[Giocatore])});
  DisegnaCornice(*this, kSmussoPuzzle);
  cmdRisposta.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  const TestiPuzzle testi =
      TestiDelPuzzle(ArrivoRaggiunto == Vero, Pos[Giocatore], mod_Messaggi::Messaggio);
  LblInfo.SetCaption(testi.info);
  LblTitolo.SetCaption(testi.titolo);
  const auto figura = cLoadResPicture(a_.immagini).LoadResPicture(testi.figura, "CUSTOM");
  picOriginale.SetPicture(figura);
  ImgRidotta.SetPicture(figura);
  Distribuisci(NumeroColore(mod_Messaggi::ColoreCornice));
}

void FormProvaPuzzle::Form_Activate() {
  Premio = Euro::Interi(20);
  RitornoProva = Falso;
  Timer1.SetEnabled(true);
}

void FormProvaPuzzle::Form_MouseDown(const platform::MouseArgs& args) {
  if (args.button == platform::MouseButton::Left) BeginDrag();
}

void FormProvaPuzzle::EnableTrap() {
  const Rect& r = picOriginale.place();
  DelimitaMouse(*this, picOriginale, prova_->recinto(int(r.width), int(r.height)));
}

void FormProvaPuzzle::Risolta() {
  NascondiCelle();
  SetPointer({});
  Refresh();
  Timer1.SetEnabled(false);
  Shape1.SetVisible(false);
  ImgRidotta.SetVisible(false);
  Resize(width(), kAltezzaRisolta);
  CentraTitolo();
  DisegnaCornice(*this, kSmussoPuzzle);
  Refresh();
  mod_Messaggi::Risposta = 1;
  SuonoSync("106");
  Uscita();
}

void FormProvaPuzzle::CentraTitolo() {
  LblTitolo.Move({216, 384, 480, 67});
  LblTitolo.SetAutoSize(true);
  Rect posto = LblTitolo.place();
  // Two lines do not fit above the bevel at this size: they share the room under the picture.
  const double sopra = picOriginale.place().bottom();
  const double sotto = height() - kSmussoPuzzle.passi;
  if (posto.bottom() > sotto) {
    LblTitolo.Apply({.caption = LblTitolo.caption(),
                     .font = Verdana(10),
                     .align = platform::Align::Center,
                     .autoSize = true});
    posto = LblTitolo.place();
    posto.top = (sopra + sotto - posto.height) / 2;
  }
  posto.left = (width() - posto.width) / 2;
  LblTitolo.Move(posto);
}

void FormProvaPuzzle::Timer1_Timer() {
  const BarraTempo barra = BarraPuzzle(++scatti_);
  Linea.Move(
      {double(barra.left), Linea.place().top, double(barra.larghezza), Linea.place().height});
  if (barra.rossa && Linea.backColor() != kRosso) Linea.SetBackColor(kRosso);
  Linea.SetVisible(barra.visibile);
  if (barra.scaduta) {
    mod_Messaggi::Risposta = 2;
    Uscita();
    return;
  }
  MuoviRinuncia(BottonePuzzle(scatti_));
}

}  // namespace girovia
