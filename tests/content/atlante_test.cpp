#include "content/atlante.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace girovia {
namespace {

TEST(Atlante, LinesOfEachShape) {
  const struct {
    int i;
    Tratto primo, secondo;
  } kCasi[] = {
      {1, {436, 584, 420, 532}, {444, 576, 428, 524}},   // A
      {2, {420, 524, 436, 460}, {428, 532, 444, 468}},   // B
      {38, {132, 100, 148, 148}, {124, 108, 140, 156}},  // C
      {7, {332, 360, 332, 308}, {340, 360, 340, 308}},   // D
      {16, {220, 444, 164, 444}, {220, 452, 164, 452}},  // E
      {37, {12, 4, 132, 100}, {9, 12, 129, 108}},        // F
      {36, {100, 116, 4, 12}, {108, 113, 12, 9}},        // G
      {93, {508, 316, 468, 348}, {500, 308, 460, 340}},  // H
  };
  for (const auto& caso : kCasi) {
    EXPECT_EQ(LineaTratto(1, caso.i), caso.primo) << caso.i;
    EXPECT_EQ(LineaTratto(2, caso.i), caso.secondo) << caso.i;
  }
  EXPECT_THROW(casella(100), std::out_of_range);
  EXPECT_THROW(LineaTratto(1, 0), std::out_of_range);
  EXPECT_THROW(LineaTratto(3, 1), std::out_of_range);
  EXPECT_EQ(NomeCasella(-1), "");
  EXPECT_EQ(NomeCasella(100), "");
  EXPECT_EQ(LineaBase(99), (Tratto{296, 224, 252, 232}));
}

}  // namespace
}  // namespace girovia
