// The two tile trials in the desktop window: from the call that opens one to its first complete
// picture, and how many positions of a carried tile are shown a second.
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string>

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "gioco.h"
#include "platform/hosts/desktop/sdl_host.h"
#include "platform/hosts/forwarding_host.h"

namespace {

using namespace girovia;
using Clock = std::chrono::steady_clock;
using platform::Event;
using platform::EventKind;

constexpr int kPosizioni = 1000;
constexpr std::pair<Schermata, const char*> kProve[] = {
    {Schermata::FormProvaOrdinamento, "ordering"}, {Schermata::FormProvaPuzzle, "puzzle"}};

double Secondi(Clock::time_point da) {
  return std::chrono::duration<double>(Clock::now() - da).count();
}

// The hand at the mouse stands between the game and its window.
class Mano : public platform::ForwardingHost {
 public:
  using ForwardingHost::ForwardingHost;

  std::int64_t FrameMicros() override { return 0; }  // as fast as it goes
  void PlaySound(const std::shared_ptr<const platform::Wave>&) override {}

  void Show(const platform::Surface& plane,
            const std::vector<platform::DeviceRect>& changed) override {
    host_.Show(plane, changed);
    if (prova_ == kNessuna) return;
    if (gioco->screen().top() == gioco->tabellone()) return;  // clears itself as the trial opens
    if (mostrate_++ == 0)
      std::printf("%s-opening-ms %.1f\n", kProve[prova_].second, Secondi(da_) * 1e3);
  }

  bool WaitEvent(Event& event, std::int64_t deadline) override {
    if (!gioco->tabellone()) gioco->SaltaInizio();
    if (gioco->screen().top() == gioco->tabellone()) {
      if (host_.WaitEvent(event, std::min(deadline, NowMicros()))) return true;
      if (++prova_ == std::size(kProve)) {
        event.kind = EventKind::Quit;
        return true;
      }
      Apri();
      return false;
    }
    // One movement for each time that the game would sleep.
    if (deadline <= NowMicros()) return false;
    if (passo_ == 0) {
      event = {EventKind::MouseDown, Pixel(0).first, Pixel(0).second, platform::MouseButton::Left};
    } else if (passo_ <= kPosizioni) {
      if (passo_ == 1) {
        mostrate_ = 1;
        da_ = Clock::now();
      }
      event = {EventKind::MouseMove, Pixel(passo_).first, Pixel(passo_).second,
               platform::MouseButton::Left};
    } else {
      std::printf("%s-positions-per-second %.0f\n", kProve[prova_].second,
                  (mostrate_ - 1) / Secondi(da_));
      gioco->screen().top()->Unload();
      mod_Girovia::RitornoProva = Vero;
      return false;
    }
    ++passo_;
    return true;
  }

  Gioco* gioco = nullptr;

 private:
  void Apri() {
    mod_Girovia::Giocatore = 1;
    mod_Girovia::Pos[1] = 3;
    mod_Messaggi::ColoreCornice = mod_Girovia::Colore[1];
    mod_Messaggi::Messaggio = "Se non ci riesci restituisci 12 euro e torni a Dniepropetrovsk";
    mostrate_ = passo_ = 0;
    da_ = Clock::now();
    servizi().schermi->MostraModale(kProve[prova_].first);
  }

  // In the first cell, and from there on a long way round.
  std::pair<int, int> Pixel(int passo) const {
    const platform::Rect f = gioco->screen().top()->PlaneRect();
    const double a = passo * 0.02;
    const auto p =
        gioco->screen().ToWindow({f.left + 90 + 130 * (1 - std::cos(a)) + 40 * std::sin(a),
                                  f.top + 80 + 100 * (1 - std::cos(a * 1.3))});
    return {int(p.x), int(p.y)};
  }

  static constexpr auto kNessuna = std::size_t(-1);
  std::size_t prova_ = kNessuna;
  int mostrate_ = 0, passo_ = 0;
  Clock::time_point da_;
};

}  // namespace

int main(int argc, char** argv) {
  std::string why;
  const auto host = platform::OpenDesktop({.title = "bench", .iconPath = ""}, why);
  if (!host) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }
  Mano mano(*host);
  Gioco gioco(mano, {.cartella = argc > 1 ? argv[1] : "."});
  mano.gioco = &gioco;
  return gioco.Gioca();
}
