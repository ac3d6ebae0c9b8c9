// The game's start to its first complete picture, its memory, and what a board that only pulses
// costs. The desktop host is listened to from outside; the game itself is the shipped one.
#include <chrono>
#include <cstdio>
#include <string>

#include "gioco.h"
#include "misure.h"
#include "platform/hosts/desktop/sdl_host.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int64_t kAssestamento = 22'000'000;  // beyond the end of the anthem
constexpr std::int64_t kDurata = 20'000'000;

class HostMisurato : public platform::Host {
 public:
  HostMisurato(std::unique_ptr<platform::Host> vero, Clock::time_point start)
      : vero_(std::move(vero)), start_(start) {}

  platform::PixelSize WindowSize() override { return vero_->WindowSize(); }
  platform::PixelSize LargestWindow() override { return vero_->LargestWindow(); }
  std::int64_t NowMicros() override { return vero_->NowMicros(); }
  void SetPointer(const platform::Pointer& p, double scale) override {
    vero_->SetPointer(p, scale);
  }
  void ClipPointer(const std::optional<platform::DeviceRect>& r) override { vero_->ClipPointer(r); }
  void PlaySound(const std::shared_ptr<const platform::Wave>& w) override { vero_->PlaySound(w); }

  void Show(const platform::Surface& plane, platform::PixelSize size,
            const std::vector<platform::DeviceRect>& changed) override {
    vero_->Show(plane, size, changed);
    // The first picture that covers the window is the board's.
    if (!mostrato_ && changed[0].width() >= size.width) {
      const std::chrono::duration<double, std::milli> ms = Clock::now() - start_;
      std::printf("first-picture-ms %.1f\n", ms.count());
      mostrato_ = true;
      inizio_ = NowMicros();
    }
  }

  bool WaitEvent(platform::Event& event, std::int64_t deadline) override {
    const std::int64_t now = NowMicros();
    if (mostrato_ && !misura_ && now > inizio_ + kAssestamento) {
      std::printf("pss-megabytes %.1f\n", PssMegabytes());
      misura_ = true;
      inizioMisura_ = now;
      prima_ = ConsumoFinora();
    }
    if (misura_ && now > inizioMisura_ + kDurata) {
      const Consumo dopo = ConsumoFinora();
      const double seconds = double(now - inizioMisura_) / 1e6;
      std::printf("cpu-percent %.2f\nwake-ups-per-second %.1f\n",
                  (dopo.cpuSeconds - prima_.cpuSeconds) / seconds * 100,
                  double(dopo.wakeUps - prima_.wakeUps) / seconds);
      event.kind = platform::EventKind::Quit;
      return true;
    }
    return vero_->WaitEvent(event, deadline);
  }

 private:
  std::unique_ptr<platform::Host> vero_;
  Clock::time_point start_;
  bool mostrato_ = false, misura_ = false;
  std::int64_t inizio_ = 0, inizioMisura_ = 0;
  Consumo prima_{};
};

}  // namespace

int main(int argc, char** argv) {
  const auto start = Clock::now();
  const std::string folder = argc > 1 ? argv[1] : ".";
  std::string why;
  auto host = platform::OpenDesktop({.title = "bench", .iconPath = ""}, why);
  if (!host) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }
  HostMisurato misurato(std::move(host), start);
  girovia::Gioco gioco(misurato, {.cartella = folder});
  return gioco.Gioca();
}
