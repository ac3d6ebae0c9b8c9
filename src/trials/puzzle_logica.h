// The puzzle trial: a picture cut into twelve tiles, four by three.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "comune/segni_tempo.h"
#include "core/interfacce.h"
#include "trials/griglia.h"

namespace girovia {

class ProvaPuzzle {
 public:
  using Misura = float;
  static constexpr int kCelle = 12;
  static constexpr int kLato = 120;
  static constexpr int kLarghezzaTassello = kLato;
  static constexpr int kAltezzaTassello = kLato;

  explicit ProvaPuzzle(Caso& caso) : griglia_(Distribuisci(caso)) {}
  explicit ProvaPuzzle(const std::array<int, 12>& tasselli) : griglia_(tasselli) {}

  // Each draw is rounded and not cut off, so the first and the last tile come up half as often.
  // The arrangement may be the solved one.
  static std::array<int, 12> Distribuisci(Caso& caso);

  // Top left corner of a cell on the picture.
  static int LeftCella(int cella) { return kLato * (cella % 4); }
  static int TopCella(int cella) { return kLato * (cella / 4); }

  int tassello(int cella) const { return griglia_.tassello(cella); }
  bool in_mano() const { return griglia_.in_mano(); }
  int partenza() const { return griglia_.partenza(); }

  // Left press at (x, y) of a cell. False if nothing is lifted.
  bool Solleva(int cella, float x, float y);

  // The pointer is at (x, y) of the lifted tile.
  void Trascina(float x, float y);

  // Left and top of the lifted tile on the picture.
  float x() const { return x_; }
  float y() const { return y_; }

  // `larghezza` and `altezza` are those of the picture box, its border included.
  Recinto recinto(int larghezza, int altezza) const;

  // A tile must be in the hand.
  Posata Posa() { return griglia_.Posa(CellaSotto()); }

 private:
  int CellaSotto() const;

  Griglia<12> griglia_;
  float x_ = 0, y_ = 0;
  float presa_x_ = 0, presa_y_ = 0;
};

BarraTempo BarraPuzzle(int scatti);
PostoBottone BottonePuzzle(int scatti);

struct TestiPuzzle {
  int figura;  // number of the jpeg
  std::string titolo;
  std::string info;
};

// `messaggio` says what a failure costs.
TestiPuzzle TestiDelPuzzle(bool prova_finale, int casella, std::string_view messaggio);

}  // namespace girovia
