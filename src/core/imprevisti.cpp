#include "core/imprevisti.h"

#include <array>
#include <string_view>
#include <utility>

#include "content/atlante.h"
#include "content/testi.h"
#include "core/gruzzolo.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/nomi.h"
#include "core/stato.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

enum class Effetto { Importi, Pareggia, Scambia, Interessi, Tassa, Solidarieta, AncoraDado, Volo };

// A column is spelled in letters: S the card's own text, 1 and 2 the players' names, G the name of
// the player in turn, R and P the names of the richer and the poorer one, V the flight, and a full
// stop.
struct Carta {
  const char* sinistra;
  const char* destra;
  Effetto effetto = Effetto::Importi;
  Euro uno{}, due{}, turno{};  // what player 1, player 2 and the player in turn receive
};

constexpr Euro operator""_euro(unsigned long long euro) {
  return Euro::Interi(static_cast<std::int64_t>(euro));
}

constexpr Carta Festa(Euro euro) { return {"S", "GS", Effetto::Importi, {}, {}, euro}; }
constexpr Carta OgnunoPaga(Euro euro) { return {"S", "S", Effetto::Importi, -euro, -euro, {}}; }

constexpr Carta kCompleanno1{"S1.", "2S", Effetto::Importi, 5_euro, -5_euro, {}};
constexpr Carta kCompleanno2{"S2.", "1S", Effetto::Importi, -5_euro, 5_euro, {}};
constexpr Carta kGesto{"RS", "SP.", Effetto::Pareggia};
constexpr Carta kScambio{"S", "S", Effetto::Scambia};
constexpr Carta kInteressi{"S", "S", Effetto::Interessi};
constexpr Carta kTassa{"S", "S", Effetto::Tassa};
constexpr Carta kSolidarieta{"S", "RSP.", Effetto::Solidarieta};
constexpr Carta kAncoraDado{"GS", "S", Effetto::AncoraDado, {}, {}, 5_euro};
constexpr Carta kVolo{"S", "GSV.", Effetto::Volo};
constexpr Carta kCartaPersa1{"1S", "S", Effetto::Importi, -10_euro, {}, {}};
constexpr Carta kCartaPersa2{"2S", "S", Effetto::Importi, {}, -10_euro, {}};
constexpr Carta kStampa{"S", "SG.", Effetto::Importi, {}, {}, 10_euro};

constexpr std::array<Carta, 31> kMazzo = {
    kCompleanno1,                      // 0
    kCompleanno2,                      // 1
    kGesto,                            // 2
    kGesto,                            // 3
    kScambio,                          // 4
    kInteressi,                        // 5
    kTassa,                            // 6
    OgnunoPaga(Euro::Centesimi(450)),  // 7
    kSolidarieta,                      // 8
    kSolidarieta,                      // 9
    kAncoraDado,                       // 10
    kAncoraDado,                       // 11
    kAncoraDado,                       // 12
    kAncoraDado,                       // 13
    kVolo,                             // 14
    kVolo,                             // 15
    kVolo,                             // 16
    kVolo,                             // 17
    kVolo,                             // 18
    kVolo,                             // 19
    kCartaPersa1,                      // 20
    kCartaPersa2,                      // 21
    Festa(9_euro),                     // 22 France
    Festa(8_euro),                     // 23 Spain
    Festa(8_euro),                     // 24 United Kingdom
    Festa(9_euro),                     // 25 Germany
    Festa(5_euro),                     // 26 Ukraine: one less than its squares on the route
    Festa(5_euro),                     // 27 Poland
    Festa(7_euro),                     // 28 Italy
    kStampa,                           // 29
    OgnunoPaga(10_euro),               // 30
};

const Carta& CartaCorrente() { return kMazzo[mod_Messaggi::IndiceImprevisto]; }

// With equal purses player 2 counts as the richer.
int PiuRicco() { return Gruzzolo[1] > Gruzzolo[2] ? 1 : 2; }

// Moves the player in turn six squares, one more where the other player stands. Squares near the
// ends of the route leave only one way. True for a flight onwards.
bool Vola() {
  int avanti = Estrai(2);
  if (Pos[Giocatore] > 91) avanti = 0;
  if (Pos[Giocatore] < 8) avanti = 1;
  const int passo = avanti == 1 ? 1 : -1;
  Pos[Giocatore] += 6 * passo;
  if (Pos[1] == Pos[2]) Pos[Giocatore] += passo;
  return avanti == 1;
}

