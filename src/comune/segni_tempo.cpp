#include "comune/segni_tempo.h"

namespace girovia {

BarraTempo BarraDopo(int left, int larghezza, int passo, int scatti) {
  constexpr int kRossaSotto = 200;
  constexpr int kScadutaSotto = 5;
  const int w = larghezza - passo * scatti;
  // It turns red and goes dark at the same tick, and blinks from there on.
  const int primo_rosso = (larghezza - kRossaSotto) / passo + 1;
  const bool rossa = w < kRossaSotto;
  return {.left = left + passo / 2 * scatti,
          .larghezza = w,
          .rossa = rossa,
          .visibile = !rossa || (scatti - primo_rosso) % 2 != 0,
          .scaduta = w < kScadutaSotto};
}

PostoBottone BottoneDopo(int left, int top, int scatti) {
  if (scatti % 2 != 0) return {left - 1, top - 1, 56, 84};
  return {left, top, 54, 82};
}

}  // namespace girovia
