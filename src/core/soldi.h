// Money: exact fixed point with four decimals, and the text in which a purse is printed.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace girovia {

class Euro {
 public:
  constexpr Euro() = default;

  static constexpr Euro Interi(std::int64_t euro) { return Euro(euro * 10'000); }
  static constexpr Euro Centesimi(std::int64_t cent) { return Euro(cent * 100); }
  static constexpr Euro Decimillesimi(std::int64_t n) { return Euro(n); }

  // Rounds to four decimals, an exact half to the even neighbour.
  static Euro DaDouble(double euro);

  constexpr std::int64_t decimillesimi() const { return n_; }
  // Exact for every purse that a game can reach.
  constexpr double ADouble() const { return static_cast<double>(n_) / 10'000; }

  constexpr Euro& operator+=(Euro e) { return n_ += e.n_, *this; }
  constexpr Euro& operator-=(Euro e) { return n_ -= e.n_, *this; }
  friend constexpr Euro operator+(Euro a, Euro b) { return a += b; }
  friend constexpr Euro operator-(Euro a, Euro b) { return a -= b; }
  constexpr Euro operator-() const { return Euro(-n_); }
  friend constexpr auto operator<=>(Euro, Euro) = default;

 private:
  explicit constexpr Euro(std::int64_t n) : n_(n) {}

  std::int64_t n_ = 0;  // ten-thousandths
};

// "1.234,50": two decimals, thousands parted, a minus sign before any value below zero.
std::string TestoImporto(Euro e);

// The same with its sign: "1.234,50 €".
std::string TestoEuro(Euro e);

}  // namespace girovia
