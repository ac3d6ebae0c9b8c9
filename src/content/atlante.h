// The hundred squares of the route and the geometry that hangs on them. All places are pixels of
// the 800 by 600 board.
#pragma once

#include <string_view>

namespace girovia {

inline constexpr int kNumeroCaselle = 100;
inline constexpr int kUltimaCasella = kNumeroCaselle - 1;

struct Casella {
  std::string_view nome;
  int x, y;               // top left corner of the 15 by 15 button
  double labelX, labelY;  // top left corner of the name label
  bool stella;            // a city of the European Union
  char tratto;            // shape of the segment that arrives here, A to H; '-' on the start
};

// i is 0 to 99; anything else throws std::out_of_range.
const Casella& casella(int i);

// Empty for a number that is no square.
std::string_view NomeCasella(int i);

struct Tratto {
  int x1, y1, x2, y2;
  friend bool operator==(const Tratto&, const Tratto&) = default;
};

// The line of player 1 or 2 from square i - 1 to square i, i from 1 to 99.
Tratto LineaTratto(int giocatore, int i);

// The red line under the players' lines, from square i - 1 to square i: one middle to the next.
Tratto LineaBase(int i);

// The two trial maps show the same buttons, a few of them moved against the board.
enum class MappaProva { Citta, Capitali };

struct PostoMappa {
  int x, y;
  bool visibile;
  bool rosso;  // red background under the star instead of navy
};

PostoMappa PostoSuMappa(MappaProva mappa, int i);

}  // namespace girovia
