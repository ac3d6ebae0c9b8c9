#include "effects/dadi_logica.h"

#include <algorithm>
#include <utility>

namespace girovia {
namespace {

constexpr std::string_view kRimbalzo = "118";
constexpr std::string_view kCaduta = "230";
// The frame at which the dice reach the right edge on the last leg; higher values roll back from
// there.
constexpr int kFotogrammaAlBordo = 8;

struct Avanzamento {
  std::optional<int> fotogramma;  // none: this die stands still
  int dy = 0;
};

// Writes down the steps while it rolls the dice.
class Rullo {
 public:
  Rullo(int x, int y1, int y2) : x_(x), y_{y1, y2} {}

  void Suona(std::string_view suono) { suono_ = suono; }
  void Avanti(const Avanzamento& primo, const Avanzamento& secondo) {
    Passo({primo, secondo}, x_ - kLarghezzaDado, x_);
    x_ += kLarghezzaDado;
  }
  void Indietro(const Avanzamento& primo, const Avanzamento& secondo) {
    Passo({primo, secondo}, x_, x_ - kLarghezzaDado);
    x_ -= kLarghezzaDado;
  }
  // x runs a cell ahead of the dice on the way out; turning takes that back.
  void VoltaASinistra() { x_ -= kLarghezzaDado; }
  void VoltaADestra() { x_ += kLarghezzaDado; }

  std::vector<PassoDadi> Passi() { return std::move(passi_); }

 private:
  void Passo(const std::array<Avanzamento, 2>& dadi, int vecchia_x, int nuova_x) {
    PassoDadi passo{.suono = std::exchange(suono_, {}), .dadi = {}};
    for (std::size_t d = 0; d < dadi.size(); ++d) {
      if (!dadi[d].fotogramma) continue;
      const int vecchia_y = y_[d];
      y_[d] += dadi[d].dy;
      passo.dadi[d] = MossaDado{*dadi[d].fotogramma, vecchia_x, vecchia_y, nuova_x, y_[d]};
    }
    passi_.push_back(passo);
  }

  int x_;
  std::array<int, 2> y_;
  std::string_view suono_;
  std::vector<PassoDadi> passi_;
};

}  // namespace

int TiraDado(Caso& caso) { return static_cast<int>(6 * caso.Rnd() + 1); }

std::vector<PassoDadi> PercorsoIniziale() {
  Rullo rullo(-82, 0, 120);
  rullo.Suona(kRimbalzo);
  for (int f = 0; f <= 8; ++f) rullo.Avanti({f, 0}, {11 - f, 10});
  rullo.VoltaASinistra();
  rullo.Suona(kRimbalzo);
  for (int f = 11; f >= 4; --f) rullo.Indietro({11 - f, 5}, {f, 10});
  return rullo.Passi();
}

std::vector<PassoDadi> PercorsoFinale(int d1, int d2) {
  const int minimo = FotogrammaDelValore(std::min(d1, d2));
  const int massimo = FotogrammaDelValore(std::max(d1, d2));
  const bool lontani = minimo > kFotogrammaAlBordo;  // both roll back from the edge

  // Where the first part leaves the dice.
  Rullo rullo(-82, 40, 290);
  rullo.VoltaADestra();
  rullo.Suona(kRimbalzo);
  for (int f = 1; f <= massimo; ++f) {
    const bool indietro = f > kFotogrammaAlBordo;
    if (f == kFotogrammaAlBordo + 1) {
      rullo.VoltaASinistra();
      rullo.Suona(kCaduta);
    }
    Avanzamento primo, secondo;
    if (f <= minimo) {
      primo = {lontani && !indietro ? 12 - f : f, indietro ? 5 : lontani ? 15 : 8};
      secondo = {f, indietro ? 5 : 10};
    } else {
      (d1 > d2 ? primo : secondo) = {f, indietro ? 5 : 8};
    }
    if (indietro) {
      rullo.Indietro(primo, secondo);
    } else {
      rullo.Avanti(primo, secondo);
    }
  }
  return rullo.Passi();
}

}  // namespace girovia
