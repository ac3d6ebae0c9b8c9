#include "screens/titoli_logica.h"

#include <string_view>

namespace girovia {
namespace {

constexpr std::string_view kRighe[] = {
    "è stato",  // after the game's name
    "disegnato e scritto",
    "per le classi curiose",
    "che in cento tappe",
    "vogliono conoscere",
    "tutta l'Europa. Lo hanno",
    "reso possibile:",
    "Natural Earth (le coste)",
    "world-atlas (i confini)",
    "Beethoven (l'inno)",
    "DejaVu e Liberation",
    "(i caratteri)",
    "librsvg e cairo (i disegni)",
    "SDL (finestra e suoni)",
    "stb (immagini e lettere)",
    "utf8proc (i nomi di tutti)",
    "",
    "A chi insegna: grazie!",
    "",
    "Questa edizione, con i",
    "disegni e i suoni, è di",
    "chi fa Girovia",
    "Grandetappa.",
    "2026, Girovia Grandetappa",
    "Si può usare e copiare",
    "liberamente, a scuola",
    "e a casa. Buon viaggio!",
};

}  // namespace

std::vector<std::string> RigheTitoli(bool fermi) {
  std::vector<std::string> righe;
  for (const std::string_view riga : kRighe)
    righe.push_back(riga.empty() ? std::string() : "  " + std::string(riga));
  righe.front().insert(2, fermi ? "GIROVIA " : "Girovia ");
  if (fermi) righe.resize(righe.size() + 2);
  return righe;
}

}  // namespace girovia
