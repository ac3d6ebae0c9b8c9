// The tiles of the two trials in which they are lifted from one cell and dropped on another.
#pragma once

#include <array>
#include <cstddef>
#include <utility>

namespace girovia {

// The cells between which a drop has swapped the tiles.
struct Posata {
  int partenza, arrivo;
  bool risolta;
};

// Where the pointer may go while it holds a tile, within the picture, so that the tile stays on
// it.
struct Recinto {
  double left, top, right, bottom;
  friend bool operator==(const Recinto&, const Recinto&) = default;
};

template <std::size_t N>
class Griglia {
 public:
  // `tasselli[c]` is the tile on cell c; tile t belongs on cell t.
  explicit Griglia(const std::array<int, N>& tasselli) : tasselli_(tasselli) {}

  int tassello(int cella) const { return tasselli_[static_cast<std::size_t>(cella)]; }
  bool in_mano() const { return partenza_ >= 0; }
  int partenza() const { return partenza_; }

  void Prendi(int cella) { partenza_ = cella; }

  // Swaps the lifted tile with the one of the target cell, which may be its own.
  Posata Posa(int arrivo) {
    const int partenza = partenza_;
    std::swap(tasselli_[static_cast<std::size_t>(partenza)],
              tasselli_[static_cast<std::size_t>(arrivo)]);
    partenza_ = -1;
    return {partenza, arrivo, Risolta()};
  }

 private:
  bool Risolta() const {
    for (std::size_t c = 0; c < N; ++c) {
      if (tasselli_[c] != static_cast<int>(c)) return false;
    }
    return true;
  }

  std::array<int, N> tasselli_;
  int partenza_ = -1;
};

}  // namespace girovia
