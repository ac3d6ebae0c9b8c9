#include "effects/form_rotazione_carta.h"

#include <algorithm>

#include "comune/mod_FormTrasparente.h"
#include "core/mod_Girovia.h"

namespace girovia {

using platform::RasterOp;

namespace {

constexpr int kStadi = 8;
constexpr int kPassoLarghezza = 59;
// Pause and repaint of a frame together: as long as a frame of a display, 1.8 seconds in all. One
// that took longer to draw is still seen for a moment.
constexpr std::int64_t kMicrosecondiPerFotogramma = 16'667;
constexpr std::int64_t kMicrosecondiAlmeno = 10'000;

}  // namespace

FormRotazioneCarta::FormRotazioneCarta(Ambiente& ambiente)
    : Form(ambiente.screen, "FormRotazioneCarta", 800, 600, 0xFFFFFF), a_(ambiente) {
  for (int i = 0; i < kStadi; ++i) {
    const platform::Rect posto{0, 0, double(kPassoLarghezza * (i + 1)), double(kAltezzaCarta)};
    Row(Nero.Load(i), Indexed("Nero", i), posto, {.visible = false});
    Row(Retro.Load(i), Indexed("Retro", i), posto, {.visible = false});
    Row(Avanti.Load(i), Indexed("Avanti", i), posto, {.visible = false});
  }
  Row(PicBGround, "PicBGround", {0, 0, kLarghezzaCarta, kAltezzaCarta}, {.visible = false});
}

void FormRotazioneCarta::Form_Activate() {
  // The board is not repainted for its exit: this form lies over it, with nothing on it yet.
  servizi().comandi->NascondiUscita();
  CatturaSchermo(*this);
  SuonoAsync("103");
  PicBGround.surface().BitBlt(0, 0, kLarghezzaCarta, kAltezzaCarta, surface(), kLeftCarta,
                              kTopCarta, RasterOp::SrcCopy);
  const std::vector<FotogrammaCarta> sequenza = RotazioneCarta();
  std::int64_t fine = screen().host().NowMicros();
  for (std::size_t n = 0; n < sequenza.size(); ++n) {
    // Also where the card grows: in true perspective its near edge is the taller one, and the
    // corner of a narrower frame would stick out behind the next.
    Wipe();
    Show(sequenza[n]);
    screen().Flush();
    const std::int64_t ora = screen().host().NowMicros();
    fine = std::max(fine + kMicrosecondiPerFotogramma, ora + kMicrosecondiAlmeno);
    if (n + 1 < sequenza.size()) Prepara(sequenza[n + 1]);
    screen().WaitUntil(fine);
  }
  mod_Girovia::RitornoProva = Vero;
  Unload();
}

// A picture is decoded when it is about to be shown for the first time; what is kept until the form
// closes is its frame alone.
void FormRotazioneCarta::Prepara(const FotogrammaCarta& f) {
  const auto prepara = [this, &f](platform::PictureBox& riquadro, const char* serie) {
    const std::string nome = std::string("FormRotazioneCarta.") + serie + std::to_string(f.indice);
    if (!pronti_.insert(nome).second) return;
    const auto foto = a_.immagini.DiSchermata(nome);
    riquadro.surface() = foto.picture->Fit(foto.width, foto.height, screen().scale(),
                                           platform::colors::kWhite, true);
  };
  prepara(Nero(f.indice), "Nero");
  if (f.retro) {
    prepara(Retro(f.indice), "Retro");
  } else {
    prepara(Avanti(f.indice), "Avanti");
  }
}

void FormRotazioneCarta::Show(const FotogrammaCarta& f) {
  Prepara(f);
  auto& faccia = f.retro ? Retro : Avanti;
  surface().BitBlt(f.left, kTopCarta, f.larghezza, kAltezzaCarta, Nero(f.indice).surface(), 0, 0,
                   RasterOp::MergePaint);
  surface().BitBlt(f.left, kTopCarta, f.larghezza, kAltezzaCarta, faccia(f.indice).surface(), 0, 0,
                   RasterOp::SrcAnd);
  Invalidate({double(f.left), double(kTopCarta), double(f.larghezza), double(kAltezzaCarta)});
}

void FormRotazioneCarta::Wipe() {
  surface().BitBlt(kLeftCarta, kTopCarta, kLarghezzaCarta, kAltezzaCarta, PicBGround.surface(), 0,
                   0, RasterOp::SrcCopy);
  Invalidate(
      {double(kLeftCarta), double(kTopCarta), double(kLarghezzaCarta), double(kAltezzaCarta)});
}

}  // namespace girovia
