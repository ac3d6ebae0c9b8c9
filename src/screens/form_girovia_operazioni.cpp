// What the rules ask of the board.
#include <algorithm>

#include "content/atlante.h"
#include "core/frasi.h"
#include "core/mod_Girovia.h"
#include "screens/form_girovia.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

constexpr platform::Color kBlu = 0xFF0000;
constexpr std::int64_t kMicrosecondiPerCentesimo = 1000;
// Behind by more than this the count-up leaves out repaints, so that it takes as long everywhere.
constexpr std::int64_t kRitardoMassimo = 10'000;

}  // namespace

void FormGirovia::RiduciCasella(int i) {
  cmdcitta(i).Move({double(casella(i).x), double(casella(i).y), 15, 15});
}

void FormGirovia::IngrandisciCasella(int i) {
  cmdcitta(i).Move({casella(i).x - 2.0, casella(i).y - 2.0, 19, 19});
}

void FormGirovia::ColoraCasella(int i, int colore) {
  cmdcitta(i).SetBackColor(platform::Color(colore));
  cmdcitta(i).SetPicture({});
  cmdcitta(i).Refresh();
}

void FormGirovia::LiberaCasella(int i) {
  cmdcitta(i).SetBackColor(kBlu);
  if (cmdcitta(i).tag() == "E") cmdcitta(i).SetPicture(stella_);
  cmdcitta(i).Refresh();
}

void FormGirovia::MostraTratto(int p, int i) {
  auto& tratto = (p == 1 ? Line1 : Line2)(i);
  tratto.SetVisible(true);
  tratto.Refresh();
}

void FormGirovia::NascondiTratto(int p, int i) {
  auto& tratto = (p == 1 ? Line1 : Line2)(i);
  tratto.SetVisible(false);
  Invalidate(tratto.InForm(tratto.PaintBounds()));
  screen().Flush();
}

void FormGirovia::AttivaTurno(int p) {
  TimerCitta.SetEnabled(true);
  cmdRitratto(p).SetVisible(true);
  TimerPrimo[p].SetEnabled(true);
}

void FormGirovia::RefreshPrBar() {
  for (int p : {1, 2}) PrBar(p).SetCaption(TestoPrBar(p));
}

void FormGirovia::ContaGruzzolo(int p, Euro da, Euro a) {
  const std::int64_t inizio = screen().host().NowMicros();
  std::int64_t quando = inizio;
  for (Euro v = da; v <= a; v += Euro::Centesimi(1), quando += kMicrosecondiPerCentesimo) {
    if (screen().host().NowMicros() - quando > kRitardoMassimo) continue;
    lblGruzzolo(p).SetCaption(TestoEuro(v));
    lblGruzzolo(p).Refresh();
    screen().WaitUntil(quando + kMicrosecondiPerCentesimo);
  }
}

void FormGirovia::ScriviGruzzolo(int p, Euro valore) {
  lblGruzzolo(p).SetCaption(TestoEuro(valore));
  lblGruzzolo(p).Refresh();
}

// Goes with the route under the veil, in one repaint.
void FormGirovia::SvuotaGruzzolo(int p) { lblGruzzolo(p).SetCaption(""); }

void FormGirovia::ColoraGruzzoli(int colore1, int colore2) {
  lblGruzzolo(1).SetForeColor(platform::Color(colore1));
  lblGruzzolo(2).SetForeColor(platform::Color(colore2));
  for (int p : {1, 2}) lblGruzzolo(p).Refresh();
}

// Only what is yet to be painted: a second click served here would open a second postcard.
void FormGirovia::EseguiEventi() { screen().Flush(); }

void FormGirovia::SpegniTimer() {
  TimerCitta.SetEnabled(false);
  for (int p : {1, 2}) TimerPrimo[p].SetEnabled(false);
}

void FormGirovia::RiposaRitratti() {
  cmdRitratto(1).Move({326, 528, 54, 54});
  cmdRitratto(2).Move({456, 528, 54, 54});
}

void FormGirovia::NascondiRitratti() {
  Picture1.SetBorderWidth(2);
  Picture2.SetBorderWidth(2);
  for (int p : {1, 2}) {
    LblClicca(p).SetVisible(false);
    cmdRitratto(p).SetVisible(false);
    ImgFreccia(p).SetVisible(false);
  }
}

void FormGirovia::NascondiAnnuncio() {
  LblSorpresa.SetVisible(false);
  ShpOvale.SetVisible(false);
}

void FormGirovia::ScriviAnnuncio(std::string_view testo) {
  LblSorpresa.SetCaption(std::string(testo));
}

void FormGirovia::ScambiaAnnuncio() {
  const bool mostra = !LblSorpresa.visible();
  LblSorpresa.SetVisible(mostra);
  ShpOvale.SetVisible(mostra);
}

void FormGirovia::MostraDadi(int n, bool visibile) {
  (n == 1 ? PicDado1 : PicDado2).SetVisible(visibile);
  (n == 1 ? PicDadoOmbra1 : PicDadoOmbra2).SetVisible(visibile);
}

}  // namespace girovia
