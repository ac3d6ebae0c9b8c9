#include "core/premiazione.h"

#include "content/catalogo.h"
#include "content/testi.h"
#include "core/gruzzolo.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/sorteggi.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

enum Scelta { kTrofeo = 1, kPremio500, kRegalo50, kPremioSpeciale, kCongratulazioni, kEsci };

void ScriviGruzzoli() {
  for (int p = 1; p <= 2; ++p) servizi().tabellone->ScriviGruzzolo(p, Gruzzolo[p]);
}

void ApriCerimonia() {
  Tabellone& tabellone = *servizi().tabellone;
  Cerimonia& cerimonia = *servizi().cerimonia;
  cerimonia.SgombraTabellone();
  tabellone.Ridisegna();
  Pausa04();
  Giocatore = Vincitore();
  cerimonia.NascondiPercorso();
  for (int p = 1; p <= 2; ++p) tabellone.SvuotaGruzzolo(p);
  cerimonia.TingiTabellone();
  cerimonia.MostraCorona();
  cerimonia.MostraVincitore(Ritratto[Giocatore]);
  ScriviGruzzoli();
  cerimonia.SalvaSfondoPremio();
}

void DaiPremio500() {
  const int g = Giocatore;
  SuonoAsync("123");
  servizi().cerimonia->MostraBanconota500(g);
  Gruzzolo[g] += Euro::Interi(500);
  // Only the last 20 euro are counted up: all 500 would take too long.
  GruzzoloPrima[g] = Gruzzolo[g] - Euro::Interi(20);
  RicalcolaGruzzolo();
}

void Regala50() {
  const int perdente = 3 - Giocatore;
  SuonoAsync("123");
  servizi().cerimonia->MostraBanconota50(Giocatore);
  Gruzzolo[Giocatore] -= Euro::Interi(50);
  Gruzzolo[perdente] += Euro::Interi(50);
  ScriviGruzzoli();
  servizi().tabellone->Ridisegna();
}

void DaiPremioSpeciale(int& ultimo) {
  servizi().cerimonia->TogliPremioSpeciale();
  SuonoAsync("117");
  ultimo = SorteggioPremioSpeciale(ultimo);
  servizi().cerimonia->MostraPremioSpeciale(ultimo);
}

}  // namespace

int Vincitore() {
  if (Gruzzolo[1] != Gruzzolo[2]) return Gruzzolo[1] > Gruzzolo[2] ? 1 : 2;
  return Pos[1] > Pos[2] ? 1 : 2;
}

int SorteggioPremioSpeciale(int ultimo) {
  int numero;
  do {
    numero = Estrai(kNumeroPremi);
  } while (numero == ultimo);
  return numero;
}

void CerimoniaDiPremiazione() {
  ApriCerimonia();
  int ultimoPremio = 0;  // so that the first special prize is never number 0
  for (;;) {
    MostraModale(Schermata::FormPremiazione);
    switch (Risposta) {
      case kTrofeo:
        SuonoAsync("101");
        servizi().cerimonia->MostraTrofeo();
        break;
      case kPremio500:
        DaiPremio500();
        break;
      case kRegalo50:
        Regala50();
        break;
      case kPremioSpeciale:
        DaiPremioSpeciale(ultimoPremio);
        break;
      case kCongratulazioni:
        SuonoAsync("110");
        servizi().cerimonia->MostraCongratulazioni();
        break;
      case kEsci:
        Risposta = servizi().cerimonia->Chiedi("GIROVIA GRANDETAPPA", LoadResString(500));
        if (Risposta != kNo) return servizi().schermi->FineProgramma();
        break;
      default:
        break;
    }
  }
}

}  // namespace girovia
