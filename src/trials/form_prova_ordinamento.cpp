#include "trials/form_prova_ordinamento.h"

#include <algorithm>
#include <cmath>

#include "content/atlante.h"
#include "content/quiz.h"

namespace girovia {

using namespace mod_Girovia;
using platform::RasterOp;

namespace {

constexpr platform::Color kFondoIstruzioni = 0xDCF3FF;

// Made smaller if the text would be wider than there is room.
platform::Font Adatta(platform::Font carattere, std::string_view testo, double larghezza) {
  while (platform::TextWidth(carattere, testo) > larghezza) carattere.points -= 0.25;
  return carattere;
}

// On the base line that it would have in the full size.
void Stampa(platform::PictureBox& riquadro, double x, double y, std::string_view riga,
            const platform::Font& pieno, const platform::Font& adatto) {
  riquadro.SetPrintFont(adatto);
  riquadro.SetPrintAt(x, y + std::round(platform::Ascent(pieno) - platform::Ascent(adatto)));
  riquadro.Print(riga);
}

}  // namespace

FormProvaOrdinamento::FormProvaOrdinamento(Ambiente& ambiente)
    : FormTasselli(ambiente, "FormProvaOrdinamento", 800, 600) {
  Row(picOriginale, "picOriginale", {0, 0, 800, 600});
  RigheCelle();
  Picture2(kCellaRiferimento).SetPointer({});  // nothing can be lifted there
  Picture2(kCellaRiferimento).OnMouseDown = nullptr;
  Row(PicCaricamento, "PicCaricamento", {352, 240, kLarghezza, kAltezza},
      {.back = kFondoIstruzioni, .visible = false}, &picOriginale);
  RigaTassello({272, 160, kLarghezza, kAltezza});
  RigaRinuncia({736, 512, 54, 82});
  Row(Timer1, 500, false, [this] { Timer1_Timer(); });
}

void FormProvaOrdinamento::Form_Load() {
  Annuncia();
  picOriginale.SetPicture(a_.immagini.DiSchermata("FormProvaOrdinamento"));
  const auto citta = LeggiOrdinamento(mod_Messaggi::IndiceOrdinamento);
  for (int c = 0; c < ProvaOrdinamento::kCelle; ++c) ComponiFoto(c, citta[std::size_t(c)]);
  Distribuisci(NumeroColore(Colore[Giocatore]));
  ScriviIstruzioni(citta[kCellaRiferimento]);
}

// Each photograph goes straight to the size of its tile: nine of them in full would take 25 MB.
void FormProvaOrdinamento::ComponiFoto(int cella, int citta) {
  const auto foto = cLoadResPicture(a_.immagini).LoadResPicture(400 + citta, "CUSTOM");
  PicCaricamento.surface().BitBlt(0, 0, kLarghezza, kAltezza,
                                  foto.picture->Fit(kLarghezza, kAltezza, screen().scale()), 0, 0,
                                  RasterOp::SrcCopy);
  // The button covers a corner of the last cell: the longest name ends before it.
  constexpr double kSpazio = 204;
  platform::Font pieno = Verdana(18);
  pieno.underline = true;
  const std::string nome(NomeCasella(citta));
  const platform::Font adatto = Adatta(pieno, ' ' + nome, kSpazio);
  const platform::Color colore = cella == kCellaRiferimento ? 0x0000FF : 0x00FFFF;
  PicCaricamento.SetForeColor(0x000000);
  Stampa(PicCaricamento, 3, 130, ScrittaTassello(nome), pieno, adatto);
  PicCaricamento.SetForeColor(colore);
  Stampa(PicCaricamento, 1, 128, ScrittaTassello(nome), pieno, adatto);
  MettiNellaGriglia(cella, PicCaricamento);
}

void FormProvaOrdinamento::MettiNellaGriglia(int cella, platform::PictureBox& foto) {
  const platform::Rect posto = PostoCella(cella);
  picOriginale.surface().BitBlt(posto.left, posto.top, kLarghezza, kAltezza, foto.surface(), 0, 0,
                                RasterOp::SrcCopy);
}

void FormProvaOrdinamento::ScriviIstruzioni(int riferimento) {
  constexpr double kMargine = 6;  // as wide as the blank at the left
  PicCaricamento.Cls();
  PicCaricamento.Move(PostoCella(kCellaRiferimento));
  PicCaricamento.SetForeColor(0x000000);
  double y = 1;
  for (const std::string& riga :
       IstruzioniOrdinamento(NomeCasella(riferimento), mod_Messaggi::Messaggio)) {
    Stampa(PicCaricamento, 0, y, riga, Verdana(10),
           Adatta(Verdana(10), riga, kLarghezza - kMargine));
    y += platform::LineHeight(Verdana(10));
  }
  PicCaricamento.SetVisible(true);
}

void FormProvaOrdinamento::Form_Activate() {
  Premio = Euro::Interi(10);
  Scatti = 0;
  cmdRisposta.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  RitornoProva = Falso;
  Timer1.SetEnabled(true);
}

bool FormProvaOrdinamento::Picture2_MouseDown(int Index, const platform::MouseArgs& args) {
  const bool sollevato = FormTasselli::Picture2_MouseDown(Index, args);
  if (sollevato) PicCaricamento.SetVisible(false);
  return sollevato;
}

void FormProvaOrdinamento::EnableTrap() { DelimitaMouse(*this, picOriginale, prova_->recinto()); }

void FormProvaOrdinamento::Risolta() {
  // The photographs of the solved grid lie over the marks, as their tiles did.
  for (int c = 0; c < ProvaOrdinamento::kCelle; ++c) MettiNellaGriglia(c, PicControllo(c));
  NascondiCelle();
  cmdRisposta.SetVisible(false);
  Refresh();
  Timer1.SetEnabled(false);
  mod_Messaggi::Risposta = 1;
  SuonoSync("106");
  Uscita();
}

void FormProvaOrdinamento::Timer1_Timer() {
  const ScattoOrdinamento scatto = ScattoDellAnello(++Scatti);
  if (scatto.segno) DisegnaSegno(*scatto.segno);
  if (scatto.scaduto) {
    mod_Messaggi::Risposta = 2;
    Uscita();
    return;
  }
  MuoviRinuncia(BottoneOrdinamento(Scatti));
}

void FormProvaOrdinamento::DisegnaSegno(const SegnoAnello& segno) {
  constexpr double kPenna = 6;
  picOriginale.surface().Line(segno.x1, segno.y1, segno.x2, segno.y2, {kPenna, segno.colore});
  const auto [sinistra, destra] = std::minmax(segno.x1, segno.x2);
  const auto [alto, basso] = std::minmax(segno.y1, segno.y2);
  Invalidate({sinistra - kPenna, alto - kPenna, destra - sinistra + 2 * kPenna,
              basso - alto + 2 * kPenna});
}

}  // namespace girovia
