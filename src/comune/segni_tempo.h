// What shows the passing time on the trial screens: the shrinking bar and the breathing button.
// Both are functions of the number of timer ticks alone.
#pragma once

namespace girovia {

struct BarraTempo {
  int left, larghezza;
  bool rossa, visibile;
  bool scaduta;  // too narrow to go on: the time is over
};

// The bar after `scatti` ticks, each of which takes an even number of pixels off, half at either
// end.
BarraTempo BarraDopo(int left, int larghezza, int passo, int scatti);

struct PostoBottone {
  int left, top, larghezza, altezza;
  friend bool operator==(const PostoBottone&, const PostoBottone&) = default;
};

// The give-up button swells by a pixel on every side at each odd tick.
PostoBottone BottoneDopo(int left, int top, int scatti);

}  // namespace girovia
