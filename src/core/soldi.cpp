#include "core/soldi.h"

#include <cmath>
#include <limits>

namespace girovia {

Euro Euro::DaDouble(double euro) {
  const double n = euro * 10'000;
  const double mezzo = std::floor(n) + 0.5;
  // A decimal half is seldom exact in binary: what differs from it by the last bits only counts as
  // the half that was meant.
  if (std::abs(n - mezzo) > 4 * std::numeric_limits<double>::epsilon() * std::abs(n)) {
    return Euro(static_cast<std::int64_t>(std::round(n)));
  }
  const auto sotto = static_cast<std::int64_t>(std::floor(n));
  return Euro(sotto % 2 == 0 ? sotto : sotto + 1);
}

std::string TestoImporto(Euro e) {
  const std::int64_t n = e.decimillesimi();
  // A half cent goes away from zero: this is for the eye, no purse is touched by it.
  const std::uint64_t cent = (static_cast<std::uint64_t>(n < 0 ? -n : n) + 50) / 100;
  const std::string interi = std::to_string(cent / 100);
  std::string testo = n < 0 ? "-" : "";
  for (std::size_t i = 0; i < interi.size(); ++i) {
    if (i > 0 && (interi.size() - i) % 3 == 0) testo += '.';
    testo += interi[i];
  }
  testo += ',';
  testo += static_cast<char>('0' + cent / 10 % 10);
  testo += static_cast<char>('0' + cent % 10);
  return testo;
}

std::string TestoEuro(Euro e) { return TestoImporto(e) + " €"; }

}  // namespace girovia
