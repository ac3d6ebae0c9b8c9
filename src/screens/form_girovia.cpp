#include "screens/form_girovia.h"

#include <cmath>

#include "content/atlante.h"

namespace girovia {

using platform::Align;
using platform::Rect;
using platform::Shape;

namespace {

constexpr platform::Color kBlu = 0xFF0000;
constexpr platform::Color kBluScuro = 0x800000;
constexpr platform::Color kRosso = 0x0000FF;
constexpr platform::Color kGiallo = 0x00FFFF;
const platform::Font kNomeCitta{"MS Sans Serif", 8.25, false, false};
const platform::Font kClicca{"MS Sans Serif", 9.75, true, false};

// Labels that stand to the left of their button, or are centred on it, have a width that their
// place tells: they must end where the button begins. The others are as wide as their text.
double LarghezzaNome(const Casella& c) {
  const double dx = c.labelX - c.x;
  const double naturale = std::ceil(platform::TextWidth(kNomeCitta, c.nome)) + 3;
  if (dx == 0 || dx == 12 || dx == 15) return naturale;
  if (c.labelY - c.y == 1) return -dx;
  double larghezza = 0;
  for (const double w : {5 - dx, 15 - dx, 2 * (8 - dx)})
    if (std::abs(w - naturale) < std::abs(larghezza - naturale)) larghezza = w;
  return larghezza;
}

}  // namespace

FormGirovia::FormGirovia(Ambiente& ambiente)
    : Form(ambiente.screen, "FormGirovia", 800, 600, 0x808080),
      a_(ambiente),
      cerimonia_(ambiente, *this) {
  a_.dadi = this;
  RigheCaselle();
  RigheGiocatori();
  RigheComandi();
  cerimonia_.Righe();
}

// Route, squares and city names. The lines come first: they lie under everything.
void FormGirovia::RigheCaselle() {
  for (int p : {1, 2})
    for (int i = 1; i < kNumeroCaselle; ++i) {
      const Tratto t = LineaTratto(p, i);
      Row((p == 1 ? Line1 : Line2).Load(i), Indexed(p == 1 ? "Line1" : "Line2", i), {},
          {.x1 = double(t.x1),
           .y1 = double(t.y1),
           .x2 = double(t.x2),
           .y2 = double(t.y2),
           .width = 6,
           .visible = false});
    }
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const Casella& c = casella(i);
    Row(Label1.Load(i), Indexed("Label1", i), {c.labelX, c.labelY, LarghezzaNome(c), 13},
        {.caption = std::string(c.nome),
         .font = kNomeCitta,
         .back = 0xFFFFFF,
         .transparent = false,
         .align = Align::Center,
         .wrap = false,
         .visible = false});
    Label1(i).UseHand(&a_.mani, false);
    Row(cmdcitta.Load(i), Indexed("cmdcitta", i), {double(c.x), double(c.y), 15, 15},
        {.back = kBlu, .hand = &a_.mani});
    cmdcitta(i).OnClick = [this, i] { cmdcitta_Click(i); };
    cmdcitta(i).OnMouseMove = [this, i](const platform::MouseArgs&) { cmdcitta_MouseMove(i); };
  }
}

