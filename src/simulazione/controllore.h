// Watches a game from outside and counts what its rules must never do.
#pragma once

#include <array>
#include <bitset>

#include "core/soldi.h"
#include "simulazione/conti.h"

namespace girovia::simulazione {

class Controllore {
 public:
  explicit Controllore(Conti& conti) : conti_(conti) {}

  void InizioPartita();
  void InizioTurno();

  // What should move the purse of the player in turn.
  void Attende(Euro importo);

  // A screen that shows an entry of a pool has been opened.
  void Estratto(Urna urna);

  void PrimaDellaCarta();
  void FineTurno(bool finita);
  void SenzaFine() { Viola(Regola::Fine); }

 private:
  void Viola(Regola regola) { ++conti_.violazioni[static_cast<std::size_t>(regola)]; }
  void ControllaGruzzoli();
  void ControllaCarta();

  Conti& conti_;
  Euro attesi_[3];
  int giocatore_ = 0;
  bool carta_ = false;
  Euro primaDellaCarta_;
  std::array<std::bitset<100>, kUrne> visti_;
};

}  // namespace girovia::simulazione
