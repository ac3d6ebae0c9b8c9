#include "core/tabellone.h"

#include "content/testi.h"
#include "core/gruzzolo.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/sorteggi.h"
#include "core/stato.h"
#include "core/turno.h"

namespace girovia::tabellone {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

// A blink that has counted this far ends at the next tick.
constexpr int kFineLampeggio = 30;

void SgombraRitratti(Tabellone& board) {
  board.NascondiRitratti();
  board.NascondiAnnuncio();
  statoTabellone.ContaLampeggi = kFineLampeggio;
}

}  // namespace

void Form_Activate() {
  if (RitornoProva == Vero) {
    RitornoProva = Falso;
    return;
  }
  if (Giocatore == 0) return;
  if (RitornoCitta == Vero) {
    RitornoCitta = Falso;
    if (SorpresaAperta == Vero) {
      SorpresaAperta = Falso;
      RicalcolaGruzzolo();
    }
    return;
  }
  AggiornaPosizioniSulPercorso();
}

void cmdRitratto_Click(int indice) {
  Tabellone& board = *servizi().tabellone;
  Giocatore = indice;
  board.SpegniTimer();
  statoTabellone.TurnoInCorso = Vero;
  board.NascondiAiuto();
  board.NascondiUscita();
  board.RiposaRitratti();
  SgombraRitratti(board);
  // The start keeps the size at which its pulse stopped.
  for (int p = 1; p <= 2; ++p) {
    if (Pos[p] > 0) board.RiduciCasella(Pos[p]);
  }
  board.Ridisegna();
  servizi().schermi->MostraNonModale(Schermata::Dadi);
}

void cmdcitta_Click(int indice) {
  if (statoTabellone.TurnoInCorso == Vero) return;
  Tabellone& board = *servizi().tabellone;
  board.EseguiEventi();
  if (statoTabellone.TurnoInCorso == Vero) return;  // one of those events was a throw
  SuonoAsync("104");
  board.SpegniTimer();
  board.NascondiAiuto();
  board.NascondiUscita();
  SgombraRitratti(board);
  board.RiduciCasella(Pos[1]);
  board.RiduciCasella(Pos[2]);
  board.Ridisegna();
  CittaCliccata = indice;
  MostraModale(Schermata::FormCitta);
  board.AttivaTurno(Giocatore);
}

void CmdHelp_Click() {
  servizi().tabellone->NascondiAiuto();
  servizi().tabellone->NascondiUscita();
  InfoDaPartita = Vero;
  MostraModale(Schermata::FormInfo);
}

void cmdExit_Click() {
  Messaggio = LoadResString(500);
  MostraModale(Schermata::FormMessaggi);
  if (Risposta == 1) {
    servizi().schermi->FineProgramma();
  } else {
    servizi().tabellone->MostraUscita();
  }
}

}  // namespace girovia::tabellone
