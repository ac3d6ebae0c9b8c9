#include "cartella.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <fstream>
#include <stdexcept>

#include "content/catalogo.h"

namespace girovia {

namespace fs = std::filesystem;

Cartella::Cartella() {
  std::string modello = (fs::temp_directory_path() / "gioco_test.XXXXXX").string();
  if (!mkdtemp(modello.data())) throw std::runtime_error("no temporary folder");
  radice_ = modello;
  for (const char* nome : {"risorse", "Suoni", "font"})
    for (const auto& voce : fs::recursive_directory_iterator(fs::path(PROGRAMMA) / nome)) {
      if (voce.is_directory()) continue;
      const fs::path qui = radice_ / voce.path().lexically_relative(PROGRAMMA);
      fs::create_directories(qui.parent_path());
      fs::create_symlink(voce.path(), qui);
    }
}

Cartella::~Cartella() {
  std::error_code error;
  fs::remove_all(radice_, error);
}

void Cartella::Togli(const std::string& file) {
  if (fs::remove_all(radice_ / file) == 0) throw std::runtime_error("no " + file + " to take away");
}

void Cartella::Riscrivi(const std::string& file, const std::string& contenuto) {
  Togli(file);
  std::ofstream(radice_ / file, std::ios::binary) << contenuto;
}

void Cartella::Tubo(const std::string& file) {
  Togli(file);
  if (mkfifo((radice_ / file).c_str(), 0600) != 0) throw std::runtime_error("no pipe at " + file);
}

void Cartella::Alleggerisci(std::string_view tranne) {
  const fs::path stella = fs::path(PROGRAMMA) / PercorsoFile(*TrovaVoce(Tipo::Bitmap, 104));
  for (const VoceCatalogo& voce : Catalogo()) {
    const bool grande = voce.tipo == Tipo::Jpeg || voce.nome.starts_with("FormRotazioneCarta") ||
                        voce.nome.starts_with("FormProva") || voce.nome.starts_with("Dadi.");
    if (!grande || (!tranne.empty() && voce.nome.starts_with(tranne))) continue;
    Togli(PercorsoFile(voce));
    fs::create_symlink(stella, radice_ / PercorsoFile(voce));
  }
}

}  // namespace girovia
