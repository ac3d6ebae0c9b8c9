#include "core/eventi.h"

#include "content/testi.h"
#include "core/gruzzolo.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/sorteggi.h"
#include "core/stato.h"
#include "core/turno.h"

namespace girovia::eventi {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

void SgombraRitratti(Comandi& comandi) {
  comandi.NascondiRitratti();
  comandi.NascondiAnnuncio();
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
  Comandi& comandi = *servizi().comandi;
  Giocatore = indice;
  comandi.SpegniTimer();
  statoTabellone.TurnoInCorso = Vero;
  comandi.NascondiAiuto();
  comandi.NascondiUscita();
  comandi.RiposaRitratti();
  SgombraRitratti(comandi);
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
  Comandi& comandi = *servizi().comandi;
  comandi.EseguiEventi();
  if (statoTabellone.TurnoInCorso == Vero) return;  // one of those events was a throw
  SuonoAsync("104");
  comandi.SpegniTimer();
  comandi.NascondiAiuto();
  comandi.NascondiUscita();
  SgombraRitratti(comandi);
  board.RiduciCasella(Pos[1]);
  board.RiduciCasella(Pos[2]);
  board.Ridisegna();
  CittaCliccata = indice;
  MostraModale(Schermata::FormCitta);
  board.AttivaTurno(Giocatore);
}

void CmdHelp_Click() {
  servizi().comandi->NascondiAiuto();
  servizi().comandi->NascondiUscita();
  InfoDaPartita = Vero;
  MostraModale(Schermata::FormInfo);
}

void cmdExit_Click() {
  Messaggio = LoadResString(500);
  MostraModale(Schermata::FormMessaggi);
  if (Risposta == 1) {
    servizi().schermi->FineProgramma();
  } else {
    servizi().comandi->MostraUscita();
  }
}

}  // namespace girovia::eventi
