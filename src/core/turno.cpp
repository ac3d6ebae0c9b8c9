#include "core/turno.h"

#include <string>

#include "content/atlante.h"
#include "content/testi.h"
#include "core/gruzzolo.h"
#include "core/imprevisti.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/premiazione.h"
#include "core/sorprese.h"
#include "core/sorteggi.h"
#include "core/sovrapposizioni.h"
#include "core/stato.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

void MostraDenaroDelDado() {
  Messaggio.assign(LoadResString(504)).append(std::to_string(Dado)).append(LoadResString(505));
  MostraModale(Schermata::FormBanconote);
}

void Muovi() {
  Tabellone& tabellone = *servizi().tabellone;
  const int g = Giocatore;
  int& precedente = statoTabellone.PosPrecedente[g];
  tabellone.RiduciCasella(precedente);
  precedente = Pos[g];
  Pos[g] += Dado;
  if (Pos[g] >= kUltimaCasella) {
    Pos[g] = kUltimaCasella;
    ArrivoRaggiunto = Vero;
  }
  GruzzoloPrima[g] = Gruzzolo[g];
  Gruzzolo[g] += Euro::Interi(Dado);
  RicalcolaGruzzolo();
  tabellone.RefreshPrBar();
  for (int i = precedente + 1; i <= Pos[g]; ++i) {
    tabellone.MostraTratto(g, i);
    SuonoAsync("116");
    Pausa04();
  }
  if (Pos[1] == Pos[2]) GestioneSovrapposizioni();
  tabellone.ColoraCasella(Pos[g], ValoreColore(Colore[g]));
  // Turns free even where the other player stands on it.
  tabellone.LiberaCasella(precedente);
}

// What failing costs. Only A takes "ad" here, and the text with "ad" lacks the word euro.
void ScriviCosto(int inizio) {
  const std::string_view citta = NomeCasella(statoTabellone.PosPrecedente[Giocatore]);
  Messaggio.assign(LoadResString(inizio)).append(std::to_string(Dado));
  Messaggio.append(LoadResString(citta.starts_with('A') ? 507 : 503)).append(citta);
}

enum class Fine { A, B };

void IncassaPremio() {
  Gruzzolo[Giocatore] += Premio;
  RicalcolaGruzzolo();
}

Fine Vinta() {
  IncassaPremio();
  Pausa04();
  return Fine::B;
}

Fine Persa() {
  Perdita();
  return Fine::B;
}

Fine RegolaProva() {
  if (Risposta == 0) return Fine::A;
  return Risposta == 1 ? Vinta() : Persa();
}

Fine RegolaProvaConBonus() {
  if (Risposta == 1) {
    MostraModale(Schermata::FormBonus);
    return Vinta();
  }
  return RegolaProva();
}

Fine Ordinamento() {
  SorteggioOrdinamento(Schermata::FormProvaOrdinamento);
  return RegolaProva();
}

Fine Puzzle() {
  MostraModale(Schermata::FormProvaPuzzle);
  if (Risposta == 1) {
    IncassaPremio();
    return Fine::B;
  }
  // Giving up is free on the way, but not on the last square.
  const bool finale = ArrivoRaggiunto == Vero;
  ArrivoRaggiunto = Falso;
  if (Risposta != 0) return Persa();
  if (finale) Perdita();
  return Fine::A;
}

Fine Imprevisto() {
  const int g = Giocatore;
  Gruzzolo[g] -= Euro::Interi(1);
  RicalcolaGruzzolo();
  Pausa04();
  SuonoAsync("120");
  statoTabellone.PosPrecedente[g] = Pos[g];
  SorteggioImprevisto(Schermata::FormImprevisti);
  GestioneImprevisti();
  return Fine::B;
}

Fine TrovaCitta() {
  ScriviCosto(502);
  SorteggioProvaCitta(Schermata::FormProvaCitta);
  return RegolaProvaConBonus();
}

Fine TrovaCapitale() {
  ScriviCosto(502);
  SorteggioProvaCapitali(Schermata::FormProvaCapitali);
  return RegolaProvaConBonus();
}

Fine CartaDiFoto() {
  ScriviCosto(502);
  MostraModale(Schermata::FormRotazioneCarta);
  SorteggioCarte4(Schermata::FormCarte4Items);
  return RegolaProva();
}

Fine VeroOFalso() {
  ScriviCosto(502);
  MostraModale(Schermata::FormRotazioneCarta);
  MostraCarte2(Schermata::FormCarte2Items);
  if (Risposta == 0) return Fine::A;
  if (Risposta != RispostaEsatta) return Persa();
  SuonoAsync("106");
  Pausa04();
  Pausa04();
  return Vinta();
}

// The nine outcomes of a move, each with the same chance.
constexpr Fine (*kEsiti[])() = {
    Ordinamento, Puzzle,      Imprevisto, TrovaCitta, TrovaCapitale,
    CartaDiFoto, CartaDiFoto, VeroOFalso, VeroOFalso,
};
constexpr int kEsitoPuzzle = 1;

void PassaTurno() {
  if (++Giocatore > 2) Giocatore = 1;
  servizi().tabellone->AttivaTurno(Giocatore);
  statoTabellone.TurnoInCorso = Falso;
}

void CercaSorpresa() {
  if (Pos[Giocatore] > 0) ProceduraSorpresa();
}

void FineA() {
  SuonoAsync("116");
  PassaTurno();
  CercaSorpresa();
}

void FineB() {
  if (ArrivoRaggiunto == Vero) {
    ArrivoRaggiunto = Falso;
    CerimoniaDiPremiazione();
    return;
  }
  PassaTurno();
  if (Sorpresa == 4) {
    Sorpresa = 0;  // the same player throws again: no surprise before that
    return;
  }
  CercaSorpresa();
}

}  // namespace

void AggiornaPosizioniSulPercorso() {
  ColoreCornice = Colore[Giocatore];
  MostraDenaroDelDado();
  Muovi();
  ScriviCosto(510);
  int esito = Estrai(std::size(kEsiti));
  if (ArrivoRaggiunto == Vero) esito = kEsitoPuzzle;
  if (kEsiti[esito]() == Fine::A) {
    FineA();
  } else {
    FineB();
  }
}

}  // namespace girovia
