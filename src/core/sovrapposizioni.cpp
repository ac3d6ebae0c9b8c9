#include "core/sovrapposizioni.h"

#include <string>

#include "content/atlante.h"
#include "core/gruzzolo.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/sorteggi.h"
#include "core/stato.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

void PagaEAvanza(int g) {
  Tabellone& tabellone = *servizi().tabellone;
  Gruzzolo[g] -= Euro::Interi(kPedaggio);
  RicalcolaGruzzolo();
  ++Pos[g];
  tabellone.MostraTratto(g, Pos[g]);
  tabellone.RefreshPrBar();
  if (Pos[g] >= kUltimaCasella) ArrivoRaggiunto = Vero;
}

void Arretra(int g) {
  Tabellone& tabellone = *servizi().tabellone;
  Pausa04();
  tabellone.NascondiTratto(g, Pos[g]);
  --Pos[g];
  tabellone.RefreshPrBar();
}

}  // namespace

void GestioneSovrapposizioni() {
  Tabellone& tabellone = *servizi().tabellone;
  const int g = Giocatore;
  Messaggio.assign(NomeCasella(Pos[g])).append(" è già occupata.").append(kACapo);
  Messaggio += "Cosa vuoi fare?";
  std::string avanti = "Pago " + std::to_string(kPedaggio) + " euro e vado a ";
  std::string indietro = "Non pago niente e torno a ";
  avanti += NomeCasella(Pos[g] + 1);
  indietro += NomeCasella(Pos[g] - 1);
  servizi().schermi->PreparaSovrapposizioni(avanti, indietro);
  MostraModaleColore(Schermata::FormSovrapposizioni, Colore[g]);
  if (Risposta == 1) PagaEAvanza(g);
  if (Risposta == 2) Arretra(g);
  tabellone.Ridisegna();
}

void Perdita() {
  Tabellone& tabellone = *servizi().tabellone;
  const int g = Giocatore;
  const int indietro = statoTabellone.PosPrecedente[g];
  SuonoAsync("124");
  for (int i = 0; i < 3; ++i) Pausa04();
  for (int i = Pos[g]; i > indietro; --i) tabellone.NascondiTratto(g, i);
  tabellone.Ridisegna();
  tabellone.LiberaCasella(Pos[g]);
  tabellone.RiduciCasella(Pos[g]);
  Pos[g] = indietro;
  tabellone.ColoraCasella(Pos[g], ValoreColore(Colore[g]));
  tabellone.IngrandisciCasella(Pos[g]);
  tabellone.RefreshPrBar();
  tabellone.Ridisegna();
  Gruzzolo[g] -= Euro::Interi(Dado);
  RicalcolaGruzzolo();
}

}  // namespace girovia
