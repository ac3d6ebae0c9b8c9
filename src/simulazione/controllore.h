// Watches a game from outside and counts what its rules must never do.
#pragma once

#include <array>
#include <bitset>
#include <string_view>

#include "core/soldi.h"
#include "simulazione/conti.h"

namespace girovia::simulazione {

class Controllore {
 public:
  explicit Controllore(Conti& conti) : conti_(conti) {}

  void InizioPartita();
  void InizioTurno();

  // What should move the player in turn and his purse.
  void Dadi();
  void Sovrapposizione(bool paga);
  void Vinta(Euro premio);
  void Persa();  // back where he threw from, without the dice's money

  // A screen that shows an entry of a pool has been opened.
  void Estratto(Urna urna);

  void PrimaDellaCarta();
  // A parcel was opened: what it said, and the purse before it.
  void Dono(std::string_view testo, Euro prima);
  void FineTurno(bool finita);
  void SenzaFine() { Viola(Regola::Fine); }

 private:
  void Viola(Regola regola) { ++conti_.violazioni[static_cast<std::size_t>(regola)]; }
  void ControllaGruzzoli();
  void ControllaCarta();
  void ControllaVolo();

  Conti& conti_;
  Euro attesi_[3];
  int caselle_[3] = {};
  int partenza_ = 0;
  int giocatore_ = 0;
  bool carta_ = false;
  std::array<std::bitset<100>, kUrne> visti_;
};

}  // namespace girovia::simulazione
