#include "effects/form_dadi.h"

#include "comune/mod_FormTrasparente.h"
#include "core/mod_Girovia.h"

namespace girovia {

using platform::RasterOp;

namespace {

constexpr int kFotogrammi = 13;
constexpr int kLato = 98;
constexpr int kPrimaRiga = 11;  // of the face in an even frame

}  // namespace

Dadi::Dadi(Ambiente& ambiente) : Form(ambiente.screen, "Dadi", 800, 600, 0x808080), a_(ambiente) {
  for (int f = 0; f < kFotogrammi; ++f) {
    Row(DadoNero.Load(f), Indexed("DadoNero", f), {0, 0, kLarghezzaDado, kAltezzaDado},
        {.visible = false,
         .sprite = true,
         .picture = a_.immagini.DiSchermata("Dadi.DadoNero" + std::to_string(f))});
    Row(DadoBianco.Load(f), Indexed("DadoBianco", f), {0, 0, kLarghezzaDado, kAltezzaDado},
        {.visible = false,
         .sprite = true,
         .picture = a_.immagini.DiSchermata("Dadi.DadoBianco" + std::to_string(f))});
  }
  Row(PicBGround1, "PicBGround1", {0, 0, kLarghezzaDado, kAltezzaDado},
      {.back = 0x808080, .visible = false});
  Row(PicBGround2, "PicBGround2", {0, 0, kLarghezzaDado, kAltezzaDado},
      {.back = 0x808080, .visible = false});
  SetPointer({.kind = platform::Pointer::Kind::Hourglass, .picture = nullptr});
}

void Dadi::Form_Activate() {
  CatturaSchermo(*this);
  for (const PassoDadi& passo : PercorsoIniziale()) Esegui(passo);
  const int d1 = TiraDado(*servizi().caso);
  const int d2 = TiraDado(*servizi().caso);
  for (const PassoDadi& passo : PercorsoFinale(d1, d2)) Esegui(passo);
  Pausa05();
  SuonoAsync("230");
  PosaSulTabellone(1, d1);
  PosaSulTabellone(2, d2);
  mod_Girovia::Dado = d1 + d2;
  Unload();
}

void Dadi::Esegui(const PassoDadi& passo) {
  if (!passo.suono.empty()) SuonoAsync(passo.suono);
  const auto perOgniDado = [&passo](auto&& azione) {
    for (int k : {1, 2})
      if (const auto& mossa = passo.dadi[std::size_t(k - 1)]) azione(k, *mossa);
  };
  perOgniDado([this](int k, const MossaDado& m) { Restore(k, m.vecchiaX, m.vecchiaY); });
  perOgniDado([this](int k, const MossaDado& m) { Save(k, m.x, m.y); });
  perOgniDado([this](int, const MossaDado& m) { Draw(m.fotogramma, m.x, m.y); });
  Pausa01();
}

// The three repaints are left to the pause: nobody could see a die between its wipe and its next
// frame, except as a flicker.
void Dadi::Restore(int k, double x, double y) {
  surface().BitBlt(x, y, kLarghezzaDado, kAltezzaDado,
                   (k == 1 ? PicBGround1 : PicBGround2).surface(), 0, 0, RasterOp::SrcCopy);
  Invalidate({x, y, kLarghezzaDado, kAltezzaDado});
}

void Dadi::Save(int k, double x, double y) {
  (k == 1 ? PicBGround1 : PicBGround2)
      .surface()
      .BitBlt(0, 0, kLarghezzaDado, kAltezzaDado, surface(), x, y, RasterOp::SrcCopy);
}

void Dadi::Draw(int f, double x, double y) {
  surface().BitBlt(x, y, kLarghezzaDado, kAltezzaDado, DadoNero(f).surface(), 0, 0,
                   RasterOp::MergePaint);
  surface().BitBlt(x, y, kLarghezzaDado, kAltezzaDado, DadoBianco(f).surface(), 0, 0,
                   RasterOp::SrcAnd);
  Invalidate({x, y, kLarghezzaDado, kAltezzaDado});
}

void Dadi::PosaSulTabellone(int n, int valore) {
  platform::PictureBox& dado = a_.dadi->PicDado(n);
  dado.surface().StretchBlt({0, 0, 64, 64}, DadoBianco(FotogrammaDelValore(valore)).surface(),
                            {0, kPrimaRiga, kLato, kLato});
  dado.Refresh();
  a_.dadi->MostraDadi(n, true);
}

}  // namespace girovia
