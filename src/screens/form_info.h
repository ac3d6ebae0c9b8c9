// The help page, printed as the newspaper is; opened from the start screen or from the board before
// the first throw.
#pragma once

#include "screens/pagina_giornale.h"

namespace girovia {

class FormInfo : public PaginaGiornale {
 public:
  explicit FormInfo(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void cmdRisposta_Click();

  platform::ControlArray<platform::Label> PrBar;
  platform::Timer Timer1;
};

}  // namespace girovia
