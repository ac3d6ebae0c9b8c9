// Find the city that is named.
#pragma once

#include "trials/form_prova_mappa.h"

namespace girovia {

class FormProvaCitta : public FormProvaMappa {
 public:
  explicit FormProvaCitta(Ambiente& ambiente)
      : FormProvaMappa(ambiente, "FormProvaCitta", MappaProva::Citta) {}

 private:
  std::string Domanda() override;
  int Richiesta() const override;
};

}  // namespace girovia
