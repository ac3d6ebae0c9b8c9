// The throw of the two dice, over a picture of the board.
#pragma once

#include "comune/ambiente.h"
#include "effects/dadi_logica.h"

namespace girovia {

class Dadi : public platform::Form {
 public:
  explicit Dadi(Ambiente& ambiente);

  void Form_Activate() override;

 private:
  void Esegui(const PassoDadi& passo);
  void Restore(int k, double x, double y);
  void Save(int k, double x, double y);
  void Draw(int f, double x, double y);
  void PosaSulTabellone(int n, int valore);
  void Pausa01() { screen().Wait(100); }
  void Pausa05() { screen().Wait(500); }

  Ambiente& a_;
  platform::ControlArray<platform::PictureBox> DadoNero, DadoBianco;
  platform::PictureBox PicBGround1, PicBGround2;
};

}  // namespace girovia
