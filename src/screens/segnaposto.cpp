#include "screens/segnaposto.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;

void Segnaposto::Form_Load() {
  FormMessaggi::Form_Load();
  LblMessaggio.SetCaption(Nome[Giocatore] + " hai vinto!!! Complimenti.");
}

void Segnaposto::Form_Activate() { RitornoProva = Falso; }

void Segnaposto::cmdRisposta_Click(int Index) {
  FormMessaggi::cmdRisposta_Click(Index);
  mod_Messaggi::Risposta = 6;  // the prizes wait for their own screen
}

}  // namespace girovia
