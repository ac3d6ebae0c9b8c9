#include "content/testi.h"

#include <array>
#include <cstddef>

namespace girovia {
namespace {

struct Testo {
  int id;
  std::string_view testo;
};

// The rows themselves, one string to a line, so that a text can be found and mended by hand.
constexpr Testo kTesti[] = {
#include "content/testi/affermazioni.inc"
#include "content/testi/capitali.inc"
#include "content/testi/didascalie.inc"
#include "content/testi/foto.inc"
#include "content/testi/frammenti.inc"
#include "content/testi/imprevisti.inc"
#include "content/testi/ordinamento.inc"
#include "content/testi/segni.inc"
};

constexpr int kNumeroId = 1093;

using Tabella = std::array<std::string_view, kNumeroId>;

// Worked out by the compiler, so that the program neither sorts nor searches. A row with a number
// that is out of range or used twice does not compile.
consteval Tabella Indice() {
  Tabella tabella{};
  for (const Testo& riga : kTesti) {
    std::string_view& posto = tabella.at(static_cast<std::size_t>(riga.id));
    if (!posto.empty()) throw "number used twice";
    posto = riga.testo;
  }
  return tabella;
}

constexpr Tabella kTabella = Indice();

}  // namespace

std::string_view LoadResString(int id) {
  if (id < 0 || id >= kNumeroId) return {};
  return kTabella[static_cast<std::size_t>(id)];
}

}  // namespace girovia
