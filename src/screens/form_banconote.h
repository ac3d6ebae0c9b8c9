// The money of a move, in notes and coins.
#pragma once

#include "comune/form_con_titolo.h"

namespace girovia {

class FormBanconote : public FormConTitolo {
 public:
  explicit FormBanconote(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void cmdRisposta_Click();
  void Timer1_Timer();

  platform::PictureBox PicBanconota1, PicBanconota2, PicBanconota3;
  platform::CommandButton cmdRisposta;
  platform::Timer Timer1;
  platform::Label LblMessaggio, Label1;
  bool BottoneGrande = false;
};

}  // namespace girovia
