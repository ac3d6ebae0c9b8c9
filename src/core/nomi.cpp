#include "core/nomi.h"

#include <utf8proc.h>

namespace girovia {
namespace {

constexpr utf8proc_int32_t kSostituto = 0xFFFD;

// Takes the first character off the text.
utf8proc_int32_t Leggi(std::string_view& testo) {
  utf8proc_int32_t codice = kSostituto;
  const auto* byte = reinterpret_cast<const utf8proc_uint8_t*>(testo.data());
  auto letti = utf8proc_iterate(byte, static_cast<utf8proc_ssize_t>(testo.size()), &codice);
  if (letti <= 0) {
    codice = kSostituto;
    letti = 1;
  }
  testo.remove_prefix(static_cast<std::size_t>(letti));
  return codice;
}

void Scrivi(utf8proc_int32_t codice, std::string& testo) {
  utf8proc_uint8_t byte[4];
  const auto scritti = utf8proc_encode_char(codice, byte);
  testo.append(reinterpret_cast<const char*>(byte), static_cast<std::size_t>(scritti));
}

}  // namespace

std::string TroncaNome(std::string_view nome) {
  constexpr int kMassimo = 12;
  std::string intero;
  std::size_t taglio = 0;  // where the thirteenth character begins
  int caratteri = 0;
  utf8proc_int32_t prima = 0, stato = 0;
  while (!nome.empty()) {
    const utf8proc_int32_t codice = Leggi(nome);
    if (caratteri == 0 || utf8proc_grapheme_break_stateful(prima, codice, &stato)) {
      if (++caratteri == kMassimo + 1) taglio = intero.size();
    }
    Scrivi(codice, intero);
    prima = codice;
  }
  if (caratteri <= kMassimo) return intero;
  return intero.substr(0, taglio) + "...";
}

std::string Maiuscole(std::string_view testo) {
  std::string esito;
  while (!testo.empty()) Scrivi(utf8proc_toupper(Leggi(testo)), esito);
  return esito;
}

std::string PrimaMaiuscola(std::string_view testo) {
  if (testo.empty()) return {};
  std::string esito;
  Scrivi(utf8proc_totitle(Leggi(testo)), esito);
  return esito.append(testo);
}

}  // namespace girovia
