// A game with its players, over any host.
#pragma once

#include "dimostrazione/automa.h"
#include "dimostrazione/caso_guidato.h"

namespace girovia {

struct PartitaDaSola {
  PartitaDaSola(platform::Host& host, const std::string& cartella, bool manoVisibile)
      : mano(host, manoVisibile),
        gioco(mano, {.cartella = cartella, .caso = &caso}),
        automa(gioco) {
    caso.Segui(gioco.screen());
    mano.Guida(automa);
  }

  Mano mano;
  CasoGuidato caso;
  Gioco gioco;
  Automa automa;
};

}  // namespace girovia
