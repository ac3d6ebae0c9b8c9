// Turns per second of the bare rules: no screen, no waits, trivial answers.
#include <chrono>
#include <cstdint>
#include <cstdio>

#include "core/eventi.h"
#include "core/imprevisti.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace {

using namespace girovia;

class Sorte : public Caso {
 public:
  double Rnd() override {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return double(state_ >> 11) * 0x1.0p-53;
  }

 private:
  std::uint64_t state_ = 88172645463325252U;
};

// Every screen answers at once: trials are passed two times out of three, except the last one,
// which is always failed, so that the game never ends.
class Risposte : public Schermi {
 public:
  void MostraModale(Schermata schermata) override {
    using namespace mod_Messaggi;
    using namespace mod_Girovia;
    switch (schermata) {
      case Schermata::FormImprevisti:
        CaricaImprevisto();
        break;
      case Schermata::FormCarte2Items:
        RispostaEsatta = 1;
        [[fallthrough]];
      default:
        Risposta = ArrivoRaggiunto ? 2 : (++conto_ % 3 == 0 ? 2 : 1);
        Premio = Euro::Interi(5);
    }
  }
  void MostraNonModale(Schermata) override { dadi = true; }
  bool dadi = false;

 private:
  unsigned conto_ = 0;
};

}  // namespace

int main() {
  Sorte sorte;
  Risposte risposte;
  AzzeraStato();
  for (int p : {1, 2}) {
    mod_Girovia::Nome[p] = p == 1 ? "Primo" : "Secondo";
    mod_Girovia::Colore[p] = p == 1 ? "65280" : "65535";
  }
  NuovaPartita();
  servizi().caso = &sorte;
  servizi().schermi = &risposte;

  constexpr int kTurni = 3'000'000;
  const auto start = std::chrono::steady_clock::now();
  int chi = 1;
  for (int i = 0; i < kTurni; ++i) {
    eventi::cmdRitratto_Click(chi);
    mod_Girovia::Dado = Estrai(6) + Estrai(6) + 2;
    eventi::Form_Activate();
    chi = mod_Girovia::Giocatore;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf("bare-turns-per-second %.0f\n", kTurni / seconds.count());
}
