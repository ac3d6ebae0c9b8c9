// The shipped game in its real window, with the draws told beforehand, so that a script at the
// mouse and the keys knows what will come.
//
//   guidata FOLDER SQUARE U...
//
// Player 1 is put on SQUARE at his first throw; from there on U... are the draws in turn, and 0
// when they have run out. At its end the program prints what the players have chosen.
#include <cstdio>
#include <cstdlib>
#include <deque>

#include "core/mod_Girovia.h"
#include "core/stato.h"
#include "gioco.h"
#include "platform/hosts/desktop/sdl_host.h"

namespace {

class CasoDetto : public girovia::Caso {
 public:
  CasoDetto(int casella, std::deque<double> numeri)
      : casella_(casella), numeri_(std::move(numeri)) {}

  double Rnd() override {
    // The start screen draws as often as time passes there.
    if (girovia::mod_Girovia::Giocatore == 0 || numeri_.empty()) return 0;
    if (casella_ > 0) girovia::mod_Girovia::Pos[1] = casella_;
    casella_ = 0;
    const double u = numeri_.front();
    numeri_.pop_front();
    return u;
  }

 private:
  int casella_;
  std::deque<double> numeri_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  std::deque<double> numeri;
  for (int i = 3; i < argc; ++i) numeri.push_back(std::atof(argv[i]));
  CasoDetto caso(std::atoi(argv[2]), std::move(numeri));
  std::string perche;
  const auto host = platform::OpenDesktop({.title = "Girovia Grandetappa", .iconPath = ""}, perche);
  if (!host) return 3;
  girovia::Gioco gioco(*host, {.cartella = argv[1], .scala = 0, .caso = &caso});
  const int codice = gioco.Gioca();
  using namespace girovia::mod_Girovia;
  std::printf("%s %s %d, %s %s\n", Nome[1].c_str(), Colore[1].c_str(), Ritratto[1], Nome[2].c_str(),
              girovia::TestoEuro(Gruzzolo[1]).c_str());
  return codice;
}
