// The card that turns about its upright axis before a card trial.
#pragma once

#include "comune/ambiente.h"
#include "effects/rotazione_logica.h"

namespace girovia {

class FormRotazioneCarta : public platform::Form {
 public:
  explicit FormRotazioneCarta(Ambiente& ambiente);

  void Form_Activate() override;

 private:
  void Show(const FotogrammaCarta& fotogramma);
  void Wipe();

  Ambiente& a_;
  platform::ControlArray<platform::PictureBox> Nero, Retro, Avanti;
  platform::PictureBox PicBGround;
};

}  // namespace girovia
