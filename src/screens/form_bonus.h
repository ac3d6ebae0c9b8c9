// The drawn money prize of a map trial, inside a star.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormBonus : public platform::Form {
 public:
  explicit FormBonus(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void RitagliaForm();
  void cmdRisposta_Click();
  void Timer1_Timer();

  Ambiente& a_;
  platform::ControlArray<platform::PictureBox> PicBanconota;
  platform::CommandButton cmdRisposta;
  platform::Timer Timer1;
  platform::Label LblMessaggio, Label1;
};

}  // namespace girovia
