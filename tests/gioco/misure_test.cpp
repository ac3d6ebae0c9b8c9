// The window takes another size at every wait of a throw, and in the end nothing tells.
#include "banco.h"

namespace girovia {
namespace {

using platform::PixelSize;
using platform::Surface;

Surface DopoUnTiro(PixelSize finestra, bool cambia, int& cambi) {
  constexpr PixelSize kMisure[] = {{1, 1},     {640, 480}, {2500, 2},   {3, 1800},
                                   {801, 599}, {400, 300}, {1280, 1024}};
  Banco banco(finestra, 0);
  Surface fine;
  banco.host.OnShow = [&](const auto&) { banco.host.Shot(); };
  std::int64_t ultimo = -1;
  banco.Passi({[&] {
                 if (cambia)
                   banco.host.OnBlocked = [&] {
                     if (banco.host.NowMicros() == ultimo) return;
                     ultimo = banco.host.NowMicros();
                     banco.host.Resize(kMisure[std::size_t(cambi++) % std::size(kMisure)]);
                   };
                 banco.Clicca(banco.Trova("cmdRitratto(1)"));
               },
               [&] {
                 EXPECT_EQ(banco.davanti().name(), "FormBanconote");
                 banco.host.OnBlocked = nullptr;
                 banco.host.Resize(finestra);
               },
               [&] { fine = banco.host.planeShown(); }});
  EXPECT_EQ(banco.codice, 0);
  return fine;
}

TEST(Misure, ThrowInAWindowThatChanges) {
  for (const PixelSize finestra : {PixelSize{800, 600}, {1024, 768}}) {
    int cambi = 0;
    const Surface calma = DopoUnTiro(finestra, false, cambi);
    const Surface mossa = DopoUnTiro(finestra, true, cambi);
    EXPECT_EQ(cambi, 20) << "one for each of its waits";
    ASSERT_EQ(mossa.deviceBounds(), calma.deviceBounds());
    int diversi = 0;
    for (int y = 0; y < calma.deviceHeight(); ++y)
      for (int x = 0; x < calma.deviceWidth(); ++x) diversi += calma.row(y)[x] != mossa.row(y)[x];
    EXPECT_EQ(diversi, 0);
  }
}

}  // namespace
}  // namespace girovia
