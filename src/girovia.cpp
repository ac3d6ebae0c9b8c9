// The program: the game in its window, or a game that plays itself, which it does where there is no
// display or where it is told to.
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "dimostrazione/dimostrazione.h"
#include "gioco.h"
#include "platform/hosts/desktop/sdl_host.h"

namespace {

// Pictures, sounds and fonts lie beside the program, wherever it was started from.
std::string CartellaDelProgramma(const char* argv0) {
  std::error_code error;
  auto path = std::filesystem::canonical("/proc/self/exe", error);
  if (error) path = std::filesystem::absolute(argv0, error);
  return path.parent_path().string();
}

}  // namespace

int main(int argc, char** argv) {
  const std::string cartella = CartellaDelProgramma(argv[0]);
  std::string perche;
  const auto host = platform::OpenDesktop(
      {.title = "Girovia Grandetappa", .iconPath = cartella + "/risorse/icona/1.png"}, perche);
  if (!host) {
    std::printf("Non c'è uno schermo su cui giocare (%s): la partita si gioca da sola.\n",
                perche.c_str());
    return girovia::Dimostrazione(cartella, "galleria");
  }
  if (argc > 1 && argv[1] == std::string_view("--dimostrazione")) {
    using girovia::FineDimostrazione;
    const auto fine = girovia::Dimostra(*host, cartella);
    // Whoever has touched it wants to play.
    if (fine != FineDimostrazione::Toccata) return fine == FineDimostrazione::Guasta ? 1 : 0;
  }
  girovia::Gioco gioco(*host, {.cartella = cartella});
  return gioco.Gioca();
}
