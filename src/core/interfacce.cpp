#include "core/interfacce.h"

namespace girovia {
namespace {

Tabellone nessunTabellone;
Comandi nessunComando;
Cerimonia nessunaCerimonia;
Schermi nessunoSchermo;
Suoni nessunSuono;
Attese nessunaAttesa;
Servizi correnti;

}  // namespace

Servizi::Servizi()
    : tabellone(&nessunTabellone),
      comandi(&nessunComando),
      cerimonia(&nessunaCerimonia),
      schermi(&nessunoSchermo),
      suoni(&nessunSuono),
      attese(&nessunaAttesa) {}

Servizi& servizi() { return correnti; }

int Estrai(int n) { return static_cast<int>(correnti.caso->Rnd() * n); }

void SuonoAsync(std::string_view nome) { correnti.suoni->SuonoAsync(nome); }
void SuonoSync(std::string_view nome) { correnti.suoni->SuonoSync(nome); }
void Pausa04() { correnti.attese->Pausa04(); }

}  // namespace girovia
