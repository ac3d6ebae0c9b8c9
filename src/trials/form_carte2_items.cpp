#include "trials/form_carte2_items.h"

#include "comune/premio_cadente.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/carte2_logica.h"

namespace girovia {

using namespace mod_Girovia;

FormCarte2Items::FormCarte2Items(Ambiente& ambiente)
    : FormCarta(ambiente, "FormCarte2Items", kPrimoGradinoCarte2) {
  RigheTesti({16, 360, 441, 43});
  RigaPremio({51, 409, 140, 75});
  RigaRisposta(1, {248, 408, 54, 82}, "vero", 14.25);
  RigaRisposta(2, {320, 408, 54, 82}, "falso", 14.25);
  RigaRisposta(0, {392, 408, 54, 82}, "non lo so", 8.25);
}

void FormCarte2Items::Form_Load() {
  const int citta = mod_Messaggi::IndiceCarte2;
  const Affermazione affermazione = EstraiAffermazione(servizi().caso->Rnd(), citta);
  SetPicture(cLoadResPicture(a_.immagini).LoadResPicture(400 + citta, "CUSTOM"));
  mod_Messaggi::RispostaEsatta = affermazione.esatta;
  LblDomanda.SetCaption(affermazione.frase);
  lblInfo.SetCaption(mod_Messaggi::Messaggio);
  premio_.Carica();
  const auto ritratto = a_.immagini.LoadResPicture(Ritratto[Giocatore]);
  for (int i : {0, 1, 2}) {
    cmdRisposta(i).SetPicture(ritratto);
    cmdRisposta(i).SetBackColor(NumeroColore(Colore[Giocatore]));
  }
  RitagliaForm({0, 0, width() - 8.0, height() - 8.0});
}

void FormCarte2Items::cmdRisposta_Click(int Index) {
  SuonoAsync("102");
  Uscita(Index);
}

}  // namespace girovia
