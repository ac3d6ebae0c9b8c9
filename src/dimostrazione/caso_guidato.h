// The luck of a demonstration: both players travel fast, and whatever the game has to show comes
// up. All that need not be so is drawn as ever.
#pragma once

#include "core/interfacce.h"
#include "platform/forms/screen.h"
#include "platform/hosts/random.h"

namespace girovia {

class CasoGuidato : public Caso {
 public:
  void Segui(const platform::Screen& screen) { screen_ = &screen; }
  double Rnd() override;

 private:
  double Dado();
  double Esito();
  double Sorpresa();

  platform::ClockRandom orologio_;
  const platform::Screen* screen_ = nullptr;
  int altroDado_ = 0;        // of a throw whose first die has been drawn
  bool daDecidere_ = false;  // the outcome of that throw
  bool incontrati_ = false;  // on one square
  std::size_t esiti_ = 0;
  int sorprese_ = 0;
};

}  // namespace girovia
