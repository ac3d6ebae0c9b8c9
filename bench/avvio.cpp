// The game's start to its first complete picture, its memory, and what the start screen and a board
// that only pulses cost. The desktop host is listened to from outside; the game itself is the
// shipped one.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <string>

#include "gioco.h"
#include "misure.h"
#include "platform/hosts/desktop/sdl_host.h"
#include "platform/hosts/forwarding_host.h"

namespace {

using Clock = std::chrono::steady_clock;

// What is measured, in seconds after the first picture. The anthem lasts 18 seconds and the credits
// rise for 9; the sound system goes some seconds after the last sound.
struct Fase {
  const char* nome;
  double da, a;
};
constexpr Fase kFasi[] = {{"credits-rising", 2, 8}, {"start-at-rest", 30, 40}, {"board", 56, 76}};
constexpr double kInizia = 42;  // the click that leaves the start screen

class HostMisurato : public platform::ForwardingHost {
 public:
  HostMisurato(platform::Host& vero, Clock::time_point start)
      : ForwardingHost(vero), start_(start) {}

  void Show(const platform::Surface& plane,
            const std::vector<platform::DeviceRect>& changed) override {
    host_.Show(plane, changed);
    // The first picture that covers the window is the start screen's.
    if (!mostrato_ && changed[0].width() >= plane.deviceWidth() - plane.scale()) {
      const std::chrono::duration<double, std::milli> ms = Clock::now() - start_;
      std::printf("first-picture-ms %.1f\n", ms.count());
      mostrato_ = true;
      inizio_ = NowMicros();
    }
  }

  bool WaitEvent(platform::Event& event, std::int64_t deadline) override {
    const double ora = mostrato_ ? double(NowMicros() - inizio_) / 1e6 : 0;
    if (ora >= kInizia && cliccati_ < 3) {
      // The button in the lower right corner of the forms' room.
      const platform::PixelSize finestra = host_.WindowSize();
      const double k = std::min(finestra.width / 800.0, finestra.height / 600.0);
      constexpr platform::EventKind kClic[] = {platform::EventKind::MouseMove,
                                               platform::EventKind::MouseDown,
                                               platform::EventKind::MouseUp};
      event.kind = kClic[cliccati_++];
      event.x = int(finestra.width / 2.0 + (771 - 400) * k);
      event.y = int(finestra.height / 2.0 + (572 - 300) * k);
      event.button = platform::MouseButton::Left;
      return true;
    }
    if (fase_ < std::size(kFasi)) {
      const Fase& fase = kFasi[fase_];
      if (!misura_ && ora >= fase.da) {
        misura_ = true;
        daQuando_ = ora;
        prima_ = ConsumoFinora();
      } else if (misura_ && ora >= fase.a) {
        const Consumo dopo = ConsumoFinora();
        std::printf("%s-cpu-percent %.2f\n%s-wake-ups-per-second %.1f\n", fase.nome,
                    (dopo.cpuSeconds - prima_.cpuSeconds) / (ora - daQuando_) * 100, fase.nome,
                    double(dopo.wakeUps - prima_.wakeUps) / (ora - daQuando_));
        misura_ = false;
        ++fase_;
      }
    } else {
      std::printf("pss-megabytes %.1f\n", PssMegabytes());
      event.kind = platform::EventKind::Quit;
      return true;
    }
    return host_.WaitEvent(event, deadline);
  }

 private:
  Clock::time_point start_;
  bool mostrato_ = false, misura_ = false;
  std::int64_t inizio_ = 0;
  double daQuando_ = 0;
  std::size_t fase_ = 0, cliccati_ = 0;
  Consumo prima_{};
};

}  // namespace

int main(int argc, char** argv) {
  const auto start = Clock::now();
  const std::string folder = argc > 1 ? argv[1] : ".";
  std::string why;
  const auto host = platform::OpenDesktop({.title = "bench", .iconPath = ""}, why);
  if (!host) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }
  HostMisurato misurato(*host, start);
  girovia::Gioco gioco(misurato, {.cartella = folder});
  return gioco.Gioca();
}
