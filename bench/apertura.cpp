// For every form, or for one, the time from its opening to its first complete picture on a display
// of 1920 by 1080, or of the size told; what an animation costs; and what a form leaves behind.
//
//   apertura CARTELLA [LARGHEZZA ALTEZZA [FORM]]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"
#include "gioco.h"
#include "misure.h"
#include "platform/hosts/headless/headless_host.h"

namespace {

using namespace girovia;
using Clock = std::chrono::steady_clock;

constexpr int kAperture = 5;

double Millisecondi(Clock::duration d) {
  return std::chrono::duration<double, std::milli>(d).count();
}

double Cpu() { return ConsumoFinora().cpuSeconds * 1000; }

// The fields as a turn leaves them for any screen; n makes each opening another one.
void Prepara(int n) {
  using namespace mod_Girovia;
  using namespace mod_Messaggi;
  RitornoProva = Vero;  // no turn follows
  Giocatore = 1 + n % 2;
  Pos[1] = Pos[2] = CittaCliccata = 60 + n;
  Dado = 8;
  IndiceCarte2 = IndiceProvaCitta = 60 + n;
  IndiceCarte4 = IndiceProvaCapitali = IndiceImprevisto = IndiceOrdinamento = n;
  ColoreCornice = Colore[Giocatore];
  Messaggio = "Se sbagli restituisci 8 euro e torni a Dniepropetrovsk";
  servizi().schermi->PreparaSovrapposizioni("Pago 5 euro e vado a Brema",
                                            "Non pago niente e torno a Brema");
}

// Milliseconds on the clock, and of the processor where it says so: the second is steadier.
struct Apertura {
  double primo = 0, primoCpu = 0;        // to the first picture
  double piuLungo = 0, piuLungoCpu = 0;  // between two pictures
  double totaleCpu = 0;                  // until it had closed
  int quadri = 0;
};

Apertura Apri(platform::HeadlessHost& host, Gioco& gioco, Schermata schermata) {
  Apertura a;
  std::unique_ptr<platform::Form> form;
  const auto inizio = Clock::now();
  const double inizioCpu = Cpu();
  auto ultimo = inizio;
  double ultimoCpu = inizioCpu;
  host.OnShow = [&](const auto&) {
    if (!form || gioco.screen().top() != form.get()) return;
    const auto ora = Clock::now();
    const double oraCpu = Cpu();
    const double passati = Millisecondi(ora - ultimo), passatiCpu = oraCpu - ultimoCpu;
    ultimo = ora;
    ultimoCpu = oraCpu;
    if (a.quadri++ == 0) {
      a.primo = passati;
      a.primoCpu = passatiCpu;
    } else {
      a.piuLungo = std::max(a.piuLungo, passati);
      a.piuLungoCpu = std::max(a.piuLungoCpu, passatiCpu);
    }
  };
  host.OnIdle = [&] {
    mod_Girovia::RitornoProva = Vero;
    form->Unload();
    host.Queue({platform::EventKind::MouseLeave, 0, 0, platform::MouseButton::Left});
  };
  form = gioco.Crea(schermata);
  form->ShowModal();
  a.totaleCpu = Cpu() - inizioCpu;
  host.OnShow = nullptr;
  host.OnIdle = nullptr;
  return a;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string cartella = argc > 1 ? argv[1] : ".";
  const platform::PixelSize finestra{argc > 3 ? std::atoi(argv[2]) : 1920,
                                     argc > 3 ? std::atoi(argv[3]) : 1080};
  platform::HeadlessHost host(finestra);
  Gioco gioco(host, {.cartella = cartella});
  gioco.Apri();
  gioco.SaltaInizio();
  gioco.screen().Wait(1);
  std::printf("%dx%d, scale %d\n", finestra.width, finestra.height, gioco.screen().scale());
  for (int s = 0; s < kNumeroSchermate; ++s) {
    std::vector<Apertura> aperture;
    std::string nome;
    const double prima = PssMegabytes();
    for (int n = 0; n < kAperture; ++n) {
      Prepara(n);
      nome = gioco.Crea(Schermata(s))->name();
      if (argc > 4 && nome != argv[4]) break;
      aperture.push_back(Apri(host, gioco, Schermata(s)));
    }
    if (aperture.empty()) continue;
    std::sort(aperture.begin(), aperture.end(),
              [](const Apertura& a, const Apertura& b) { return a.primo < b.primo; });
    const Apertura& media = aperture[kAperture / 2];
    std::printf("%-20s opening-ms %5.1f (cpu %5.1f, slowest %5.1f)", nome.c_str(), media.primo,
                media.primoCpu, aperture.back().primo);
    if (media.quadri > 1)
      std::printf(", %d pictures, longest %.1f (cpu %.1f), all cpu %.0f", media.quadri,
                  media.piuLungo, media.piuLungoCpu, media.totaleCpu);
    std::printf(", keeps %.1f MB\n", PssMegabytes() - prima);
  }
  return 0;
}
