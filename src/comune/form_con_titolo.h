// What the message dialogs share: a bevelled frame, and a strip across the top in which the logo
// slides from right to left without end.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormConTitolo : public platform::Form {
 public:
  FormConTitolo(Ambiente& ambiente, std::string name, int width, int height, platform::Color back)
      : Form(ambiente.screen, std::move(name), width, height, back), a_(ambiente) {}

 protected:
  // The strip's rows of the table. The clean strip has the colour `fondo`, whatever PicCornice has.
  void RigheTitolo(const platform::Rect& posto, platform::Color fondo);
  void PreparaTitolo();  // the logo stands at the right end of the strip
  void TimerTitolo_Timer();

  Ambiente& a_;
  platform::PictureBox PicCornice, PicBackUpTitolo, PicLogoNero, PicLogoBianco;
  platform::Timer TimerTitolo;
  std::int16_t XTitolo = 0;
};

}  // namespace girovia
