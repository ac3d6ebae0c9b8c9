#include "comune/ambiente.h"

#include "content/catalogo.h"

namespace girovia {
namespace {

platform::SizedPicture Carica(platform::PictureStore& archivio, const VoceCatalogo* voce,
                              const std::string& richiesta) {
  // An id that the catalogue does not know fails as a file that is not there.
  if (!voce) return archivio.Load(richiesta, 0, 0);
  return archivio.Load(PercorsoFile(*voce), voce->larghezza, voce->altezza);
}

}  // namespace

platform::SizedPicture Immagini::LoadResPicture(int id) {
  return Carica(archivio_, TrovaVoce(Tipo::Bitmap, id), "bitmap " + std::to_string(id));
}

platform::SizedPicture cLoadResPicture::LoadResPicture(int id, std::string_view tipo) {
  const VoceCatalogo* voce = tipo == "CUSTOM" ? TrovaVoce(Tipo::Jpeg, id) : nullptr;
  return Carica(immagini_.archivio(), voce, std::string(tipo) + " " + std::to_string(id));
}

platform::SizedPicture Immagini::DiSchermata(const std::string& nome) {
  const VoceCatalogo* voce = TrovaSchermata(nome);
  if (voce && scala_ > 2) {
    const std::string usuale = PercorsoFile(*voce);
    const std::string fine = usuale.substr(0, usuale.rfind('.')) + "@4x.jpg";
    if (archivio_.Exists(fine)) return archivio_.Load(fine, voce->larghezza, voce->altezza);
  }
  return Carica(archivio_, voce, nome);
}

platform::Pointer Immagini::Puntatore(int id) {
  const VoceCatalogo* voce = TrovaVoce(Tipo::Cursor, id);
  const auto immagine = Carica(archivio_, voce, "cursore " + std::to_string(id));
  return {.kind = platform::Pointer::Kind::Custom,
          .picture = immagine.picture,
          .hotX = voce->caldoX,
          .hotY = voce->caldoY};
}

}  // namespace girovia
