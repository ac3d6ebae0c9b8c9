// How many positions of a carried tile the desktop window shows a second.
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

// A hand at the mouse that is as quick as the game. Nothing waits for the frames of the display:
// what is asked is how many there could be.
class HostMisurato : public platform::ForwardingHost {
 public:
  using ForwardingHost::ForwardingHost;

  std::int64_t FrameMicros() override { return 0; }
  void PlaySound(const std::shared_ptr<const platform::Wave>&) override {}

  void Show(const platform::Surface& plane,
            const std::vector<platform::DeviceRect>& changed) override {
    host_.Show(plane, changed);
    ++mostrate_;
  }

  bool PollEvent(Event&) override { return false; }

  bool WaitEvent(Event& event, std::int64_t deadline) override {
    if (!form_) return host_.WaitEvent(event, deadline);
    const platform::Rect f = form_->PlaneRect();
    // From the first cell a long way round.
    const double a = passo_ * 0.02;
    const auto p = form_->screen().ToWindow(
        {f.left + 90 + 130 * (1 - std::cos(a)), f.top + 80 + 100 * (1 - std::cos(a * 1.3))});
    event = {passo_ == 0 ? EventKind::MouseDown : EventKind::MouseMove, int(p.x), int(p.y)};
    if (passo_ == 1) {
      mostrate_ = 0;
      inizio_ = Clock::now();
    }
    if (passo_++ <= kPosizioni) return true;
    const std::chrono::duration<double> secondi = Clock::now() - inizio_;
    std::printf("%s positions-per-second %.0f\n", form_->name().c_str(),
                mostrate_ / secondi.count());
    mod_Girovia::RitornoProva = Vero;
    form_->Unload();
    form_ = nullptr;
    return false;
  }

  void Porta(platform::Form& form) {
    form_ = &form;
    passo_ = 0;
    form.ShowModal();
  }

 private:
  platform::Form* form_ = nullptr;
  int mostrate_ = 0, passo_ = 0;
  Clock::time_point inizio_;
};

}  // namespace

int main(int argc, char** argv) {
  std::string why;
  const auto host = platform::OpenDesktop({.title = "bench", .iconPath = ""}, why);
  if (!host) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }
  HostMisurato misurato(*host);
  Gioco gioco(misurato, {.cartella = argc > 1 ? argv[1] : "."});
  gioco.Apri();
  gioco.SaltaInizio();
  mod_Girovia::Giocatore = 1;
  mod_Messaggi::ColoreCornice = mod_Girovia::Colore[1];
  for (const Schermata s : {Schermata::FormProvaOrdinamento, Schermata::FormProvaPuzzle})
    misurato.Porta(*gioco.Crea(s));
  return 0;
}
