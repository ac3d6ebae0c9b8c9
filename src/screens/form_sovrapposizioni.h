// The choice of the player who arrives on an occupied square.
#pragma once

#include "comune/form_con_titolo.h"

namespace girovia {

class FormSovrapposizioni : public FormConTitolo {
 public:
  explicit FormSovrapposizioni(Ambiente& ambiente);

  platform::Label Label2, Label3;  // their texts are set by the caller before the show

  void Form_Load() override;
  void Form_MouseMove(const platform::MouseArgs&) override;
  void Form_MouseDown(const platform::MouseArgs& args) override;

 private:
  void cmdRisposta_Click(int Index);
  void PicCornice_MouseDown(const platform::MouseArgs& args);

  platform::ControlArray<platform::CommandButton> cmdRisposta;
  platform::Label LblMessaggio;
};

}  // namespace girovia
