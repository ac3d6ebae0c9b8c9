// The card that turns about its upright axis before a card trial.
#pragma once

#include <set>
#include <string>

#include "comune/ambiente.h"
#include "effects/rotazione_logica.h"

namespace girovia {

class FormRotazioneCarta : public platform::Form {
 public:
  explicit FormRotazioneCarta(Ambiente& ambiente);

  void Form_Activate() override;

 private:
  void Prepara(const FotogrammaCarta& fotogramma);
  void Show(const FotogrammaCarta& fotogramma);
  void Wipe();

  Ambiente& a_;
  platform::ControlArray<platform::PictureBox> Nero, Retro, Avanti;
  platform::PictureBox PicBGround;
  std::set<std::string> pronti_;  // the pictures that have been decoded
};

}  // namespace girovia
