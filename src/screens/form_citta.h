// A city's postcard, on which a surprise may lie.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormCitta : public platform::Form {
 public:
  explicit FormCitta(Ambiente& ambiente);

  void Form_Load() override;

 private:
  void RitagliaForm();
  void Timer1_Timer();
  void cmdExit_Click();
  void CmdSorpresa_Click();

  Ambiente& a_;
  platform::Line Line1;
  platform::Label LblSorpresa;
  platform::CommandButton cmdExit, CmdSorpresa;
  platform::Timer Timer1;
  Flag Lampeggio = Falso;
};

}  // namespace girovia
