// The puzzle trial: a photograph, or the map of Europe at the end of the route, in twelve pieces.
#pragma once

#include "trials/form_tasselli.h"
#include "trials/puzzle_logica.h"

namespace girovia {

class FormProvaPuzzle : public FormTasselli<ProvaPuzzle> {
 public:
  explicit FormProvaPuzzle(Ambiente& ambiente);

  void Form_Load() override;
  void Form_Activate() override;
  void Form_MouseDown(const platform::MouseArgs& args) override;

 private:
  void Timer1_Timer();
  void EnableTrap() override;
  void Risolta() override;
  void CentraTitolo();

  platform::Shape Shape1;
  platform::Image ImgRidotta;
  platform::Label LblTitolo, LblInfo;
  platform::PictureBox Linea;
  int scatti_ = 0;
};

}  // namespace girovia
