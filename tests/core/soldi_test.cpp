#include "core/soldi.h"

#include <gtest/gtest.h>

#include <random>

#include "core/nomi.h"

namespace girovia {
namespace {

TEST(Soldi, TestoConMarcheItaliane) {
  const struct {
    std::int64_t decimillesimi;
    const char* testo;
  } casi[] = {
      {0, "0,00 €"},
      {100'000, "10,00 €"},
      {12'345'000, "1.234,50 €"},
      {9'999'950, "1.000,00 €"},  // rounding carries into the thousands
      {12'345'678'900'000, "1.234.567.890,00 €"},
      {-40'000, "-4,00 €"},
      {-12'345'678, "-1.234,57 €"},
      {111'150, "11,12 €"},  // two decimals for the eye, half a cent up
      {111'149, "11,11 €"},
      {100, "0,01 €"},
      {-40, "-0,00 €"},
  };
  for (const auto& caso : casi) {
    EXPECT_EQ(TestoEuro(Euro::Decimillesimi(caso.decimillesimi)), caso.testo);
  }
  EXPECT_EQ(TestoImporto(Euro::Centesimi(710)), "7,10");
}

TEST(Soldi, DalDoubleLaMetaVaAlPari) {
  const struct {
    double euro;
    std::int64_t decimillesimi;
  } casi[] = {{1.235, 12'350},
              {0.00005, 0},
              {0.00015, 2},
              {0.00025, 2},
              {-0.00005, 0},
              {-0.00015, -2},
              {-0.00025, -2},
              {0.00014, 1},
              {10.00015, 100'002},
              {12'345.67885, 123'456'788},
              {-12'345.67895, -123'456'790}};
  for (const auto& caso : casi) {
    EXPECT_EQ(Euro::DaDouble(caso.euro).decimillesimi(), caso.decimillesimi) << caso.euro;
  }
}

// The shares that the cards take, against whole-number arithmetic.
TEST(Soldi, LeQuoteSonoEsatte) {
  std::mt19937_64 caso(1);
  std::uniform_int_distribution<std::int64_t> gruzzoli(-20'000'000, 20'000'000);
  for (int i = 0; i < 200'000; ++i) {
    const std::int64_t n = gruzzoli(caso);
    for (const std::int64_t divisore : {2, 10, 20}) {
      const std::int64_t doppio = 2 * std::abs(n) / divisore;
      std::int64_t atteso = std::abs(n) / divisore;
      const bool meta = 2 * (std::abs(n) % divisore) == divisore;
      if (meta ? atteso % 2 == 1 : doppio % 2 == 1) ++atteso;
      const double quota = Euro::Decimillesimi(n).ADouble() / static_cast<double>(divisore);
      ASSERT_EQ(Euro::DaDouble(quota).decimillesimi(), n < 0 ? -atteso : atteso) << n;
    }
  }
}

TEST(Nomi, DopoDodiciCaratteriSiTronca) {
  const struct {
    const char* nome;
    const char* atteso;
  } casi[] = {
      {"", ""},
      {"Primo", "Primo"},
      {"dodicilet...", "dodicilet..."},
      {"abcdefghijkl", "abcdefghijkl"},
      {"abcdefghijklm", "abcdefghijkl..."},
      {"Nicolò Perché è", "Nicolò Perch..."},
      // An accent that is a sign of its own belongs to its letter.
      {"abcdefghijke\u0301", "abcdefghijke\u0301"},
      {"abcdefghijke\u0301x", "abcdefghijke\u0301..."},
      // A family is one character, and so is a flag; the thirteenth is cut off whole.
      {"\U0001F468\u200D\U0001F469\u200D\U0001F467bcdefghijkl",
       "\U0001F468\u200D\U0001F469\u200D\U0001F467bcdefghijkl"},
      {"abcdefghijkl\U0001F1EE\U0001F1F9", "abcdefghijkl..."},
      {"\u0935\u093F\u0926\u094D\u092F\u093E", "\u0935\u093F\u0926\u094D\u092F\u093E"},
      {"ab\xFFg\xC3", "ab\uFFFDg\uFFFD"},
      {"\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80",
       "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD..."},
  };
  for (const auto& caso : casi) EXPECT_EQ(TroncaNome(caso.nome), caso.atteso);
}

}  // namespace
}  // namespace girovia
