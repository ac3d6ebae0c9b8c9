// What the two trials share in which the tiles of a picture lie in disorder: a press lifts a tile,
// it follows the pointer, and the next click drops it. `Prova` is the trial's logic.
#pragma once

#include <cmath>
#include <optional>
#include <string>

#include "comune/ambiente.h"
#include "comune/segni_tempo.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/mod_DelimitazioneMouse.h"

namespace girovia {

template <class Prova>
class FormTasselli : public platform::Form {
 public:
  void Form_Unload() override { LiberaMouse(*this); }

 protected:
  static constexpr int kLarghezza = Prova::kLarghezzaTassello;
  static constexpr int kAltezza = Prova::kAltezzaTassello;
  static platform::Rect PostoCella(int cella) {
    return {double(Prova::LeftCella(cella)), double(Prova::TopCella(cella)), kLarghezza, kAltezza};
  }

  FormTasselli(Ambiente& ambiente, std::string name, int width, int height)
      : Form(ambiente.screen, std::move(name), width, height, 0xFFFFFF), a_(ambiente) {}

  // Rows of the table; cells and tile lie on picOriginale.
  void RigheCelle();
  void RigaTassello(const platform::Rect& posto);
  void RigaRinuncia(const platform::Rect& posto);

  // The opening as far as one hears and sees it on the board.
  void Annuncia();
  // Cuts picOriginale, as it is now, into the tiles and deals them. A cell without a tile shows the
  // colour `vuota`.
  void Distribuisci(platform::Color vuota);

  // True if a tile is in the hand now.
  virtual bool Picture2_MouseDown(int Index, const platform::MouseArgs& args);
  void picTassello_MouseMove(const platform::MouseArgs& args);
  void picTassello_Click();
  void cmdRisposta_Click();

  virtual void EnableTrap() = 0;
  virtual void Risolta() = 0;  // all cells have their tile again
  void NascondiCelle();
  void MuoviRinuncia(const PostoBottone& posto);
  void Uscita();

  Ambiente& a_;
  platform::PictureBox picOriginale, picTassello;
  platform::ControlArray<platform::PictureBox> Picture2, PicControllo;
  platform::CommandButton cmdRisposta;
  platform::Timer Timer1;
  std::optional<Prova> prova_;

