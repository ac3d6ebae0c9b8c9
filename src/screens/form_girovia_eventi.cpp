// The board's load, timers and clicks.
#include "content/atlante.h"
#include "core/eventi.h"
#include "core/mod_Girovia.h"
#include "core/sorprese.h"
#include "core/stato.h"
#include "screens/form_girovia.h"

namespace girovia {

using namespace mod_Girovia;

void FormGirovia::Form_Load() {
  stella_ = a_.immagini.LoadResPicture(104);
  for (int i = 0; i < kNumeroCaselle; ++i) {
    if (i > 0) {
      Line1(i).SetColor(NumeroColore(Colore[1]));
      Line2(i).SetColor(NumeroColore(Colore[2]));
    }
    if (!casella(i).stella) continue;
    cmdcitta(i).SetTag("E");
    cmdcitta(i).SetPicture(stella_);
  }
  Picture1.SetFill(NumeroColore(Colore[1]));
  Picture2.SetFill(NumeroColore(Colore[2]));
  SetPicture(a_.immagini.DiSchermata("FormGirovia"));
  TracciaPercorso();
  for (int p : {1, 2}) {
    const auto ritratto = a_.immagini.LoadResPicture(Ritratto[p]);
    PicGiocatore(p).SetPicture(ritratto);
    cmdRitratto(p).SetPicture(ritratto);
    cmdRitratto(p).SetBackColor(NumeroColore(Colore[p]));
  }
  NuovaPartita();
  for (int p : {1, 2}) ScriviGruzzolo(p, Gruzzolo[p]);
  RefreshPrBar();
  Show();
  LblSorpresa.SetCaption("Le città con la stella sono città dell'Unione Europea.");
  TimerCitta.SetEnabled(true);
  TimerPrimo[1].SetEnabled(true);
  TimerPrimo[2].SetEnabled(true);
}

void FormGirovia::Form_Activate() { eventi::Form_Activate(); }

void FormGirovia::cmdRitratto_Click(int Index) { eventi::cmdRitratto_Click(Index); }

void FormGirovia::cmdcitta_Click(int Index) { eventi::cmdcitta_Click(Index); }

void FormGirovia::CmdHelp_Click() { eventi::CmdHelp_Click(); }

void FormGirovia::cmdExit_Click() { eventi::cmdExit_Click(); }

void FormGirovia::TimerSorpresa_Timer() { girovia::TimerSorpresa_Timer(); }

void FormGirovia::TimerCitta_Timer() {
  if (Pos[1] + Pos[2] == 0) {
    if (cmdcitta(0).place().width == 15)
      IngrandisciCasella(0);
    else
      RiduciCasella(0);
    return;
  }
  statoTabellone.FaseCitta = statoTabellone.FaseCitta == Falso ? Vero : Falso;
  for (int p : {1, 2}) {
    if (statoTabellone.FaseCitta != Falso)
      IngrandisciCasella(Pos[p]);
    else
      RiduciCasella(Pos[p]);
  }
}

// The two pulses differ: with the first portrait the word and the arrow show while it is small,
// with the second while it is large.
void FormGirovia::TimerPrimo_Timer(int Index) {
  const bool grande = cmdRitratto(Index).place().height == 56;
  const double x = Index == 1 ? 326 : 456;
  if (grande) {
    cmdRitratto(Index).Move({x, 528, 54, 54});
  } else {
    cmdRitratto(Index).Move({x - 1, 527, 56, 56});
  }
  (Index == 1 ? Picture1 : Picture2).SetBorderWidth(grande ? (Index == 1 ? 3 : 2) : 4);
  const bool parola = Index == 1 ? grande : !grande;
  LblClicca(Index).SetVisible(parola);
  ImgFreccia(Index).SetVisible(parola);
}

void FormGirovia::cmdcitta_MouseMove(int Index) {
  if (statoTabellone.UltimaEtichetta == Index && Label1(Index).visible()) return;
  Label1(statoTabellone.UltimaEtichetta).SetVisible(false);
  Label1(Index).SetVisible(true);
  statoTabellone.UltimaEtichetta = Index;
}

}  // namespace girovia
