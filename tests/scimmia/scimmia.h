// A monkey at the mouse and the keys.
#pragma once

#include <array>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "core/soldi.h"
#include "dimostrazione/automa.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"
#include "simulazione/controllore.h"

namespace girovia {

class Scimmia : private Caso {
 public:
  struct Opzioni {
    std::string cartella;
    unsigned seme = 1;
    int eventi = 20'000;  // after which it is tired, and closes the window
    platform::PixelSize finestra = {800, 600};
    int scala = 1;
    // Of a hundred times that it does something, how often that is what somebody would do who
    // knows the game: without it hardly any game would come to its end.
    int giudizio = 25;
  };

  explicit Scimmia(const Opzioni& opzioni);

  // One game. What it found wrong, or nothing.
  std::string Gioca();
  int eventi() const { return fatti_; }
  bool finita() const { return cerimonia_; }  // up to the award ceremony

 private:
  // A turn may be told in several ways, and one of them must come out right.
  struct Ipotesi {
    simulazione::Conti conti;
    simulazione::Controllore controllore{conti};
  };
  static constexpr int kIpotesi = 6;  // pays at an overlap or not; gives up, wins, loses

  double Rnd() override { return double(generatore_()) / 4294967296.0; }
  int A(int n) { return int(Rnd() * n); }

  void Inattiva();
  void Tocca();
  void ToccaQualcosa(platform::MouseButton bottone);
  void Batti();
  void Controlla();
  void Davanti(const platform::Form& form);
  void FineTurno(bool finita);
  template <class Fai>
  void Ovunque(Fai fai) {
    for (int i = 0; i < int(turno_.size()); ++i) fai(turno_[std::size_t(i)].controllore, i % 2);
  }
  void Pretendi(bool vero, const std::string& cosa) {
    if (!vero && guasto_.empty()) guasto_ = cosa;
  }

  Opzioni opzioni_;
  int fatti_ = 0;
  bool cerimonia_ = false;
  std::string guasto_;
  std::array<Euro, 3> gruzzoli_;  // when the board last waited
  std::vector<Ipotesi> turno_;    // empty while nobody throws
  std::mt19937 generatore_;
  platform::HeadlessHost host_;
  Gioco gioco_;
  Automa automa_;
};

}  // namespace girovia