 private:
  void MostraTassello(int cella);
  void PosaInMano();
  static void Copia(platform::PictureBox& da, platform::PictureBox& a);
};

template <class Prova>
void FormTasselli<Prova>::RigheCelle() {
  for (int c = 0; c < Prova::kCelle; ++c) {
    const platform::Rect posto = PostoCella(c);
    Row(PicControllo.Load(c), Indexed("PicControllo", c), posto, {.visible = false}, &picOriginale);
    Row(Picture2.Load(c), Indexed("Picture2", c), posto, {}, &picOriginale);
    Picture2(c).SetPointer(a_.mani.open);
    Picture2(c).OnMouseDown = [this, c](const auto& args) { Picture2_MouseDown(c, args); };
  }
}

template <class Prova>
void FormTasselli<Prova>::RigaTassello(const platform::Rect& posto) {
  Row(picTassello, "picTassello", posto, {.visible = false}, &picOriginale);
  picTassello.SetPointer(a_.mani.closed);
  picTassello.OnMouseMove = [this](const auto& args) { picTassello_MouseMove(args); };
  picTassello.OnClick = [this] { picTassello_Click(); };
}

template <class Prova>
void FormTasselli<Prova>::RigaRinuncia(const platform::Rect& posto) {
  Row(cmdRisposta, "cmdRisposta", posto,
      {.caption = "ci rinuncio", .font = Verdana(8.25), .hand = &a_.mani, .focusOnMove = true});
  cmdRisposta.OnClick = [this] { cmdRisposta_Click(); };
}

template <class Prova>
void FormTasselli<Prova>::Annuncia() {
  SuonoAsync("117");
  servizi().comandi->NascondiUscita();
  servizi().tabellone->Ridisegna();
}

template <class Prova>
void FormTasselli<Prova>::Distribuisci(platform::Color vuota) {
  for (int c = 0; c < Prova::kCelle; ++c) {
    PicControllo(c).SetTag(std::to_string(c));
    // Where the picture ends before its last tile does, the tile has this colour too.
    PicControllo(c).SetBackColor(vuota);
    PicControllo(c).surface().BitBlt(0, 0, kLarghezza, kAltezza, picOriginale.surface(),
                                     Prova::LeftCella(c), Prova::TopCella(c),
                                     platform::RasterOp::SrcCopy);
    Picture2(c).SetBackColor(vuota);
  }
  prova_.emplace(*servizi().caso);
  for (int c = 0; c < Prova::kCelle; ++c) MostraTassello(c);
}

template <class Prova>
void FormTasselli<Prova>::MostraTassello(int cella) {
  const int t = prova_->tassello(cella);
  Picture2(cella).SetTag(std::to_string(t));
  Copia(PicControllo(t), Picture2(cella));
}

template <class Prova>
void FormTasselli<Prova>::Copia(platform::PictureBox& da, platform::PictureBox& a) {
  a.surface().BitBlt(0, 0, kLarghezza, kAltezza, da.surface(), 0, 0, platform::RasterOp::SrcCopy);
  a.Invalidate();
}

template <class Prova>
bool FormTasselli<Prova>::Picture2_MouseDown(int Index, const platform::MouseArgs& args) {
  using Misura = typename Prova::Misura;
  if (args.button != platform::MouseButton::Left ||
      !prova_->Solleva(Index, Misura(args.x), Misura(args.y)))
    return false;
  SuonoAsync("212");
  Copia(Picture2(Index), picTassello);
  picTassello.SetTag(Picture2(Index).tag());
  picTassello.SetVisible(true);
  PosaInMano();
  // From here on the tile has the mouse wherever that points: it cannot be outrun, and neither the
  // release of this press nor a click on the button counts.
  screen().SetCapture(&picTassello);
  EnableTrap();
  Picture2(Index).Cls();
  return true;
}

template <class Prova>
void FormTasselli<Prova>::picTassello_MouseMove(const platform::MouseArgs& args) {
  using Misura = typename Prova::Misura;
  if (!prova_->in_mano()) return;
  const platform::Rect& qui = picTassello.place();
  prova_->Trascina(Misura(qui.left + args.x - double(prova_->x())),
                   Misura(qui.top + args.y - double(prova_->y())));
  PosaInMano();
}

// On whole device pixels: the picture of a tile between them would be blurred or cut.
template <class Prova>
void FormTasselli<Prova>::PosaInMano() {
  const auto intero = [k = screen().scale()](double v) { return std::floor(v * k + 0.5) / k; };
  picTassello.Move({intero(prova_->x()), intero(prova_->y()), kLarghezza, kAltezza});
}

template <class Prova>
void FormTasselli<Prova>::picTassello_Click() {
  SuonoSync("214");
  LiberaMouse(*this);
  const Posata posata = prova_->Posa();
  MostraTassello(posata.partenza);
  MostraTassello(posata.arrivo);
  picTassello.SetVisible(false);
  if (posata.risolta) Risolta();
}

template <class Prova>
void FormTasselli<Prova>::NascondiCelle() {
  for (int c = 0; c < Prova::kCelle; ++c) Picture2(c).SetVisible(false);
}

template <class Prova>
void FormTasselli<Prova>::cmdRisposta_Click() {
  if (prova_->in_mano()) return;
  mod_Messaggi::Risposta = 0;
  Uscita();
}

template <class Prova>
void FormTasselli<Prova>::MuoviRinuncia(const PostoBottone& posto) {
  cmdRisposta.Move(
      {double(posto.left), double(posto.top), double(posto.larghezza), double(posto.altezza)});
}

template <class Prova>
void FormTasselli<Prova>::Uscita() {
  mod_Girovia::RitornoProva = Vero;
  Timer1.SetEnabled(false);
  Unload();
  servizi().comandi->MostraUscita();
  servizi().tabellone->Ridisegna();
}

}  // namespace girovia
