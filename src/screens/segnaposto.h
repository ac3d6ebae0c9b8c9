// Stands in for the award ceremony, which is not drawn yet: names the winner with FormMessaggi, and
// ends the game.
#pragma once

#include "screens/form_messaggi.h"

namespace girovia {

class Segnaposto : public FormMessaggi {
 public:
  using FormMessaggi::FormMessaggi;

  void Form_Load() override;
  void Form_Activate() override;

 protected:
  void cmdRisposta_Click(int Index) override;
};

}  // namespace girovia
