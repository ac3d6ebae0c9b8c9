#include "core/sorprese.h"

#include <string>

#include "content/atlante.h"
#include "content/testi.h"
#include "core/frasi.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/stato.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

struct Sorte {
  std::string_view testo;
  int euro;
};

constexpr Sorte kSorti[] = {
    {"Ti è arrivata una ricarica telefonica dall'Italia: 5 €.", 5},
    {"Ti è arrivato un bonifico dall'Italia, con MoneyGram: 10 €.", 10},
    {"L'hotel dove alloggi ti offre un buono-spesa di 6 €.", 6},
    {"La visita guidata della città con un bus turistico ti costa 5 €.", -5},
    {"Hai inviato qualche cartolina ai parenti. Spesa: 4 €.", -4},
    {"Visita al museo della città: il biglietto ti costa 3 €.", -3},
    {"Ti è arrivata una ricarica telefonica dall'Italia: 10 €.", 10},
    {"Una telefonata alla famiglia in Italia ti costa 2 €.", -2},
    {"L'hotel dove alloggi ti offre un buono-spesa di 12 €.", 12},
};

}  // namespace

void ProceduraSorpresa() {
  Sorpresa = Estrai(3);
  if (Sorpresa != 1) return;
  Tabellone& tabellone = *servizi().tabellone;
  SuonoAsync("231");
  statoTabellone.ContaLampeggi = 0;
  tabellone.AvviaLampeggio();
  const std::string_view citta = NomeCasella(Pos[Giocatore]);
  std::string testo = Nome[Giocatore];
  testo.append(",").append(kACapo).append("c'è una sorpresa per te ");
  testo.append(VuoleAd(citta) ? "ad " : "a ").append(citta);
  tabellone.ScriviAnnuncio(testo);
}

void TimerSorpresa_Timer() {
  Tabellone& tabellone = *servizi().tabellone;
  if (++statoTabellone.ContaLampeggi >= kFineLampeggio) {
    tabellone.FermaLampeggio();
    servizi().comandi->NascondiAnnuncio();
  } else {
    tabellone.ScambiaAnnuncio();
  }
}

PaginaCitta CaricaCitta() {
  if (Giocatore == 0) Giocatore = 1;
  if (CittaCliccata != Pos[Giocatore]) Sorpresa = 0;
  if (Sorpresa != 1) return {false, LoadResString(400 + CittaCliccata)};
  Sorpresa = 0;
  return {true, "Per vedere la sorpresa clicca il pacco regalo."};
}

std::string_view ApriSorpresa() {
  SuonoAsync("117");
  const Sorte& sorte = kSorti[Estrai(std::size(kSorti))];
  Gruzzolo[Giocatore] += Euro::Interi(sorte.euro);
  SorpresaAperta = Vero;
  return sorte.testo;
}

}  // namespace girovia
