#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace girovia::simulazione {

struct Argomenti {
  std::int64_t partite = 10'000;
  std::uint64_t seme = 1;
  double abilita = 0.6;   // chance to pass a trial
  double rinuncia = 0.2;  // chance to give up rather than fail, where it is not passed
  int processi = 1;
  bool json = false;
  bool aiuto = false;
  std::string grafici;  // folder for the charts; empty for none
};

extern const std::string_view kUso;

// Nothing, with one sentence in `errore`, if the arguments make no sense.
std::optional<Argomenti> LeggiArgomenti(std::span<char* const> parole, std::string& errore);

}  // namespace girovia::simulazione
