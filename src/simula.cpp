// Plays whole games without a screen and sums them up.
#include <cstdio>
#include <exception>
#include <span>
#include <string>

#include "simulazione/grafici.h"
#include "simulazione/partita.h"
#include "simulazione/relazione.h"

namespace sim = girovia::simulazione;

int main(int argc, char** argv) {
  std::string errore;
  const auto argomenti = sim::LeggiArgomenti(std::span(argv, argc).subspan(argc > 0), errore);
  if (!argomenti) {
    std::fprintf(stderr, "simula: %s (--aiuto dice come si usa)\n", errore.c_str());
    return 2;
  }
  if (argomenti->aiuto) {
    std::fputs(std::string(sim::kUso).c_str(), stdout);
    return 0;
  }
  try {
    const sim::Conti conti = sim::GiocaInsieme(*argomenti);
    const std::string testo = argomenti->json ? sim::RelazioneJson(*argomenti, conti)
                                              : sim::RelazioneTesto(*argomenti, conti);
    std::fputs(testo.c_str(), stdout);
    if (!argomenti->grafici.empty()) sim::ScriviGrafici(conti, argomenti->grafici);
    if (!conti.InRegola()) {
      std::fputs("simula: una partita ha violato le regole\n", stderr);
      return 1;
    }
  } catch (const std::exception& e) {
    std::fprintf(stderr, "simula: %s\n", e.what());
    return 1;
  }
  return 0;
}
