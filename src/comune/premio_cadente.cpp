#include "comune/premio_cadente.h"

#include <iterator>

namespace girovia {
namespace {

constexpr GradinoPremio kGradini[] = {
    {203, Euro::Interi(20)},    {204, Euro::Interi(10)},    {205, Euro::Interi(5)},
    {500, Euro::Interi(2)},     {501, Euro::Interi(1)},     {502, Euro::Centesimi(50)},
    {503, Euro::Centesimi(20)}, {504, Euro::Centesimi(10)}, {505, Euro::Centesimi(5)},
    {506, Euro::Centesimi(2)},  {507, Euro::Centesimi(1)},
};
constexpr int kNumeroGradini = static_cast<int>(std::size(kGradini));
constexpr int kPrimaMoneta = 500;
constexpr int kScattiPerGradino = 4;

}  // namespace

GradinoPremio GradinoIniziale(int primo_gradino) { return kGradini[primo_gradino]; }

ScattoPremio ScattoDelPremio(int primo_gradino, int scatti) {
  ScattoPremio scatto;
  if (scatti <= 0 || scatti % kScattiPerGradino != 0) return scatto;
  scatto.suono = true;
  const int gradino = primo_gradino + scatti / kScattiPerGradino;
  if (gradino < kNumeroGradini) {
    scatto.gradino = kGradini[gradino];
    scatto.togliBordo = kGradini[gradino].bitmap == kPrimaMoneta;
  }
  scatto.scaduto = gradino == kNumeroGradini;
  return scatto;
}

PostoPremio CentraPremio(double larghezza, double altezza) {
  return {(240 - larghezza) / 2, (100 - altezza) / 2 + 395};
}

}  // namespace girovia
