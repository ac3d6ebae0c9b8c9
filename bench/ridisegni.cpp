// Explicit repaints of one purse label per second, through the desktop window.
#include <chrono>
#include <cstdio>
#include <string>

#include "gioco.h"
#include "platform/hosts/desktop/sdl_host.h"

namespace {

class Misura : public platform::Form {
 public:
  explicit Misura(platform::Screen& onScreen) : Form(onScreen, "misura", 800, 600, 0x804020) {
    Row(label, "label", {216, 544, 101, 35},
        {.font = girovia::Verdana(21.75),
         .fore = 0x00FFFF,
         .align = platform::Align::Right,
         .autoSize = true,
         .maxWidth = 215});
    surface().Line(0, 0, 800, 600, {6, 0x0000FF});
  }
  platform::Label label;
};

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = argc > 1 ? argv[1] : ".";
  platform::SetFontFolder(folder + "/font");
  std::string why;
  const auto host = platform::OpenDesktop({.title = "bench", .iconPath = ""}, why);
  if (!host) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }
  platform::Screen screen(*host);
  Misura form(screen);
  form.Show();
  screen.Wait(300);
  const auto start = std::chrono::steady_clock::now();
  constexpr int kRepaints = 5000;
  for (int i = 0; i < kRepaints; ++i) {
    form.label.SetCaption(girovia::TestoEuro(girovia::Euro::Centesimi(1000 + i)));
    form.label.Refresh();
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf("scale %d, window %dx%d\nlabel-repaints-per-second %.0f\n", screen.scale(),
              host->WindowSize().width, host->WindowSize().height, kRepaints / seconds.count());
}
