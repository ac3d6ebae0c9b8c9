#include "comune/form_con_titolo.h"

namespace girovia {
namespace {

// The strip counts as 353 pixels wide, though 345 of them are seen: the logo enters and leaves a
// little beyond its ends.
constexpr int kStriscia = 353;
constexpr int kAltezza = 63;
constexpr int kPasso = 3;

}  // namespace

void FormConTitolo::RigheTitolo(const platform::Rect& posto, platform::Color fondo) {
  Row(PicCornice, "PicCornice", posto, {.back = fondo});
  Row(PicBackUpTitolo, "PicBackUpTitolo", {0, 0, 345, 63}, {.back = fondo, .visible = false});
  Row(PicLogoNero, "PicLogoNero", {0, 0, 174, 63}, {.visible = false, .sprite = true});
  Row(PicLogoBianco, "PicLogoBianco", {0, 0, 174, 63}, {.visible = false, .sprite = true});
  Row(TimerTitolo, 15, false, [this] { TimerTitolo_Timer(); });
}

void FormConTitolo::PreparaTitolo() {
  PicLogoNero.SetPicture(a_.immagini.DiSchermata("PicLogoNero"));
  PicLogoBianco.SetPicture(a_.immagini.DiSchermata("PicLogoBianco"));
  XTitolo = std::int16_t(kStriscia - PicLogoNero.place().width);
}

void FormConTitolo::TimerTitolo_Timer() {
  using platform::RasterOp;
  platform::Surface& striscia = PicCornice.surface();
  striscia.BitBlt(0, 0, kStriscia, kAltezza, PicBackUpTitolo.surface(), 0, 0, RasterOp::SrcCopy);
  XTitolo = std::int16_t(XTitolo - kPasso);
  const double larghezza = kStriscia - XTitolo;
  striscia.BitBlt(XTitolo, 0, larghezza, kAltezza, PicLogoNero.surface(), 0, 0,
                  RasterOp::MergePaint);
  striscia.BitBlt(XTitolo, 0, larghezza, kAltezza, PicLogoBianco.surface(), 0, 0, RasterOp::SrcAnd);
  PicCornice.Refresh();
  if (XTitolo < -PicLogoNero.place().width) XTitolo = kStriscia;
}

}  // namespace girovia
