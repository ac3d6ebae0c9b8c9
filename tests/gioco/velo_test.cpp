// What makes a form look like a sheet over the board.
#include <gtest/gtest.h>

#include "comune/mod_FormTrasparente.h"
#include "comune/mod_Translucent.h"
#include "platform/forms/screen.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {
namespace {

using platform::Form;

struct FormDiProva : Form {
  FormDiProva(platform::Screen& su, int larghezza, platform::Color fondo)
      : Form(su, "prova", larghezza, 400, fondo) {
    Row(bottone, "bottone", {100, 100, 40, 40}, {.back = 0x00FFFF});
  }
  platform::CommandButton bottone;
};

TEST(Velo, KeepsOnlyTheBitsOfItsColour) {
  platform::HeadlessHost host({800, 600});
  platform::Screen screen(host);
  FormDiProva form(screen, 600, 0x806040);
  form.Show();
  Traslucido(form, 0xFF0000);
  EXPECT_EQ(form.surface().PixelAt(10, 10), 0x800000u);
  EXPECT_EQ(form.surface().PixelAt(120, 120), 0u) << "the button is in the picture";
}

TEST(Velo, ACaptureTakesWhatLiesUnderTheForm) {
  platform::HeadlessHost host({800, 600});
  platform::Screen screen(host);
  FormDiProva sotto(screen, 600, 0x806040), sopra(screen, 400, 0xFFFFFF);
  sotto.Show();
  screen.Flush();
  sopra.Show();
  CatturaSchermo(sopra);
  // The upper form stands 100 pixels further right, over a part of the lower one.
  EXPECT_EQ(sopra.surface().PixelAt(20, 120), 0x00FFFFu);
  EXPECT_EQ(sopra.surface().PixelAt(300, 300), 0x806040u);
}

}  // namespace
}  // namespace girovia
