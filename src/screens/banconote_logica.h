// The pay-out of a move as notes and coins.
#pragma once

#include <span>

namespace girovia {

struct Banconota {
  int bitmap;
  double left, top;
  friend bool operator==(const Banconota&, const Banconota&) = default;
};

// One to three pictures, largest first; none for an amount that two dice cannot throw.
std::span<const Banconota> BanconoteDelDado(int dado);

}  // namespace girovia
