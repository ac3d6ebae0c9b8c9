// The true-or-false card.
#pragma once

#include "trials/form_carta.h"

namespace girovia {

class FormCarte2Items : public FormCarta {
 public:
  explicit FormCarte2Items(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void cmdRisposta_Click(int Index) override;
};

}  // namespace girovia
