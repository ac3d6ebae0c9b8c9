// The yes-or-no question.
#pragma once

#include "comune/form_con_titolo.h"

namespace girovia {

class FormMessaggi : public FormConTitolo {
 public:
  explicit FormMessaggi(Ambiente& ambiente);

  void Form_Load() override;

 protected:
  virtual void cmdRisposta_Click(int Index);

  platform::ControlArray<platform::CommandButton> cmdRisposta;
  platform::Label LblMessaggio;
};

}  // namespace girovia
