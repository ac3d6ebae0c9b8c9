#include "effects/form_rotazione_carta.h"

#include "comune/mod_FormTrasparente.h"
#include "core/mod_Girovia.h"

namespace girovia {

using platform::RasterOp;

namespace {

constexpr int kStadi = 8;
constexpr int kPassoLarghezza = 59;
// Pause and repaint of a frame together: as long as a frame of a display, 1.8 seconds in all.
constexpr std::int64_t kMicrosecondiPerFotogramma = 16'667;

}  // namespace

FormRotazioneCarta::FormRotazioneCarta(Ambiente& ambiente)
    : Form(ambiente.screen, "FormRotazioneCarta", 800, 600, 0xFFFFFF), a_(ambiente) {
  const auto riga = [this](platform::ControlArray<platform::PictureBox>& serie, const char* nome,
                           int i) {
    Row(serie.Load(i), Indexed(nome, i),
        {0, 0, double(kPassoLarghezza * (i + 1)), double(kAltezzaCarta)},
        {.visible = false,
         .sprite = true,
         .picture = a_.immagini.DiSchermata(std::string("FormRotazioneCarta.") + nome +
                                            std::to_string(i))});
  };
  for (int i = 0; i < kStadi; ++i) {
    riga(Nero, "Nero", i);
    riga(Retro, "Retro", i);
    riga(Avanti, "Avanti", i);
  }
  Row(PicBGround, "PicBGround", {0, 0, kLarghezzaCarta, kAltezzaCarta}, {.visible = false});
}

void FormRotazioneCarta::Form_Activate() {
  servizi().comandi->NascondiUscita();
  servizi().tabellone->Ridisegna();
  CatturaSchermo(*this);
  SuonoAsync("103");
  PicBGround.surface().BitBlt(0, 0, kLarghezzaCarta, kAltezzaCarta, surface(), kLeftCarta,
                              kTopCarta, RasterOp::SrcCopy);
  std::int64_t fine = screen().host().NowMicros();
  for (const FotogrammaCarta& fotogramma : RotazioneCarta()) {
    // Also where the card grows: in true perspective its near edge is the taller one, and the
    // corner of a narrower frame would stick out behind the next.
    Wipe();
    Show(fotogramma);
    screen().WaitUntil(fine += kMicrosecondiPerFotogramma);
  }
  mod_Girovia::RitornoProva = Vero;
  Unload();
}

// The frame is shown by the wait that follows it, wipe and card together.
void FormRotazioneCarta::Show(const FotogrammaCarta& f) {
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
