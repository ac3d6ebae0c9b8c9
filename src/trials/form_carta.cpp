#include "trials/form_carta.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Align;
using platform::Rect;

FormCarta::FormCarta(Ambiente& ambiente, std::string nome, int primoGradino)
    : Form(ambiente.screen, std::move(nome), 480, 532, platform::colors::kWhite),
      a_(ambiente),
      premio_(ambiente, PicBonus, primoGradino) {
  Row(Timer1, 1000, false, [this] { Timer1_Timer(); });
}

void FormCarta::RigheTesti(const Rect& domanda) {
  Row(LblDomanda, "LblDomanda", domanda,
      {.font = Verdana(12),
       .back = platform::colors::kWhite,
       .transparent = false,
       .align = Align::Center});
  Row(lblInfo, "lblInfo", {232, 496, 16, 13},
      {.font = Verdana(8.25, true),
       .fore = 0x0000FF,
       .align = Align::Center,
       .autoSize = true,
       .maxWidth = 440});
}

// The coins are round: around them the box is as white as the card.
void FormCarta::RigaPremio(const Rect& posto) {
  Row(PicBonus, "PicBonus", posto,
      {.back = platform::colors::kWhite, .border = true, .autoSize = true});
}

void FormCarta::RigaRisposta(int i, const Rect& posto, const std::string& testo, double punti) {
  Row(cmdRisposta.Load(i), Indexed("cmdRisposta", i), posto,
      {.caption = testo, .font = Verdana(punti), .hand = &a_.mani, .focusOnMove = true});
  cmdRisposta(i).OnClick = [this, i] { cmdRisposta_Click(i); };
}

void FormCarta::RitagliaForm(const Rect& nero) {
  const Rect colorato{-2, -2, width() - 3.0, height() - 3.0};
  ShapeRoundRect(nero, 90, 90);
  surface().RoundRect(nero, 90, 90, {24, platform::colors::kBlack});
  ShapeRoundRect(colorato, 90, 90);
  surface().RoundRect(colorato, 90, 90, {24, NumeroColore(Colore[Giocatore])});
}

void FormCarta::Form_Activate() {
  premio_.Riparti();
  RitornoProva = Falso;
  Timer1.SetEnabled(true);
}

void FormCarta::Timer1_Timer() {
  if (premio_.Scatta()) Uscita(0);
}

void FormCarta::Uscita(int risposta) {
  Timer1.SetEnabled(false);
  RitornoProva = Vero;
  mod_Messaggi::Risposta = risposta;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