void FormGirovia::RigheGiocatori() {
  Row(Picture1, "Picture1", {322, 522, 62, 80},
      {.kind = Shape::Kind::RoundedRectangle,
       .border = kBluScuro,
       .borderWidth = 2,
       .filled = true});
  Row(Picture2, "Picture2", {452, 522, 62, 80},
      {.kind = Shape::Kind::RoundedRectangle,
       .border = kBluScuro,
       .borderWidth = 2,
       .filled = true});
  // Both words stand under the middle of their portraits: the first box is centred there, the
  // second one two pixels further right.
  Row(LblClicca.Load(1), "LblClicca(1)", {332, 580, 42, 16},
      {.caption = "clicca",
       .font = kClicca,
       .fore = kBluScuro,
       .align = Align::Center,
       .visible = false});
  Row(LblClicca.Load(2), "LblClicca(2)", {464, 580, 42, 16},
      {.caption = "clicca", .font = kClicca, .fore = kBluScuro, .visible = false});
  const auto freccia = a_.immagini.DiSchermata("FormGirovia.ImgFreccia");
  Row(ImgFreccia.Load(1), "ImgFreccia(1)", {336, 488, 32, 32},
      {.picture = freccia, .visible = false});
  Row(ImgFreccia.Load(2), "ImgFreccia(2)", {468, 488, 32, 32},
      {.picture = freccia, .visible = false});

  // Purses and status lines size themselves to their text, away from the portraits; the longest
  // name in the widest letters still stays on the board. The second line's ground is a band of one
  // width, which reaches behind the help button: its text does not.
  Row(lblGruzzolo.Load(1), "lblGruzzolo(1)", {216, 544, 101, 35},
      {.font = Verdana(21.75),
       .fore = kGiallo,
       .align = Align::Right,
       .autoSize = true,
       .maxWidth = 215});
  Row(lblGruzzolo.Load(2), "lblGruzzolo(2)", {516, 568, 101, 35},
      {.font = Verdana(21.75), .fore = kGiallo, .autoSize = true, .maxWidth = 220});
  Row(PrBar.Load(1), "PrBar(1)", {152, 580, 166, 18},
      {.font = Verdana(12),
       .fore = kGiallo,
       .align = Align::Right,
       .autoSize = true,
       .maxWidth = 310});
  Row(PrBar.Load(2), "PrBar(2)", {516, 548, 239, 18},
      {.font = Verdana(12),
       .fore = kGiallo,
       .back = kBluScuro,
       .transparent = false,
       .autoSize = true,
       .maxWidth = 224,
       .minWidth = 239});

  for (int p : {1, 2}) {
    const double x = p == 1 ? 326 : 456;
    Row(PicGiocatore.Load(p), Indexed("PicGiocatore", p), {x - 1, 527, 56, 56}, {});
    Row(cmdRitratto.Load(p), Indexed("cmdRitratto", p), {x, 528, 54, 54},
        {.toolTip = "TIRA IL DADO", .hand = &a_.mani, .focusOnMove = true});
    cmdRitratto(p).OnClick = [this, p] { cmdRitratto_Click(p); };
    Row(TimerPrimo[p], 400, false, [this, p] { TimerPrimo_Timer(p); });
  }
}

void FormGirovia::RigheComandi() {
  Row(ShpOvale, "ShpOvale", {168, 56, 137, 105},
      {.kind = Shape::Kind::Oval, .border = kBluScuro, .borderWidth = 3, .visible = false});
  Row(LblSorpresa, "LblSorpresa", {184, 72, 108, 79},
      {.font = Verdana(9.75, true), .fore = kBluScuro, .align = Align::Center});
  Row(PicDadoOmbra1, "PicDadoOmbra1", {178, 10, 64, 64}, {.back = 0x404040, .visible = false});
  Row(PicDado1, "PicDado1", {176, 8, 64, 64}, {.visible = false});
  Row(PicDadoOmbra2, "PicDadoOmbra2", {234, 66, 64, 64}, {.back = 0x404040, .visible = false});
  Row(PicDado2, "PicDado2", {232, 64, 64, 64}, {.visible = false});
  Row(CmdHelp, "CmdHelp", {744, 545, 54, 54},
      {.picture = a_.immagini.DiSchermata("CmdHelp"), .hand = &a_.mani, .focusOnMove = true});
  Row(cmdExit, "cmdExit", {744, 2, 54, 54},
      {.picture = a_.immagini.DiSchermata("cmdExit"), .hand = &a_.mani});
  CmdHelp.OnClick = [this] { CmdHelp_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };
  SetCancel(cmdExit);
  Row(TimerCitta, 400, false, [this] { TimerCitta_Timer(); });
  Row(TimerSorpresa, 400, false, [this] { TimerSorpresa_Timer(); });
}

void FormGirovia::TracciaPercorso() {
  for (int i = 1; i < kNumeroCaselle; ++i) {
    const Tratto t = LineaBase(i);
    surface().Line(t.x1, t.y1, t.x2, t.y2, {6, kRosso});
  }
}

}  // namespace girovia
