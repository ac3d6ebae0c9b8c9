// The four-photo card.
#pragma once

#include "trials/carte4_logica.h"
#include "trials/form_carta.h"

namespace girovia {

class FormCarte4Items : public FormCarta {
 public:
  explicit FormCarte4Items(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void cmdRisposta_Click(int Index) override;

  platform::ControlArray<platform::Image> ImgCitta;
  Carte4 carta_{0};
};

}  // namespace girovia
