#include "content/quiz.h"

#include <charconv>
#include <cstddef>

#include "content/testi.h"

namespace girovia {
namespace {

int Numero(std::string_view cifre) {
  int n = 0;
  std::from_chars(cifre.data(), cifre.data() + cifre.size(), n);
  return n;
}

}  // namespace

Affermazione LeggiAffermazione(std::string_view testo) {
  const std::size_t stella = testo.find('*');
  Affermazione a{std::string(testo.substr(0, stella)) + ".", 0};
  if (stella != std::string_view::npos) a.esatta = Numero(testo.substr(stella + 1, 1));
  return a;
}

SetFoto LeggiSetFoto(int numero) {
  const int primo = 600 + 5 * numero;
  SetFoto set;
  set.domanda = LoadResString(primo);
  for (int k = 1; k <= 4; ++k) {
    std::string_view scelta = LoadResString(primo + k);
    if (scelta.ends_with('x')) {
      set.sbagliata = k;
      scelta = scelta.substr(0, 2);
    }
    set.citta[static_cast<std::size_t>(k - 1)] = Numero(scelta);
  }
  return set;
}

Capitale LeggiCapitale(int numero) {
  const std::string_view testo = LoadResString(830 + numero);
  if (testo.size() < 3) return {};
  return {testo.substr(0, testo.size() - 3), Numero(testo.substr(testo.size() - 2))};
}

std::array<int, 9> LeggiOrdinamento(int numero) {
  const std::string_view testo = LoadResString(900 + numero);
  std::array<int, 9> citta{};
  if (testo.size() < 2 * citta.size()) return citta;
  for (std::size_t i = 0; i < citta.size(); ++i) citta[i] = Numero(testo.substr(2 * i, 2));
  return citta;
}

}  // namespace girovia
