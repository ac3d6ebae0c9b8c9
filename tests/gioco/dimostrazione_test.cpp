// The game that plays itself.
#include <gmock/gmock.h>

#include "cartella.h"
#include "core/mod_Girovia.h"
#include "dimostrazione/partita_da_sola.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {
namespace {

using platform::Event;
using platform::EventKind;

constexpr std::int64_t kSecondo = 1'000'000;

class Dimostrazione : public testing::Test {
 protected:
  Dimostrazione() { cartella.Alleggerisci(); }
  Cartella cartella;
  platform::HeadlessHost host;
};

TEST_F(Dimostrazione, PassesEveryScreenAndEndsByItself) {
  PartitaDaSola partita(host, cartella.percorso(), false);
  host.OnIdle = [&] {
    // Nobody stays to see more than that.
    if (host.NowMicros() > 40 * 60 * kSecondo) host.Queue({.kind = EventKind::Quit});
  };
  EXPECT_EQ(partita.gioco.Gioca(), 0);
  EXPECT_FALSE(partita.mano.chiusa());
  EXPECT_FALSE(partita.mano.toccata());
  for (int s = 0; s < kNumeroSchermate; ++s)
    EXPECT_THAT(partita.automa.viste(),
                testing::Contains(partita.gioco.Crea(Schermata(s))->name()));
  EXPECT_EQ(mod_Girovia::Nome[1], "Giulia");
  EXPECT_EQ(mod_Girovia::Nome[2], "Matteo");
}

TEST_F(Dimostrazione, LetsGoAtATouchButNotAtAKnock) {
  const struct {
    Event event;
    bool tocco;
  } casi[] = {
      {{.kind = EventKind::MouseDown, .x = 5, .y = 5}, true},
      {{.kind = EventKind::KeyDown, .key = platform::Key::Space}, true},
      {{.kind = EventKind::Text, .text = "q"}, true},
      {{.kind = EventKind::MouseMove, .x = 190, .y = 100}, true},
      {{.kind = EventKind::MouseMove, .x = 104, .y = 103}, false},
      {{.kind = EventKind::MouseLeave}, false},
      {{.kind = EventKind::Expose}, false},
  };
  for (const auto& caso : casi) {
    platform::HeadlessHost tavolo;
    PartitaDaSola partita(tavolo, cartella.percorso(), true);
    const std::int64_t quando[] = {1 * kSecondo, 5 * kSecondo, 10 * kSecondo};
    std::size_t n = 0;
    tavolo.OnIdle = [&] {
      if (n == std::size(quando) || tavolo.NowMicros() < quando[n]) return;
      const Event primo{.kind = EventKind::MouseMove, .x = 100, .y = 100};
      const Event ultimo{.kind = EventKind::Quit};
      tavolo.Queue(n == 0 ? primo : n == 1 ? caso.event : ultimo);
      ++n;
    };
    partita.gioco.Gioca();
    EXPECT_EQ(partita.mano.toccata(), caso.tocco) << int(caso.event.kind) << " " << caso.event.x;
    EXPECT_EQ(partita.mano.chiusa(), !caso.tocco);
  }
}

// Round the drawn hand the picture is the program's own, wherever the hand has been.
TEST_F(Dimostrazione, TheHandLeavesNoTrace) {
  PartitaDaSola partita(host, cartella.percorso(), true);
  int diversi = 0, mani = 0;
  std::int64_t prossimo = 0;
  host.OnIdle = [&] {
    if (host.NowMicros() > 60 * kSecondo) return host.Queue({.kind = EventKind::Quit});
    if (host.NowMicros() < prossimo) return;
    prossimo = host.NowMicros() + kSecondo / 2;
    const platform::Surface& vera = partita.gioco.screen().plane();
    int left = 800, top = 600, right = -1, bottom = -1;
    for (int y = 0; y < 600; ++y)
      for (int x = 0; x < 800; ++x)
        if (vera.row(y)[x] != host.planeShown().row(y)[x]) {
          left = std::min(left, x), right = std::max(right, x);
          top = std::min(top, y), bottom = std::max(bottom, y);
        }
    mani += right >= 0;
    diversi += right - left >= 32 || bottom - top >= 32;
  };
  partita.gioco.Gioca();
  EXPECT_EQ(diversi, 0);
  EXPECT_GT(mani, 40);
}

}  // namespace
}  // namespace girovia
