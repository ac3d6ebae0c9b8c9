// The ordering trial: nine tiles, three by three, with the middle one as the point of reference.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "comune/segni_tempo.h"
#include "core/interfacce.h"
#include "trials/griglia.h"

namespace girovia {

inline constexpr int kCellaRiferimento = 4;

class ProvaOrdinamento {
 public:
  using Misura = double;
  static constexpr int kCelle = 9;
  static constexpr int kLarghezza = 800;  // the picture on which the tiles lie
  static constexpr int kAltezza = 600;
  static constexpr int kLarghezzaTassello = 216;
  static constexpr int kAltezzaTassello = 162;

  explicit ProvaOrdinamento(Caso& caso) : griglia_(Distribuisci(caso)) {}
  explicit ProvaOrdinamento(const std::array<int, 9>& tasselli) : griglia_(tasselli) {}

  // Every arrangement of the eight loose tiles is equally likely, the solved one included.
  static std::array<int, 9> Distribuisci(Caso& caso);

  // Top left corner of a cell on the picture.
  static int LeftCella(int cella) { return 48 + 240 * (cella % 3); }
  static int TopCella(int cella) { return 36 + 180 * (cella / 3); }

  int tassello(int cella) const { return griglia_.tassello(cella); }
  bool in_mano() const { return griglia_.in_mano(); }
  int partenza() const { return griglia_.partenza(); }

  // Left press at (x, y) of a cell. False if nothing is lifted.
  bool Solleva(int cella, double x, double y);

  // The pointer is at (x, y) of the lifted tile.
  void Trascina(double x, double y);

  // Left and top of the lifted tile on the picture.
  int x() const { return x_; }
  int y() const { return y_; }
  Recinto recinto() const;

  // A tile must be in the hand.
  Posata Posa() { return griglia_.Posa(CellaSotto()); }

 private:
  int CellaSotto() const;

  Griglia<9> griglia_;
  int x_ = 48, y_ = 36;
  int presa_x_ = 0, presa_y_ = 0;
};

// A short line across the ring of the background.
struct SegnoAnello {
  double x1, y1, x2, y2;
  std::uint32_t colore;
};

struct ScattoOrdinamento {
  std::optional<SegnoAnello> segno;
  bool scaduto = false;
};

// Tick n, from 1 on.
ScattoOrdinamento ScattoDellAnello(int n);

PostoBottone BottoneOrdinamento(int scatti);

// The panel that covers the middle cell until the first lift. `messaggio` says what a failure
// costs.
std::array<std::string, 10> IstruzioniOrdinamento(std::string_view riferimento,
                                                  std::string_view messaggio);

// The name as it is written on a tile: its blanks carry the underline to the tile's edge.
std::string ScrittaTassello(std::string_view citta);

}  // namespace girovia
