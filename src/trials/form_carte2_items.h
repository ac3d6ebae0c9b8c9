// The true-or-false card.
#pragma once

#include "comune/ambiente.h"
#include "comune/premio_sul_form.h"

namespace girovia {

class FormCarte2Items : public platform::Form {
 public:
  explicit FormCarte2Items(Ambiente& ambiente);

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void RitagliaForm();
  void cmdRisposta_Click(int Index);
  void Timer1_Timer();
  void Chiudi(int risposta);

  Ambiente& a_;
  platform::ControlArray<platform::CommandButton> cmdRisposta;
  platform::Label LblDomanda, lblInfo;
  platform::PictureBox PicBonus;
  platform::Timer Timer1;
  PremioSulForm premio_;
};

}  // namespace girovia
