#include "core/stato.h"

#include <charconv>

#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

StatoTabellone statoTabellone;

namespace {

void AzzeraGiocatori() {
  using namespace mod_Girovia;
  Giocatore = 0;
  for (int p = 0; p < 3; ++p) {
    Pos[p] = 0;
    Gruzzolo[p] = GruzzoloPrima[p] = Euro();
    Nome[p].clear();
    Colore[p].clear();
    Ritratto[p] = 0;
  }
}

void AzzeraConsegna() {
  using namespace mod_Girovia;
  using namespace mod_Messaggi;
  Dado = Sorpresa = CittaCliccata = 0;
  Premio = Euro();
  ArrivoRaggiunto = RitornoProva = RitornoCitta = SorpresaAperta = Falso;
  UscitaDaSplash = InfoDaPartita = Falso;
  Messaggio.clear();
  ColoreCornice.clear();
  Risposta = RispostaEsatta = 0;
  IndiceCarte2 = IndiceCarte4 = IndiceProvaCitta = 0;
  IndiceProvaCapitali = IndiceImprevisto = IndiceOrdinamento = 0;
}

void AzzeraSorteggi() {
  using namespace mod_Messaggi;
  UsatiImprevisti.fill(Falso);
  UsatiOrdinamento.fill(Falso);
  UsatiCarte4.fill(Falso);
  UsatiProvaCitta.fill(Falso);
  UsatiProvaCapitali.fill(Falso);
  ContaImprevisti = ContaOrdinamento = ContaCarte4 = ContaProvaCitta = ContaProvaCapitali = 0;
}

}  // namespace

void AzzeraStato() {
  AzzeraGiocatori();
  AzzeraConsegna();
  AzzeraSorteggi();
  statoTabellone = {};
}

void NuovaPartita() {
  Tabellone& tabellone = *servizi().tabellone;
  for (int p = 1; p <= 2; ++p) {
    mod_Girovia::Gruzzolo[p] = Euro::Interi(10);
    mod_Girovia::Pos[p] = 0;
    statoTabellone.PosPrecedente[p] = 0;
    tabellone.ScriviGruzzolo(p, mod_Girovia::Gruzzolo[p]);
  }
  tabellone.RefreshPrBar();
}

int ValoreColore(const std::string& colore) {
  int valore = 0;
  std::from_chars(colore.data(), colore.data() + colore.size(), valore);
  return valore;
}

}  // namespace girovia
