#include "effects/rotazione_logica.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "content/catalogo.h"

namespace girovia {
namespace {

TEST(Rotazione, ThreeTurnsAndTheLastWithoutTheFlatFront) {
  const auto sequenza = RotazioneCarta();
  ASSERT_EQ(sequenza.size(), 107u);
  // Backs as capital letters, fronts as small ones, a wipe as a dot before the frame.
  std::string scritta;
  for (const FotogrammaCarta& f : sequenza) {
    if (f.pulisciPrima) scritta += '.';
    scritta += static_cast<char>((f.retro ? 'A' : 'a') + f.indice);
  }
  const std::string giro = "ABCDEFGH.G.F.E.D.C.B.Abcdefgh.g.f.e.d.c.b.a";
  EXPECT_EQ(scritta, giro + giro + giro + "BCDEFGH.G.F.E.D.C.B.Abcdefg");
}

TEST(Rotazione, FramesAreCentredOnTheScreen) {
  constexpr int kLeft[] = {370, 341, 312, 282, 252, 223, 194, 164};
  for (const FotogrammaCarta& f : RotazioneCarta()) {
    EXPECT_EQ(f.left, kLeft[f.indice]);
    const std::string nome = (f.retro ? "FormRotazioneCarta.Retro" : "FormRotazioneCarta.Avanti") +
                             std::to_string(f.indice);
    const VoceCatalogo* voce = TrovaSchermata(nome);
    ASSERT_NE(voce, nullptr);
    EXPECT_EQ(f.larghezza, voce->larghezza);
    EXPECT_EQ(kAltezzaCarta, voce->altezza);
  }
}

}  // namespace
}  // namespace girovia
