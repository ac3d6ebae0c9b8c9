// Each picture that is copied through a mask has one outline with it, at every scale.
#include <gtest/gtest.h>

#include "content/catalogo.h"
#include "platform/drawing/picture.h"

namespace girovia {
namespace {

using platform::Picture;
using platform::Surface;

std::shared_ptr<const Picture> Carica(const VoceCatalogo& voce) {
  int errore = 0;
  return Picture::Load(std::string(PROGRAMMA) + "/" + PercorsoFile(voce), errore);
}

TEST(Sagome, SpritesAndMasksKeepOneOutline) {
  for (const VoceCatalogo& voce : Catalogo()) {
    if (voce.ruolo != Ruolo::Sprite) continue;
    SCOPED_TRACE(PercorsoFile(voce));
    const auto sprite = Carica(voce), maschera = Carica(*Socio(voce));
    ASSERT_TRUE(sprite && maschera);
    const int w = voce.larghezza, h = voce.altezza;
    // At four times its size a card has nothing that a smaller picture has not.
    for (const int k : {1, 2, 3, 4}) {
      if (w * h * k > 400'000 && k != 1) continue;
      const Surface nero = maschera->Fit(w, h, k, 0xFFFFFF, true);
      const Surface bianco = sprite->Fit(w, h, k, 0xFFFFFF, true);
      const Surface altro = sprite->Fit(w, h, k, 0x123456, true);
      int sbagliati = 0, dentro = 0;
      for (int y = 0; y < nero.deviceHeight(); ++y)
        for (int x = 0; x < nero.deviceWidth(); ++x) {
          const bool fuori = bianco.row(y)[x] == 0xFFFFFF && altro.row(y)[x] == 0x563412;
          sbagliati += nero.row(y)[x] != (fuori ? 0xFFFFFFu : 0u);
          dentro += !fuori;
        }
      EXPECT_EQ(sbagliati, 0) << "scale " << k;
      EXPECT_GT(dentro, w * h * k * k / 10) << "scale " << k;
    }
  }
}

}  // namespace
}  // namespace girovia
