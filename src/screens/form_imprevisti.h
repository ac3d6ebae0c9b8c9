// The newspaper that tells of an unforeseen event.
#pragma once

#include "screens/pagina_giornale.h"

namespace girovia {

class FormImprevisti : public PaginaGiornale {
 public:
  explicit FormImprevisti(Ambiente& ambiente);

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void Timer1_Timer();
  void cmdRisposta_Click();

  platform::Image ImgAereo;
  platform::ControlArray<platform::Line> LinePiede;
  platform::Timer Timer1;
};

}  // namespace girovia
