#include "content/catalogo.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace girovia {
namespace {

TEST(Catalogo, EveryAssetHasItsSizeItsFileAndItsPartner) {
  std::map<Tipo, int> quante;
  std::set<std::string> file;
  for (const VoceCatalogo& voce : Catalogo()) {
    const std::string percorso = PercorsoFile(voce);
    ++quante[voce.tipo];
    EXPECT_TRUE(file.insert(percorso).second) << percorso;
    EXPECT_TRUE(voce.larghezza > 0 && voce.altezza > 0) << percorso;
    EXPECT_EQ(voce.nome.empty(), voce.tipo != Tipo::Schermata) << percorso;
    EXPECT_EQ(
        voce.tipo == Tipo::Schermata ? TrovaSchermata(voce.nome) : TrovaVoce(voce.tipo, voce.id),
        &voce)
        << percorso;
    const VoceCatalogo* socio = Socio(voce);
    if (voce.ruolo == Ruolo::Plain) {
      EXPECT_EQ(socio, nullptr) << percorso;
      continue;
    }
    ASSERT_NE(socio, nullptr) << percorso;
    EXPECT_EQ(socio->ruolo, voce.ruolo == Ruolo::Mask ? Ruolo::Sprite : Ruolo::Mask) << percorso;
    EXPECT_EQ(socio->larghezza, voce.larghezza) << percorso;
    EXPECT_EQ(socio->altezza, voce.altezza) << percorso;
  }
  EXPECT_EQ(quante, (std::map<Tipo, int>{{Tipo::Bitmap, 72},
                                         {Tipo::Jpeg, 101},
                                         {Tipo::Cursor, 2},
                                         {Tipo::Icon, 1},
                                         {Tipo::Schermata, 69}}));
}

TEST(Catalogo, NumbersBelongToTheirKind) {
  EXPECT_EQ(PercorsoSuono("inno"), "Suoni/inno.wav");
  EXPECT_EQ(TrovaVoce(Tipo::Bitmap, 400), nullptr);
  EXPECT_EQ(TrovaVoce(Tipo::Jpeg, 101), nullptr);
  EXPECT_EQ(TrovaSchermata("splash"), nullptr);
  EXPECT_EQ(TrovaVoce(Tipo::Schermata, 0), nullptr);

  EXPECT_EQ(TrovaVoce(Tipo::Jpeg, 467)->larghezza, 479);
  EXPECT_EQ(TrovaVoce(Tipo::Jpeg, 472)->altezza, 356);
  EXPECT_EQ(TrovaVoce(Tipo::Cursor, 102)->caldoX, 16);
  EXPECT_EQ(TrovaVoce(Tipo::Cursor, 102)->caldoY, 14);
  EXPECT_EQ(TrovaSchermata("FormRotazioneCarta.Retro3")->larghezza, 236);
  EXPECT_EQ(Socio(*TrovaSchermata("FormRotazioneCarta.Retro3"))->nome, "FormRotazioneCarta.Nero3");
}

}  // namespace
}  // namespace girovia
