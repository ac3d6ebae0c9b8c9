// What the two card trials share: the falling prize, the cost of a failure, the frame in the
// player's colour and the way a card closes.
#pragma once

#include "comune/ambiente.h"
#include "comune/premio_sul_form.h"

namespace girovia {

class FormCarta : public platform::Form {
 public:
  void Form_Activate() override;

 protected:
  FormCarta(Ambiente& ambiente, std::string nome, int primoGradino);

  // Rows of the table. PicBonus stands at `posto` with its first prize.
  void RigheTesti(const platform::Rect& domanda);
  void RigaPremio(const platform::Rect& posto);
  void RigaRisposta(int i, const platform::Rect& posto, const std::string& testo, double punti);

  // The window takes the shape of a card twice, `nero` first: of its black outline the second one,
  // in the player's colour, leaves a thin rim.
  void RitagliaForm(const platform::Rect& nero);
  virtual void cmdRisposta_Click(int Index) = 0;
  void Uscita(int risposta);

  Ambiente& a_;
  platform::ControlArray<platform::CommandButton> cmdRisposta;
  platform::Label LblDomanda, lblInfo;
  platform::PictureBox PicBonus;
  platform::Timer Timer1;
  PremioSulForm premio_;

 private:
  void Timer1_Timer();
};

}  // namespace girovia
