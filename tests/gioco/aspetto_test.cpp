// What an eye sees at once and a table does not tell.
#include "banco.h"
#include "core/mod_Messaggi.h"

namespace girovia {
namespace {

using platform::Rect;

constexpr platform::Color kBlu = 0xFF0000;
constexpr platform::Color kBluScuro = 0x800000;

TEST(Aspetto, ANoteKeepsItsCornersUnderTheCoins) {
  Banco banco;
  banco.Passi({[&] {
    mod_Girovia::Giocatore = 1;
    for (const int dado : {6, 7, 8, 9, 11, 12}) {
      mod_Girovia::Dado = dado;
      banco.Mostra(
          Schermata::FormBanconote,
          {{100, [&] {
              const Rect f = banco.davanti().PlaneRect(), r = banco.Trova("PicBanconota1").place();
              for (const double y : {r.top + 3, r.bottom() - 4})
                EXPECT_NE(banco.host.planeShown().PixelAt(f.left + r.right() - 2, f.top + y), kBlu)
                    << dado;
            }}});
    }
  }});
}

// The middle of what has been written in this colour.
double Mezzo(const platform::Surface& visto, const Rect& r, platform::Color colore) {
  double prima = r.right(), ultima = r.left;
  for (double y = r.top; y < r.bottom(); ++y)
    for (double x = r.left; x < r.right(); ++x)
      if (visto.PixelAt(x, y) == colore) prima = std::min(prima, x), ultima = std::max(ultima, x);
  return (prima + ultima + 1) / 2;
}

TEST(Aspetto, TheFootOfTheBoard) {
  Banco banco;
  banco.Passi({[&] {
                 servizi().comandi->NascondiAiuto();
                 mod_Girovia::Nome[2] = "Zoe";
                 servizi().tabellone->RefreshPrBar();
               },
               [&] {
                 const auto& visto = banco.host.planeShown();
                 for (const double x : {516, 640, 700, 754})
                   EXPECT_EQ(visto.PixelAt(x, 549), kBluScuro) << x;
                 for (const double x : {515, 755}) EXPECT_NE(visto.PixelAt(x, 549), kBluScuro) << x;
                 for (const int p : {1, 2}) {
                   const std::string n = "(" + std::to_string(p) + ")";
                   const Rect ritratto = banco.Trova("PicGiocatore" + n).place();
                   platform::Control& parola = banco.Trova("LblClicca" + n);
                   parola.SetVisible(true);
                   banco.gioco.screen().Flush();
                   EXPECT_NEAR(Mezzo(visto, parola.place(), kBluScuro),
                               ritratto.left + ritratto.width / 2, 1)
                       << p;
                 }
               }});
}

}  // namespace
}  // namespace girovia