struct Ruoli {
  int ricco;
  bool avanti;
};

std::string Colonna(const char* lettere, std::string_view frase, const Ruoli& ruoli) {
  std::string testo;
  for (; *lettere != '\0'; ++lettere) {
    switch (*lettere) {
      case 'S':
        testo += frase;
        break;
      case '1':
        testo += Nome[1];
        break;
      case '2':
        testo += Nome[2];
        break;
      case 'G':
        testo += Nome[Giocatore];
        break;
      case 'R':
        testo += Nome[ruoli.ricco];
        break;
      case 'P':
        testo += Nome[3 - ruoli.ricco];
        break;
      case 'V':
        testo += ruoli.avanti ? " andare a " : " tornare a ";
        testo += NomeCasella(Pos[Giocatore]);
        break;
      default:
        testo += *lettere;
    }
  }
  return testo;
}

// A share of a purse, which need not be a whole number of ten-thousandths.
Euro Quota(Euro gruzzolo, int divisore) { return Euro::DaDouble(gruzzolo.ADouble() / divisore); }

void AggiornaTabellone() {
  Tabellone& tabellone = *servizi().tabellone;
  const int g = Giocatore;
  const int da = statoTabellone.PosPrecedente[g];
  const int a = Pos[g];
  tabellone.RiduciCasella(da);
  tabellone.LiberaCasella(da);
  for (int i = da + 1; i <= a; ++i) {
    tabellone.MostraTratto(g, i);
    Pausa04();
  }
  for (int i = da; i > a; --i) {
    tabellone.NascondiTratto(g, i);
    tabellone.Ridisegna();
    Pausa04();
  }
  tabellone.RefreshPrBar();
  tabellone.ColoraCasella(a, ValoreColore(Colore[g]));
  tabellone.IngrandisciCasella(a);
  tabellone.Ridisegna();
  statoTabellone.PosPrecedente[g] = a;
}

void Applica(const Carta& carta) {
  Gruzzolo[1] += carta.uno;
  Gruzzolo[2] += carta.due;
  Gruzzolo[Giocatore] += carta.turno;
  switch (carta.effetto) {
    case Effetto::Pareggia:
      Gruzzolo[1] = Gruzzolo[2] = Quota(Gruzzolo[1] + Gruzzolo[2], 2);
      break;
    case Effetto::Scambia:
      std::swap(Gruzzolo[1], Gruzzolo[2]);
      RicalcolaGruzzolo();
      break;
    case Effetto::Interessi:
      for (int p = 1; p <= 2; ++p) Gruzzolo[p] += Quota(Gruzzolo[p], 20);
      break;
    case Effetto::Tassa:
      for (int p = 1; p <= 2; ++p) Gruzzolo[p] -= Quota(Gruzzolo[p], 10);
      break;
    case Effetto::AncoraDado:
      // The passing of the turn adds one and so brings the same player back.
      Sorpresa = 4;
      --Giocatore;
      break;
    case Effetto::Volo:
      AggiornaTabellone();
      break;
    case Effetto::Importi:
    case Effetto::Solidarieta:
      break;
  }
}

}  // namespace

PaginaImprevisto CaricaImprevisto() {
  const Carta& carta = CartaCorrente();
  const int testi = 1000 + 3 * mod_Messaggi::IndiceImprevisto;
  Ruoli ruoli{PiuRicco(), false};
  if (carta.effetto == Effetto::Solidarieta) {
    Gruzzolo[ruoli.ricco] -= 5_euro;
    Gruzzolo[3 - ruoli.ricco] += 5_euro;
  }
  if (carta.effetto == Effetto::Volo) ruoli.avanti = Vola();
  return {Maiuscole(LoadResString(testi)), Colonna(carta.sinistra, LoadResString(testi + 1), ruoli),
          Colonna(carta.destra, LoadResString(testi + 2), ruoli), carta.effetto == Effetto::Volo};
}

void GestioneImprevisti() {
  Applica(CartaCorrente());
  GruzzoloPrima[1] = Gruzzolo[1];
  GruzzoloPrima[2] = Gruzzolo[2];
  SuonoAsync("123");
  for (int p = 1; p <= 2; ++p) servizi().tabellone->ScriviGruzzolo(p, Gruzzolo[p]);
  ColoraGruzzoli();
}

}  // namespace girovia
