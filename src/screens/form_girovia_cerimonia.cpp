#include "screens/form_girovia_cerimonia.h"

#include "comune/mod_Translucent.h"
#include "content/atlante.h"
#include "content/catalogo.h"
#include "platform/forms/msgbox.h"
#include "screens/form_girovia.h"

namespace girovia {

using platform::PictureBox;
using platform::RasterOp;

namespace {

constexpr platform::Color kBlu = 0xFF0000;
constexpr platform::Point kPremioSpeciale{0, 200};
constexpr double kLatoPremio = 150;

}  // namespace

void CerimoniaSulTabellone::Righe() {
  tabellone_.Row(PicVincitore, "PicVincitore", {52, 44, 56, 56}, {.visible = false});
  // Work surfaces, left of what is seen. The first two take the size of each picture.
  tabellone_.Row(PicPremiazione, "PicPremiazione", {-160, 0, kLatoPremio, kLatoPremio},
                 {.autoSize = true, .visible = false, .sprite = true});
  tabellone_.Row(PicPremiazioneNera, "PicPremiazioneNera", {-160, 160, kLatoPremio, kLatoPremio},
                 {.autoSize = true, .visible = false, .sprite = true});
  tabellone_.Row(PicSfondoPremiazione, "PicSfondoPremiazione",
                 {-160, 320, kLatoPremio, kLatoPremio}, {.visible = false});
}

void CerimoniaSulTabellone::SgombraTabellone() {
  tabellone_.SpegniTimer();
  tabellone_.NascondiUscita();
  tabellone_.NascondiRitratti();
}

void CerimoniaSulTabellone::NascondiPercorso() {
  for (int i = 0; i < kNumeroCaselle; ++i) {
    tabellone_.cmdcitta(i).SetVisible(false);
    tabellone_.Label1(i).SetVisible(false);
    if (i == 0) continue;  // no segment ends there
    tabellone_.Line1(i).SetVisible(false);
    tabellone_.Line2(i).SetVisible(false);
  }
}

void CerimoniaSulTabellone::TingiTabellone() {
  Traslucido(tabellone_, kBlu);
  tabellone_.Refresh();
}

void CerimoniaSulTabellone::MostraCorona() { Posa(140, 0, 0); }

void CerimoniaSulTabellone::MostraVincitore(int ritratto) {
  PicVincitore.SetPicture(a_.immagini.LoadResPicture(ritratto));
  PicVincitore.SetVisible(true);
}

void CerimoniaSulTabellone::SalvaSfondoPremio() {
  PicSfondoPremiazione.surface().BitBlt(0, 0, kLatoPremio, kLatoPremio, tabellone_.surface(),
                                        kPremioSpeciale.x, kPremioSpeciale.y, RasterOp::SrcCopy);
}

void CerimoniaSulTabellone::MostraTrofeo() { Posa(340, 168, 0); }

void CerimoniaSulTabellone::MostraBanconota500(int p) {
  PosaBanconota(202, p == 1 ? 72 : 544, 448);
}

void CerimoniaSulTabellone::MostraBanconota50(int p) {
  PosaBanconota(201, p == 1 ? 536 : 152, 448);
}

void CerimoniaSulTabellone::TogliPremioSpeciale() {
  tabellone_.surface().BitBlt(kPremioSpeciale.x, kPremioSpeciale.y, kLatoPremio, kLatoPremio,
                              PicSfondoPremiazione.surface(), 0, 0, RasterOp::SrcCopy);
  RidisegnaDove(PicSfondoPremiazione, kPremioSpeciale.x, kPremioSpeciale.y);
}

void CerimoniaSulTabellone::MostraPremioSpeciale(int numero) {
  Posa(kPrimoPremio + 2 * numero, kPremioSpeciale.x, kPremioSpeciale.y);
}

void CerimoniaSulTabellone::MostraCongratulazioni() { Posa(344, 432, -24); }

int CerimoniaSulTabellone::Chiedi(std::string_view titolo, std::string_view testo) {
  return int(platform::MsgBox(tabellone_.screen(), std::string(titolo), std::string(testo),
                              platform::MsgButtons::YesNo));
}

void CerimoniaSulTabellone::Posa(int bitmap, double x, double y) {
  PicPremiazione.SetPicture(a_.immagini.LoadResPicture(bitmap));
  PicPremiazioneNera.SetPicture(a_.immagini.LoadResPicture(bitmap + 1));
  for (const auto& [pic, op] : {std::pair{&PicPremiazioneNera, RasterOp::MergePaint},
                                std::pair{&PicPremiazione, RasterOp::SrcAnd}})
    tabellone_.surface().BitBlt(x, y, pic->innerWidth(), pic->innerHeight(), pic->surface(), 0, 0,
                                op);
  RidisegnaDove(PicPremiazione, x, y);
}

void CerimoniaSulTabellone::PosaBanconota(int bitmap, double x, double y) {
  PicPremiazione.SetPicture(a_.immagini.LoadResPicture(bitmap));
  tabellone_.surface().BitBlt(x, y, PicPremiazione.innerWidth(), PicPremiazione.innerHeight(),
                              PicPremiazione.surface(), 0, 0, RasterOp::SrcCopy);
  RidisegnaDove(PicPremiazione, x, y);
}

void CerimoniaSulTabellone::RidisegnaDove(const PictureBox& pic, double x, double y) {
  tabellone_.Invalidate({x, y, double(pic.innerWidth()), double(pic.innerHeight())});
  tabellone_.screen().Flush();
}

}  // namespace girovia
