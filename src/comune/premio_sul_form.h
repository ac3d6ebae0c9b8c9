// The falling prize as a card shows it: the picture box, the sound and the amount in play.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class PremioSulForm {
 public:
  // The box stays where the form has put it until the first smaller prize.
  PremioSulForm(Ambiente& ambiente, platform::PictureBox& picBonus, int primoGradino)
      : a_(ambiente), PicBonus(picBonus), primoGradino_(primoGradino) {}

  void Carica();  // the card's load: first picture and amount
  void Riparti() { Scatti = 0; }
  bool Scatta();  // a tick of the card's clock: true if the time is out

 private:
  Ambiente& a_;
  platform::PictureBox& PicBonus;
  int primoGradino_;
  int Scatti = 0;
};

}  // namespace girovia
