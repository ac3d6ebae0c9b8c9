#include "trials/carte4_logica.h"

namespace girovia {

EsitoCarte4 Carte4::Clic(int i) {
  if (i == 0) return {.risposta = 0};
  if (i == indice_sbagliata_) return {.risposta = 2};
  EsitoCarte4 esito{.risposta = std::nullopt, .nascondiBottone = true};
  if (++cliccate_giuste_ == 3) esito.risposta = 1;
  return esito;
}

}  // namespace girovia
