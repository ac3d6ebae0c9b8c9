#include "screens/segnaposto.h"

#include "content/atlante.h"
#include "content/quiz.h"
#include "content/testi.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

// What each trial pays, and the question that stands for it. The map trials leave the prize to
// FormBonus.
struct Prova {
  Schermata schermata;
  const char* domanda;
  int premio;
};

constexpr Prova kProve[] = {
    {Schermata::FormCarte4Items, "Le quattro foto: hai trovato le tre giuste?", 20},
    {Schermata::FormProvaCitta, "Hai trovato la città?", 0},
    {Schermata::FormProvaCapitali, "Hai trovato la capitale?", 0},
};

const Prova* TrovaProva(Schermata schermata) {
  for (const Prova& prova : kProve)
    if (prova.schermata == schermata) return &prova;
  return nullptr;
}

}  // namespace

std::string Segnaposto::Domanda() {
  switch (per_) {
    case Schermata::FormPremiazione:
      return Nome[Giocatore] + " hai vinto!!! Complimenti.";
    default: {
      return TrovaProva(per_)->domanda + ("\n" + Messaggio);
    }
  }
}

void Segnaposto::Form_Load() {
  FormMessaggi::Form_Load();
  LblMessaggio.SetCaption(Domanda());
}

void Segnaposto::Form_Activate() { RitornoProva = Falso; }

void Segnaposto::cmdRisposta_Click(int Index) {
  FormMessaggi::cmdRisposta_Click(Index);
  switch (per_) {
    case Schermata::FormPremiazione:
      Risposta = 6;  // the prizes wait for their own screen
      break;
    default:
      if (const Prova* prova = TrovaProva(per_))
        if (prova->premio > 0) Premio = Euro::Interi(prova->premio);
  }
}

}  // namespace girovia
