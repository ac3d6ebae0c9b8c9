// One throw of the dice and one turn of the card, each shown picture held pixel by pixel against a
// plain re-enactment: the board as it was, and over it what has to stand there.
#include "banco.h"
#include "comune/ambiente.h"
#include "platform/drawing/picture.h"

namespace girovia {
namespace {

using platform::Surface;

struct Pezzo {
  std::string bianco, nero;  // pictures that are stored with a screen
  int x, y, larghezza, altezza;
};
using Quadro = std::vector<Pezzo>;

Surface Carica(const std::string& nome, const Pezzo& p) {
  int errore = 0;
  const std::string file = std::string(PROGRAMMA) + "/risorse/schermate/" + nome + ".png";
  const auto foto = platform::Picture::Load(file, errore);
  EXPECT_TRUE(foto) << file;
  return foto->Fit(p.larghezza, p.altezza, 1, 0xFFFFFF, true);
}

// How many pixels are not as they should be.
int Diversi(const Surface& visto, const Surface& fondo, const Quadro& quadro) {
  Surface atteso = fondo;
  for (const Pezzo& p : quadro) {
    const Surface nero = Carica(p.nero, p), bianco = Carica(p.bianco, p);
    for (int y = 0; y < p.altezza; ++y)
      for (int x = std::max(0, -p.x); x < p.larghezza; ++x)
        if ((nero.row(y)[x] & 0xFFFFFF) == 0) atteso.row(p.y + y)[p.x + x] = bianco.row(y)[x];
  }
  int diversi = 0;
  for (int y = 0; y < 600; ++y)
    for (int x = 0; x < 800; ++x) diversi += ((visto.row(y)[x] ^ atteso.row(y)[x]) & 0xFFFFFF) != 0;
  return diversi;
}

// What is shown from the first piece on, each picture at its own time.
void Rievoca(const std::function<void(Banco&)>& fai, const std::vector<Quadro>& quadri) {
  Banco banco;
  Surface fondo;
  std::size_t n = 0;
  std::int64_t ultimo = -1;
  const auto guarda = [&](const auto&) {
    const std::int64_t ora = banco.host.NowMicros();
    if (ora == ultimo || n == quadri.size()) return;
    ultimo = ora;
    EXPECT_EQ(Diversi(banco.host.planeShown(), fondo, quadri[n]), 0) << "picture " << n;
    ++n;
  };
  banco.Passi({[&] {
                 servizi().comandi->SpegniTimer();
                 for (const char* nome : {"cmdExit", "CmdHelp"})
                   banco.gioco.tabellone()->Find(nome)->SetVisible(false);
               },
               [&] {
                 fondo = banco.host.planeShown();
                 banco.host.OnShow = guarda;
                 fai(banco);
               },
               [&] { banco.host.OnShow = nullptr; }});
  EXPECT_EQ(n, quadri.size());
}

Pezzo Dado(int f, int x, int y) {
  const std::string n = std::to_string(f);
  return {"Dadi.DadoBianco" + n, "Dadi.DadoNero" + n, x, y, 98, 120};
}

// A six and a one: the second die stays behind, the first goes to the edge and turns.
std::vector<Quadro> SeiEUno() {
  std::vector<Quadro> q;
  for (int f = 0; f <= 8; ++f)
    q.push_back({Dado(f, 98 * f - 82, 0), Dado(11 - f, 98 * f - 82, 130 + 10 * f)});
  for (int n = 0; n <= 7; ++n)
    q.push_back({Dado(n, 604 - 98 * n, 5 + 5 * n), Dado(11 - n, 604 - 98 * n, 220 + 10 * n)});
  q.push_back({Dado(1, 16, 48), Dado(1, 16, 300)});
  for (int f = 2; f <= 8; ++f) q.push_back({Dado(f, 98 * f - 82, 40 + 8 * f), Dado(2, 114, 310)});
  for (int f = 9; f <= 12; ++f)
    q.push_back({Dado(f, 702 - 98 * (f - 8), 104 + 5 * (f - 8)), Dado(2, 114, 310)});
  return q;
}

std::vector<Quadro> Giro() {
  constexpr int kSinistra[] = {370, 341, 312, 282, 252, 223, 194, 164};
  const std::string pieno = "ABCDEFGHGFEDCBAbcdefghgfedcba";
  std::vector<Quadro> q;
  for (const char c : pieno + pieno + pieno + "BCDEFGHGFEDCBAbcdefg") {
    const bool retro = c < 'a';
    const int i = c - (retro ? 'A' : 'a');
    const std::string n = std::to_string(i), serie = "FormRotazioneCarta.";
    q.push_back({{serie + (retro ? "Retro" : "Avanti") + n, serie + "Nero" + n, kSinistra[i], 45,
                  59 * (i + 1), 510}});
  }
  return q;
}

TEST(Rievocazione, AThrowOfTheDice) {
  Rievoca(
      [](Banco& banco) {
        banco.numeri = {0.9, 0.1};
        servizi().schermi->MostraNonModale(Schermata::Dadi);
        banco.host.Queue({platform::EventKind::Expose, 0, 0, platform::MouseButton::Left});
      },
      SeiEUno());
}

TEST(Rievocazione, ATurnOfTheCard) {
  Rievoca([](Banco&) { servizi().schermi->MostraModale(Schermata::FormRotazioneCarta); }, Giro());
}

}  // namespace
}  // namespace girovia
