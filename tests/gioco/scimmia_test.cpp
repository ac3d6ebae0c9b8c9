// A monkey at the mouse and the keys, for a short while; the program scimmia goes on for longer.
#include "scimmia.h"

#include <gtest/gtest.h>

#include "cartella.h"

namespace girovia {
namespace {

TEST(Scimmia, BreaksNothing) {
  Cartella cartella;
  cartella.Alleggerisci();
  int eventi = 0;
  for (unsigned seme = 1; eventi < 600 && !HasFailure(); ++seme) {
    Scimmia scimmia({.cartella = cartella.percorso(), .seme = seme, .eventi = 300});
    EXPECT_EQ(scimmia.Gioca(), "") << "seed " << seme;
    eventi += scimmia.eventi();
  }
}

}  // namespace
}  // namespace girovia
