// Find the capital of the country that is named. The name of the city under the pointer is shown.
#pragma once

#include "trials/form_prova_mappa.h"

namespace girovia {

class FormProvaCapitali : public FormProvaMappa {
 public:
  explicit FormProvaCapitali(Ambiente& ambiente);

 private:
  std::string Domanda() override;
  int Richiesta() const override;
  void cmdcitta_MouseMove(int Index) override;
  void Form_MouseMove(const platform::MouseArgs&) override;

  platform::Label LblCitta;
};

}  // namespace girovia
