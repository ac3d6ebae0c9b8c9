// The ordering trial: eight cities around one that stays where it is.
#pragma once

#include "trials/form_tasselli.h"
#include "trials/ordinamento_logica.h"

namespace girovia {

class FormProvaOrdinamento : public FormTasselli<ProvaOrdinamento> {
 public:
  explicit FormProvaOrdinamento(Ambiente& ambiente);

  void Form_Load() override;
  void Form_Activate() override;

 private:
  bool Picture2_MouseDown(int Index, const platform::MouseArgs& args) override;
  void Timer1_Timer();
  void EnableTrap() override;
  void Risolta() override;

  void ComponiFoto(int cella, int citta);
  void MettiNellaGriglia(int cella, platform::PictureBox& foto);
  void ScriviIstruzioni(int riferimento);
  void DisegnaSegno(const SegnoAnello& segno);

  platform::PictureBox PicCaricamento;
  int Scatti = 0;
};

}  // namespace girovia
