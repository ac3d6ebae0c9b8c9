// Stands in for a screen that is not drawn yet: asks with FormMessaggi for the outcome that the
// screen would bring, and closes with that screen's flags.
#pragma once

#include "screens/form_messaggi.h"

namespace girovia {

class Segnaposto : public FormMessaggi {
 public:
  Segnaposto(Ambiente& ambiente, Schermata per) : FormMessaggi(ambiente), per_(per) {}

  void Form_Load() override;
  void Form_Activate() override;

 protected:
  void cmdRisposta_Click(int Index) override;

 private:
  std::string Domanda();

  Schermata per_;
};

}  // namespace girovia
