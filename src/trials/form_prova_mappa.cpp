#include "trials/form_prova_mappa.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/mappa_logica.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Align;
using platform::Rect;

namespace {

constexpr platform::Color kBluScuro = 0x800000;
constexpr platform::Color kRosso = 0x0000FF;
constexpr platform::Color kVerde = 0x00FF00;
constexpr int kTopLinea = 572;

Rect PostoLinea(const BarraTempo& b) { return {double(b.left), kTopLinea, double(b.larghezza), 6}; }

Rect PostoUscita(const PostoBottone& b) {
  return {double(b.left), double(b.top), double(b.larghezza), double(b.altezza)};
}

}  // namespace

FormProvaMappa::FormProvaMappa(Ambiente& ambiente, std::string nome, MappaProva mappa)
    : Form(ambiente.screen, std::move(nome), 800, 600, 0x808080), a_(ambiente) {
  Row(lbllista, "lbllista", {0, 568, 33, 33}, {});
  Row(LblDomanda, "LblDomanda", {280, 548, 147, 18},
      {.font = Verdana(12),
       .fore = platform::colors::kWhite,
       .align = Align::Center,
       .autoSize = true,
       .maxWidth = 680});
  Row(lblInfo, "lblInfo", {347, 584, 18, 16},
      {.font = Verdana(9.75),
       .fore = platform::colors::kWhite,
       .align = Align::Center,
       .autoSize = true,
       .maxWidth = 680});
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const PostoMappa posto = PostoSuMappa(mappa, i);
    Row(cmdcitta.Load(i), Indexed("cmdcitta", i), {double(posto.x), double(posto.y), 15, 15},
        {.back = posto.rosso ? kRosso : kBluScuro, .visible = posto.visibile, .hand = &a_.mani});
    cmdcitta(i).OnClick = [this, i] { cmdcitta_Click(i); };
    cmdcitta(i).OnMouseMove = [this, i](const platform::MouseArgs&) { cmdcitta_MouseMove(i); };
  }
  Row(Linea, "Linea", PostoLinea(BarraMappa(0)), {.back = kVerde});
  Row(cmdExit, "cmdExit", PostoUscita(BottoneMappa(0)),
      {.caption = "ci rinuncio", .font = Verdana(8.25), .hand = &a_.mani});
  cmdExit.OnClick = [this] { cmdExit_Click(); };
  Row(TimerCitta, 200, false, [this] { TimerCitta_Timer(); });
}

void FormProvaMappa::Form_Load() {
  servizi().comandi->NascondiUscita();
  screen().Flush();
  SetPicture(a_.immagini.DiSchermata("FormProvaCitta"));
  const auto stella = a_.immagini.LoadResPicture(104);
  for (int i = 0; i < kNumeroCaselle; ++i)
    if (casella(i).stella) cmdcitta(i).SetPicture(stella);
  LblDomanda.SetCaption(Domanda());
  lblInfo.SetCaption(mod_Messaggi::Messaggio);
  cmdExit.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  SuonoAsync("105");
}

void FormProvaMappa::Form_Activate() {
  RitornoProva = Falso;
  TimerCitta.SetEnabled(true);
}

void FormProvaMappa::TimerCitta_Timer() {
  const BarraTempo barra = BarraMappa(++scatti_);
  Linea.Move(PostoLinea(barra));
  if (barra.rossa && Linea.backColor() != kRosso) Linea.SetBackColor(kRosso);
  Linea.SetVisible(barra.visibile);
  if (barra.scaduta) return Uscita(2);
  cmdExit.Move(PostoUscita(BottoneMappa(scatti_)));
}

void FormProvaMappa::cmdcitta_Click(int Index) { Uscita(RispostaClicCitta(Index, Richiesta())); }

void FormProvaMappa::cmdExit_Click() {
  SuonoAsync("102");
  Uscita(0);
}

void FormProvaMappa::Uscita(int risposta) {
  TimerCitta.SetEnabled(false);
  mod_Messaggi::Risposta = risposta;
  RitornoProva = Vero;
  Unload();
  // After a solved trial the prize comes next, and its dialog brings the exit back.
  if (risposta != 1) servizi().comandi->MostraUscita();
}

}  // namespace girovia
