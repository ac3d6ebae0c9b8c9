// What the drawings became: every picture that the game asks for by number or name.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "content/catalogo.h"
#include "leggi.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

dipingi::Image Leggi(const std::string& path) {
  int width = 0, height = 0;
  stbi_uc* pixels = stbi_load(path.c_str(), &width, &height, nullptr, 4);
  if (pixels == nullptr) return {};
  dipingi::Image image(width, height);
  std::copy(pixels, pixels + image.rgba.size(), image.rgba.begin());
  stbi_image_free(pixels);
  return image;
}

namespace {

using girovia::Catalogo;
using girovia::PercorsoFile;
using girovia::Ruolo;
using girovia::Tipo;
using girovia::VoceCatalogo;

dipingi::Image Apri(const VoceCatalogo& voce) { return Leggi(RADICE + PercorsoFile(voce)); }

TEST(Risorse, EveryPictureIsThereAtTwiceItsSize) {
  for (const VoceCatalogo& voce : Catalogo()) {
    if (voce.tipo == Tipo::Jpeg) continue;
    const dipingi::Image image = Apri(voce);
    EXPECT_EQ(image.width, 2 * voce.larghezza) << PercorsoFile(voce);
    EXPECT_EQ(image.height, 2 * voce.altezza) << PercorsoFile(voce);
  }
}

TEST(Risorse, SpritesFitTheirMasks) {
  int sprites = 0;
  for (const VoceCatalogo& voce : Catalogo()) {
    if (voce.ruolo != Ruolo::Sprite) continue;
    ++sprites;
    const dipingi::Image picture = Apri(voce), mask = Apri(*Socio(voce));
    ASSERT_EQ(picture.rgba.size(), mask.rgba.size()) << PercorsoFile(voce);
    std::size_t inside = 0, wrong = 0;
    for (std::size_t i = 0; i < mask.rgba.size(); i += 4) {
      const std::uint8_t want = picture.rgba[i + 3] == 255 ? 0 : 255;
      inside += want == 0;
      wrong += picture.rgba[i + 3] != 255 && picture.rgba[i + 3] != 0;
      for (int channel = 0; channel < 3; ++channel) wrong += mask.rgba[i + channel] != want;
    }
    EXPECT_EQ(wrong, 0u) << PercorsoFile(voce);
    EXPECT_GT(inside, mask.rgba.size() / 4 / 10) << PercorsoFile(voce);
  }
  EXPECT_EQ(sprites, 48);
}

TEST(Risorse, ADieLyingFlatIsASquare) {
  for (int frame = 0; frame <= 12; frame += 2) {
    const dipingi::Image mask =
        Apri(*girovia::TrovaSchermata("Dadi.DadoNero" + std::to_string(frame)));
    int wrong = 0;
    for (int y = 0; y < mask.height; ++y)
      for (int x = 0; x < mask.width; ++x)
        wrong += mask.at(x, y)[0] != (y >= 2 * 11 && y <= 2 * 108 + 1 ? 0 : 255);
    EXPECT_EQ(wrong, 0) << frame;
  }
}

// The no button is the yes button turned over.
TEST(Risorse, NoMirrorsYes) {
  const dipingi::Image yes = Apri(*girovia::TrovaSchermata("FormMessaggi.cmdRisposta1"));
  const dipingi::Image no = Apri(*girovia::TrovaSchermata("FormMessaggi.cmdRisposta2"));
  ASSERT_EQ(yes.rgba.size(), no.rgba.size());
  int different = 0;
  for (int y = 0; y < yes.height; ++y)
    for (int x = 0; x < yes.width; ++x)
      different += std::abs(yes.at(x, y)[1] - no.at(x, yes.height - 1 - y)[1]) > 24;
  EXPECT_LT(different, yes.width * yes.height / 200);
}

}  // namespace
