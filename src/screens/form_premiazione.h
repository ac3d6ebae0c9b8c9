// The winner's menu of prizes. It hides itself at each choice and is shown again, so that what was
// taken stays taken.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormPremiazione : public platform::Form {
 public:
  explicit FormPremiazione(Ambiente& ambiente);

  void Form_Load() override;
  void PlaceOnPlane() override;

 private:
  void cmdRisposta_Click(int Index);
  void MostraScelta(int Index, bool visibile);
  void InUnCorpo();

  Ambiente& a_;
  platform::Label LblTitolo;
  platform::ControlArray<platform::Label> lblPremiazione;
  platform::ControlArray<platform::CommandButton> cmdRisposta;
};

}  // namespace girovia
