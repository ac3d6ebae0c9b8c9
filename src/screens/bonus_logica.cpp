#include "screens/bonus_logica.h"

namespace girovia {
namespace {

constexpr int kPrimoBiglietto = 204;
constexpr Euro kBiglietti[] = {Euro::Interi(10), Euro::Interi(5)};
constexpr int kPrimaMoneta = 206;
constexpr Euro kMonete[] = {Euro::Interi(2),     Euro::Interi(1),     Euro::Centesimi(50),
                            Euro::Centesimi(20), Euro::Centesimi(10), Euro::Centesimi(5),
                            Euro::Centesimi(2),  Euro::Centesimi(1)};

}  // namespace

Bonus EstraiBonus(Caso& caso) {
  Bonus bonus;
  const int biglietto = static_cast<int>(2 * caso.Rnd());
  bonus.biglietto = kPrimoBiglietto + biglietto;
  bonus.premio = kBiglietti[biglietto];
  for (int& bitmap : bonus.monete) {
    const int moneta = static_cast<int>(8 * caso.Rnd());
    bitmap = kPrimaMoneta + moneta;
    bonus.premio += kMonete[moneta];
  }
  return bonus;
}

std::string MessaggioBonus(Euro premio) { return "Vinci un premio di " + TestoEuro(premio) + "."; }

}  // namespace girovia
