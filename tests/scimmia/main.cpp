// scimmia [--seme N] [--eventi N] [--partite N] [--finestra WxH] [--scala K] [--giudizio PERCENT]
//
// Plays at random until it has done so many things or played so many games, each with the seed
// after the one before, and stops at the first that goes wrong. Unless it is given the folder of a
// whole game with --cartella, the large pictures are replaced by small ones, for speed.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include "../gioco/cartella.h"

#include "scimmia.h"

namespace {

long MemoriaKb() {
  long pagine = 0, residenti = 0;
  std::ifstream("/proc/self/statm") >> pagine >> residenti;
  return residenti * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace

int main(int argc, char** argv) {
  girovia::Cartella cartella;
  cartella.Alleggerisci();
  girovia::Scimmia::Opzioni opzioni{.cartella = cartella.percorso()};
  long eventi = 100'000, partite = 1'000'000'000;
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string_view nome = argv[i];
    const char* valore = argv[i + 1];
    if (nome == "--seme")
      opzioni.seme = unsigned(std::atol(valore));
    else if (nome == "--eventi")
      eventi = std::atol(valore);
    else if (nome == "--partite")
      partite = std::atol(valore);
    else if (nome == "--scala")
      opzioni.scala = std::atoi(valore);
    else if (nome == "--cartella")
      opzioni.cartella = valore;
    else if (nome == "--giudizio")
      opzioni.giudizio = std::atoi(valore);
    else if (nome != "--finestra" ||
             std::sscanf(valore, "%dx%d", &opzioni.finestra.width, &opzioni.finestra.height) != 2)
      return 2;
  }
  long fatti = 0, giocate = 0, finite = 0, memoria = 0;
  for (; fatti < eventi && giocate < partite; ++opzioni.seme, ++giocate) {
    // Printed beforehand, for a game that never comes back.
    std::printf("seme %u: ", opzioni.seme);
    std::fflush(stdout);
    opzioni.eventi = int(std::min(20'000L, eventi));
    std::string guasto;
    {
      girovia::Scimmia scimmia(opzioni);
      guasto = scimmia.Gioca();
      fatti += scimmia.eventi();
      finite += scimmia.finita();
      std::printf("%d eventi%s\n", scimmia.eventi(), scimmia.finita() ? ", fino ai premi" : "");
    }
    if (!guasto.empty()) {
      std::printf(
          "%s\nsi ripete con: --seme %u --eventi %d --partite 1 --finestra %dx%d --scala %d "
          "--giudizio %d\n",
          guasto.c_str(), opzioni.seme, opzioni.eventi, opzioni.finestra.width,
          opzioni.finestra.height, opzioni.scala, opzioni.giudizio);
      return 1;
    }
    if (giocate == 0) memoria = MemoriaKb();
  }
  std::printf(
      "%ld partite, %ld fino ai premi, %ld eventi; memoria %ld KB dopo la prima, %ld alla "
      "fine\n",
      giocate, finite, fatti, memoria, MemoriaKb());
  return 0;
}
