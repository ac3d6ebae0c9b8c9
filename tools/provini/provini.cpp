// Contact sheets, to look at everything at once.
//
//   provini immagini CARTELLA SCALA USCITA.png     all pictures of the catalogue
//   provini schermate CARTELLA SCALA USCITA.png    all screens, as a game passes them
//   provini inizio CARTELLA SCALA USCITA.png       the board before the first throw
//   provini partita CARTELLA SCALA USCITA.png      the board in the middle of a game
//
// CARTELLA is the program's folder, where risorse/, Suoni/ and font/ lie.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "content/catalogo.h"
#include "core/mod_Girovia.h"
#include "core/stato.h"
#include "dimostrazione/dimostrazione.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"

namespace {

using namespace girovia;
using platform::Rect;
using platform::Surface;

const platform::Font kDidascalia{"Verdana", 7.5, false, false};

struct Provino {
  std::string nome;
  int larghezza, altezza;  // of the picture, logical
  std::function<void(Surface&, const Rect&)> disegna;
};

// Cells of one size in rows, each with its name below. Nothing is shown larger than it is.
Surface Foglio(const std::vector<Provino>& provini, int scala, int lato, int colonne) {
  constexpr int kBordo = 6, kNome = 14;
  const int righe = (int(provini.size()) + colonne - 1) / colonne;
  const int passoX = lato + 2 * kBordo, passoY = lato * 3 / 4 + kNome + 2 * kBordo;
  Surface foglio(colonne * passoX, righe * passoY, scala, 0x606060);
  for (std::size_t i = 0; i < provini.size(); ++i) {
    const Provino& p = provini[i];
    const double x = double(int(i) % colonne * passoX + kBordo);
    const double y = double(int(i) / colonne * passoY + kBordo);
    const double quanto =
        std::min({1.0, double(lato) / p.larghezza, double(lato) * 0.75 / p.altezza});
    p.disegna(foglio, {x, y, p.larghezza * quanto, p.altezza * quanto});
    foglio.DrawText({x, y + lato * 0.75, double(lato), kNome}, p.nome,
                    {kDidascalia, platform::colors::kWhite, platform::Align::Left, false});
  }
  return foglio;
}

std::vector<Provino> DelCatalogo(const std::string& cartella) {
  std::vector<Provino> provini;
  for (const VoceCatalogo& voce : Catalogo()) {
    int errore = 0;
    const auto picture = platform::Picture::Load(cartella + "/" + PercorsoFile(voce), errore);
    provini.push_back({PercorsoFile(voce) + (picture ? "" : " MANCA"), voce.larghezza, voce.altezza,
                       [picture](Surface& foglio, const Rect& r) {
                         if (picture)
                           picture->Draw(foglio, r);
                         else
                           foglio.FillRect(r, platform::colors::kRed);
                       }});
  }
  return provini;
}

// Every screen that the demonstration passes, as it leaves them behind.
std::vector<Provino> DellaDimostrazione(const std::string& cartella) {
  namespace fs = std::filesystem;
  const fs::path galleria = fs::temp_directory_path() / ("provini-" + std::to_string(getpid()));
  std::vector<Provino> provini;
  if (Dimostrazione(cartella, galleria.string()) == 0) {
    std::set<fs::path> file;
    for (const auto& voce : fs::directory_iterator(galleria)) file.insert(voce.path());
    for (const fs::path& png : file) {
      int errore = 0;
      const auto foto = platform::Picture::Load(png.string(), errore);
      if (foto)
        provini.push_back({png.stem().string(), 800, 600,
                           [foto](Surface& foglio, const Rect& r) { foto->Draw(foglio, r); }});
    }
  }
  std::error_code nessuno;
  fs::remove_all(galleria, nessuno);
  return provini;
}

// The board alone, as a person sees it: with `inCorso` after some turns of both players.
Surface IlTabellone(const std::string& cartella, int scala, bool inCorso) {
  platform::HeadlessHost host({800 * scala, 600 * scala});
  Gioco gioco(host, {.cartella = cartella});
  gioco.Apri();
  gioco.SaltaInizio();
  if (inCorso) {
    using namespace mod_Girovia;
    FormGirovia& tabellone = *gioco.tabellone();
    const int dove[] = {0, 47, 41};
    tabellone.SpegniTimer();
    tabellone.NascondiRitratti();
    tabellone.NascondiAnnuncio();
    tabellone.NascondiAiuto();
    for (int p : {1, 2}) {
      for (int i = 1; i <= dove[p]; ++i) tabellone.MostraTratto(p, i);
      Pos[p] = dove[p];
      Gruzzolo[p] = Euro::Centesimi(p == 1 ? 5450 : 8235);
      tabellone.ScriviGruzzolo(p, Gruzzolo[p]);
      tabellone.ColoraCasella(Pos[p], ValoreColore(Colore[p]));
    }
    tabellone.ColoraGruzzoli(0x0000FF, 0x00FF00);
    tabellone.RefreshPrBar();
    Giocatore = 1;
    tabellone.AttivaTurno(1);
    RitornoProva = Vero;  // the board comes to the front as after a turn, not as after the dice
  }
  int giri = 0;
  host.OnIdle = [&] {
    if (++giri > 4) host.Queue({platform::EventKind::Quit, 0, 0, platform::MouseButton::Left});
  };
  try {
    gioco.screen().Run();
  } catch (const platform::ProgramEnded&) {
  }
  return host.Shot();
}

}  // namespace

int main(int argc, char** argv) {
  const std::string che = argc == 5 ? argv[1] : "";
  const int scala = argc == 5 ? std::atoi(argv[3]) : 0;
  Surface foglio;
  if (scala >= 1 && scala <= 4) {
    const std::string cartella = argv[2];
    platform::SetFontFolder(cartella + "/font");
    if (che == "immagini") foglio = Foglio(DelCatalogo(cartella), scala, 160, 12);
    if (che == "schermate") foglio = Foglio(DellaDimostrazione(cartella), scala, 400, 4);
    if (che == "inizio" || che == "partita")
      foglio = IlTabellone(cartella, scala, che == "partita");
  }
  if (foglio.width() == 0) {
    std::fprintf(stderr,
                 "uso: provini immagini|schermate|inizio|partita CARTELLA SCALA(1-4) USCITA.png\n");
    return 2;
  }
  if (!platform::SavePng(foglio, argv[4])) {
    std::fprintf(stderr, "provini: non posso scrivere %s\n", argv[4]);
    return 1;
  }
  return 0;
}
