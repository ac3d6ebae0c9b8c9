// A running game on which a test may try single screens and moments: it starts, leaves the start
// screen as it offers itself if the test does not want that one, does what the test wants when the
// board first waits for a click, and is ended.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "core/mod_Girovia.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {

class Banco : public Caso {
 public:
  explicit Banco(int scala = 1, const std::string& cartella = PROGRAMMA)
      : Banco({800 * scala, 600 * scala}, scala, cartella) {}
  // A window of any size, at the scale that the game chooses for it if `scala` is 0.
  Banco(platform::PixelSize finestra, int scala, const std::string& cartella = PROGRAMMA)
      : host(finestra), gioco(host, {cartella, scala, this}) {}

  // Each step runs when the game waits for a click; after the last one the window is closed.
  void Passi(std::deque<std::function<void()>> passi) {
    host.OnIdle = [this, passi = std::move(passi)]() mutable {
      if (!dallInizio && davanti().name() == "Splash") return Clicca(*davanti().Find("CmdOK"));
      if (host.NowMicros() < aspetta_) return;
      if (passi.empty()) {
        host.Queue({platform::EventKind::Quit, 0, 0, platform::MouseButton::Left});
        return;
      }
      const auto passo = std::move(passi.front());
      passi.pop_front();
      passo();
    };
    codice = gioco.Gioca();
  }

  // The next step is not taken before so many milliseconds have passed.
  void Aspetta(int ms) { aspetta_ = host.NowMicros() + ms * 1000LL; }

  // From within a step: shows a screen and returns when it has closed. Each moment comes so many
  // milliseconds after the screen, in steps of 50; after the last one it is closed, if it still
  // stands.
  struct Momento {
    int ms;
    std::function<void()> fai;
  };
  void Mostra(Schermata schermata, std::deque<Momento> momenti) {
    const auto prima = host.OnIdle;
    const std::int64_t inizio = host.NowMicros();
    platform::Timer orologio;
    orologio.Attach(*gioco.tabellone(), 50, true);
    host.OnIdle = [&] {
      if (momenti.empty()) {
        mod_Girovia::RitornoProva = Vero;  // no turn follows
        davanti().Unload();
        Sveglia();
      } else if (host.NowMicros() - inizio >= momenti.front().ms * 1000LL) {
        const auto fai = std::move(momenti.front().fai);
        momenti.pop_front();
        if (fai) fai();
      }
    };
    servizi().schermi->MostraModale(schermata);
    host.OnIdle = prima;
  }
  void Sveglia() {
    host.Queue({platform::EventKind::MouseLeave, 0, 0, platform::MouseButton::Left});
  }

  platform::Form& davanti() { return *gioco.screen().top(); }
  platform::Control& Trova(const std::string& nome) { return *davanti().Find(nome); }
  void Clicca(const platform::Control& controllo,
              platform::MouseButton bottone = platform::MouseButton::Left) {
    host.Click(InMezzo(controllo), bottone);
  }
  void Sopra(const platform::Control& controllo) { Muovi(InMezzo(controllo)); }
  void Muovi(platform::Point finestra) {
    host.Queue({platform::EventKind::MouseMove, int(finestra.x), int(finestra.y),
                platform::MouseButton::Left});
  }

  platform::HeadlessHost host;
  std::deque<double> numeri;  // the next draws; where there is none, 0
  Gioco gioco;
  bool dallInizio = false;  // the steps begin on the start screen
  int codice = -1;

 private:
  platform::Point InMezzo(const platform::Control& controllo) {
    const platform::Rect r = controllo.InForm(controllo.place());
    const platform::Rect f = controllo.form()->PlaneRect();
    return gioco.screen().ToWindow({f.left + r.left + r.width / 2, f.top + r.top + r.height / 2});
  }
  double Rnd() override {
    if (numeri.empty()) return 0;
    const double u = numeri.front();
    numeri.pop_front();
    return u;
  }

  std::int64_t aspetta_ = 0;
};

}  // namespace girovia
