#include "platform/forms/picture_store.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace platform {

std::string SystemMessage(int code) {
  // The C library speaks the language of the machine's settings, if it has that language at all;
  // what can happen to a picture is said here in the language of the game.
  switch (code) {
    case ENOENT:
      return "Impossibile trovare il file specificato.";
    case EACCES:
    case EPERM:
      return "Accesso al file negato.";
    case EISDIR:
      return "Al posto del file c'è una cartella.";
    case ENOTDIR:
      return "Impossibile trovare il percorso specificato.";
    case ELOOP:
      return "Al posto del file c'è un collegamento che torna su se stesso.";
    case EFBIG:
      return "Il file è troppo grande.";
    case EMFILE:
    case ENFILE:
      return "Troppi file aperti.";
    case EILSEQ:
      return "Il file non contiene un'immagine valida.";
    case ENOMEM:
      return "Memoria insufficiente.";
    case EIO:
      return "Errore di lettura del disco.";
    default:
      return std::strerror(code);
  }
}

SizedPicture PictureStore::Load(const std::string& relativePath, int width, int height) {
  auto& known = pictures_[relativePath];
  auto picture = known.lock();
  if (!picture) {
    int code = 0;
    const std::string path = folder_ + "/" + relativePath;
    picture = Picture::Load(path, code);
    if (!picture)
      throw PictureError(code | 10000, program_ + ".cLoadResPicture", path, SystemMessage(code));
    known = picture;
  }
  return {picture, width, height};
}

bool PictureStore::Exists(const std::string& relativePath) const {
  std::error_code error;
  return std::filesystem::exists(folder_ + "/" + relativePath, error);
}

}  // namespace platform
