#include "screens/giornale_logica.h"

#include <string_view>

#include "core/nomi.h"
#include "core/tipi.h"

namespace girovia {
namespace {

// The game speaks Italian whatever the language of the machine is.
constexpr std::string_view kGiorni[] = {"domenica", "lunedì",  "martedì", "mercoledì",
                                        "giovedì",  "venerdì", "sabato"};
constexpr std::string_view kMesi[] = {"gennaio",   "febbraio", "marzo",    "aprile",
                                      "maggio",    "giugno",   "luglio",   "agosto",
                                      "settembre", "ottobre",  "novembre", "dicembre"};

std::string DueCifre(int n) {
  std::string cifre = std::to_string(n);
  if (n < 10) cifre.insert(cifre.begin(), '0');
  return cifre;
}

std::string Data(const std::tm& ora) {
  return PrimaMaiuscola(kGiorni[ora.tm_wday]) + ", " + std::to_string(ora.tm_mday) + " " +
         std::string(kMesi[ora.tm_mon]) + " " + std::to_string(1900 + ora.tm_year);
}

std::string Ora(const std::tm& ora) { return DueCifre(ora.tm_hour) + "," + DueCifre(ora.tm_min); }

}  // namespace

std::string DataGiornale(const std::tm& ora) {
  return Data(ora) + kACapo + "sono le " + Ora(ora) + ".";
}

std::string DataInfo(const std::tm& ora) { return Data(ora) + ". Sono le " + Ora(ora) + "."; }

}  // namespace girovia
