// Reads the compact strings of the question bank.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace girovia {

struct Affermazione {
  std::string frase;  // with its closing full stop
  int esatta = 0;     // the right answer: 1 true, 2 false
};

// "sentence*digit".
Affermazione LeggiAffermazione(std::string_view testo);

struct SetFoto {
  std::string_view domanda;
  std::array<int, 4> citta{};  // the squares of places 1 to 4
  int sbagliata = 0;           // the place, 1 to 4, of the city that does not fit
};

SetFoto LeggiSetFoto(int numero);

struct Capitale {
  std::string_view paese;  // with its article: "dell'Italia"
  int citta = 0;
};

Capitale LeggiCapitale(int numero);

// The squares of the nine places, row by row from the north west. Place 4 is the reference city.
std::array<int, 9> LeggiOrdinamento(int numero);

}  // namespace girovia
