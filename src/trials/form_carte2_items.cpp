#include "trials/form_carte2_items.h"

#include "comune/premio_cadente.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "trials/carte2_logica.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Align;

FormCarte2Items::FormCarte2Items(Ambiente& ambiente)
    : Form(ambiente.screen, "FormCarte2Items", 480, 532, 0xFFFFFF),
      a_(ambiente),
      premio_(ambiente, PicBonus, kPrimoGradinoCarte2) {
  Row(LblDomanda, "LblDomanda", {16, 360, 441, 43},
      {.font = Verdana(12), .back = 0xFFFFFF, .transparent = false, .align = Align::Center});
  Row(lblInfo, "lblInfo", {232, 496, 16, 13},
      {.font = Verdana(8.25, true),
       .fore = 0x0000FF,
       .align = Align::Center,
       .autoSize = true,
       .maxWidth = 440});
  Row(PicBonus, "PicBonus", {51, 409, 140, 75}, {.border = true, .autoSize = true});
  Row(cmdRisposta.Load(1), "cmdRisposta(1)", {248, 408, 54, 82},
      {.caption = "vero", .font = Verdana(14.25), .hand = &a_.mani, .focusOnMove = true});
  Row(cmdRisposta.Load(2), "cmdRisposta(2)", {320, 408, 54, 82},
      {.caption = "falso", .font = Verdana(14.25), .hand = &a_.mani, .focusOnMove = true});
  Row(cmdRisposta.Load(0), "cmdRisposta(0)", {392, 408, 54, 82},
      {.caption = "non lo so", .font = Verdana(8.25), .hand = &a_.mani, .focusOnMove = true});
  for (int i : {0, 1, 2}) cmdRisposta(i).OnClick = [this, i] { cmdRisposta_Click(i); };
  Row(Timer1, 1000, false, [this] { Timer1_Timer(); });
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
  RitagliaForm();
}

// The second shape replaces the first, and leaves a thin black rim inside the player's colour.
void FormCarte2Items::RitagliaForm() {
  const double W = width(), H = height();
  const platform::Rect nero{0, 0, W - 8, H - 8};
  const platform::Rect colorato{-2, -2, W - 3, H - 3};
  ShapeRoundRect(nero, 90, 90);
  surface().RoundRect(nero, 90, 90, {24, 0x000000});
  ShapeRoundRect(colorato, 90, 90);
  surface().RoundRect(colorato, 90, 90, {24, NumeroColore(Colore[Giocatore])});
}

void FormCarte2Items::Form_Activate() {
  premio_.Riparti();
  RitornoProva = Falso;
  Timer1.SetEnabled(true);
}

void FormCarte2Items::Timer1_Timer() {
  if (premio_.Scatta()) Chiudi(0);
}

void FormCarte2Items::cmdRisposta_Click(int Index) {
  SuonoAsync("102");
  Chiudi(Index);
}

void FormCarte2Items::Chiudi(int risposta) {
  Timer1.SetEnabled(false);
  RitornoProva = Vero;
  mod_Messaggi::Risposta = risposta;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
