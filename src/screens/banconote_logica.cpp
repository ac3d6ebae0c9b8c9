#include "screens/banconote_logica.h"

#include <cstddef>

namespace girovia {
namespace {

constexpr int k10 = 204, k5 = 205, k2 = 206, k1 = 207;
constexpr double kMoneta = 69, kCarta = 85;  // tops

struct Riga {
  std::size_t quante;
  Banconota banconote[3];
};

constexpr Riga kRighe[] = {
    {1, {{k1, 128, kMoneta}}},
    {1, {{k2, 128, kMoneta}}},
    {2, {{k2, 80, kMoneta}, {k1, 184, kMoneta}}},
    {2, {{k2, 80, kMoneta}, {k2, 184, kMoneta}}},
    {1, {{k5, 112.5, kCarta}}},
    {2, {{k5, 72, kCarta}, {k1, 192, kMoneta}}},
    {2, {{k5, 72, kCarta}, {k2, 192, kMoneta}}},
    {3, {{k5, 16, kCarta}, {k2, 136, kMoneta}, {k1, 240, kMoneta}}},
    {3, {{k5, 16, kCarta}, {k2, 136, kMoneta}, {k2, 240, kMoneta}}},
    {1, {{k10, 112, kCarta}}},
    {2, {{k10, 72, kCarta}, {k1, 192, kMoneta}}},
    {2, {{k10, 72, kCarta}, {k2, 200, kMoneta}}},
};

}  // namespace

std::span<const Banconota> BanconoteDelDado(int dado) {
  if (dado < 1 || dado > 12) return {};
  const Riga& riga = kRighe[dado - 1];
  return {riga.banconote, riga.quante};
}

}  // namespace girovia
