// Plays for both players of a demonstration. It looks at the forms as they do, knows the right
// answers, gives a wrong one now and then, and leaves out nothing that there is to see.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "dimostrazione/mano.h"
#include "gioco.h"

namespace girovia {

class Automa : public Attore {
 public:
  explicit Automa(Gioco& gioco);

  int Scena() override;
  std::int64_t GuardaFinoA() override;
  std::optional<Gesto> Prossimo() override;

  // What has been in front so far.
  const std::set<std::string>& viste() const { return viste_; }

 private:
  using Mossa = std::optional<Gesto>;
  std::int64_t TempoDiLettura(const platform::Form& form);
  Mossa Clicca(const std::string& nome, const std::string& testo = {});
  Mossa Clicca(const std::string& nome, int indice);
  Mossa Risponde();

  Mossa SuSplash();
  Mossa SuTabellone();
  Mossa SuCitta();
  Mossa SuCarte2();
  Mossa SuCarte4();
  Mossa SuTessere();
  Mossa SuPremiazione();
  Mossa SuMappaCitta();
  Mossa SuMappaCapitali();
  Mossa SuDomanda();
  Mossa SuAvviso();

  Gioco& gioco_;
  std::set<std::string> viste_;
  const platform::Form* davanti_ = nullptr;
  int scena_ = 0;
  std::int64_t guardaFinoA_ = 0;
  std::set<std::string> letti_;  // texts
  int iniziale_ = 0;             // what has been done on the start screen
  int affermazioni_ = 0;         // cards answered
  bool uscitaChiesta_ = false;
  std::size_t premi_ = 0;
};

}  // namespace girovia
