// How long things take on the clock, and what they show meanwhile.
#include <set>

#include "banco.h"
#include "core/mod_Girovia.h"

namespace girovia {
namespace {

TEST(Tempi, EveryThrowOfTheDice) {
  Banco banco;
  std::deque<std::function<void()>> passi;
  std::int64_t inizio = 0;
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) {
      passi.push_back([&, d1, d2] {
        inizio = banco.host.NowMicros();
        banco.numeri = {(d1 - 0.5) / 6, (d2 - 0.5) / 6};
        servizi().schermi->MostraNonModale(Schermata::Dadi);
        // The dice roll as soon as the loop goes on.
        banco.host.Queue({platform::EventKind::Expose, 0, 0, platform::MouseButton::Left});
      });
      passi.push_back([&, d1, d2] {
        const int passiDadi = 17 + 2 * std::max(d1, d2);
        EXPECT_EQ(banco.host.NowMicros() - inizio, (passiDadi * 100 + 500) * 1000)
            << d1 << " " << d2;
        EXPECT_EQ(mod_Girovia::Dado, d1 + d2);
        EXPECT_TRUE(banco.gioco.tabellone()->Find("PicDado2")->visible());
        EXPECT_EQ(&banco.davanti(), banco.gioco.tabellone());
      });
    }
  banco.Passi(std::move(passi));
}

TEST(Tempi, TheCardAndTheCountShowEachOfTheirFrames) {
  Banco banco;
  std::set<std::int64_t> quando;
  banco.host.OnShow = [&](const auto&) { quando.insert(banco.host.NowMicros()); };
  banco.Passi({[&] {
    const auto durata = [&](const std::function<void()>& cosa) {
      quando.clear();
      const std::int64_t inizio = banco.host.NowMicros();
      cosa();
      return banco.host.NowMicros() - inizio;
    };
    const auto giro =
        durata([] { servizi().schermi->MostraModale(Schermata::FormRotazioneCarta); });
    EXPECT_EQ(giro / 10'000, 178);
    EXPECT_EQ(quando.size(), 107u);
    // Both ends are counted.
    EXPECT_EQ(durata([] {
                servizi().tabellone->ContaGruzzolo(2, Euro::Centesimi(-150), Euro::Interi(3));
              }),
              451'000);
    EXPECT_EQ(quando.size(), 451u);
    EXPECT_EQ(durata([] {
                servizi().tabellone->ContaGruzzolo(2, Euro::Interi(3), Euro::Centesimi(299));
              }),
              0);
  }});
}

}  // namespace
}  // namespace girovia
