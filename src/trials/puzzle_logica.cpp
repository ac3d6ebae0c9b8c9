#include "trials/puzzle_logica.h"

#include <cmath>
#include <cstddef>

#include "content/testi.h"
#include "core/tipi.h"

namespace girovia {

std::array<int, 12> ProvaPuzzle::Distribuisci(Caso& caso) {
  std::array<int, 12> tasselli{};
  std::array<bool, 12> usato{};
  for (int& tassello : tasselli) {
    std::size_t r;
    do {
      r = static_cast<std::size_t>(std::lrint(11 * caso.Rnd()));
    } while (usato[r]);
    usato[r] = true;
    tassello = static_cast<int>(r);
  }
  return tasselli;
}

bool ProvaPuzzle::Solleva(int cella, float x, float y) {
  if (in_mano()) return false;
  x_ = static_cast<float>(LeftCella(cella));
  y_ = static_cast<float>(TopCella(cella));
  presa_x_ = x;
  presa_y_ = y;
  griglia_.Prendi(cella);
  return true;
}

void ProvaPuzzle::Trascina(float x, float y) {
  x_ = x_ + x - presa_x_;
  y_ = y_ + y - presa_y_;
}

Recinto ProvaPuzzle::recinto(int larghezza, int altezza) const {
  return {presa_x_, presa_y_, presa_x_ + static_cast<float>(larghezza - kLato),
          presa_y_ + static_cast<float>(altezza - kLato)};
}

int ProvaPuzzle::CellaSotto() const {
  constexpr float kMezzo = kLato / 2.0F;
  const float cx = x_ + kMezzo;
  const float cy = y_ + kMezzo;
  // On a line between two columns the left one wins, on the upper line between two rows the lower.
  const int riga = cy < 120 ? 0 : cy > 240 ? 2 : 1;
  const int colonna = cx > 360 ? 3 : cx > 240 ? 2 : cx > 120 ? 1 : 0;
  return 4 * riga + colonna;
}

BarraTempo BarraPuzzle(int scatti) { return BarraDopo(24, 459, 2, scatti); }

PostoBottone BottonePuzzle(int scatti) { return BottoneDopo(448, 480, scatti); }

TestiPuzzle TestiDelPuzzle(bool prova_finale, int casella, std::string_view messaggio) {
  TestiPuzzle testi =
      prova_finale ? TestiPuzzle{500, std::string("GIROVIA GRANDETAPPA") + kACapo + "PROVA FINALE",
                                 "Ricomponi la carta d'Europa: clicca i quadretti per spostarli."}
                   : TestiPuzzle{400 + casella, std::string(LoadResString(400 + casella)),
                                 "Ricomponi la foto: clicca i pezzi della foto per spostarli."};
  testi.info += std::string(kACapo) + "Se ci riesci guadagni 20 euro." + kACapo +
                std::string(messaggio) + ".";
  return testi;
}

}  // namespace girovia
