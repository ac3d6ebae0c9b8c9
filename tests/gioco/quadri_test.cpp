// Pictures of a few screens as they were found good: quadri/<name>.png, at half the size of the
// forms. With GIROVIA_RINNOVA=1 in the environment they are made anew; look at them before they are
// committed.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "banco.h"
#include "cartella.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/sorprese.h"
#include "platform/drawing/picture.h"
#include "platform/drawing/reduce.h"
#include "platform/forms/msgbox.h"

namespace girovia {
namespace {

using platform::DeviceRect;
using platform::Surface;

// Another compiler may round a soft edge otherwise; a text, a colour or a place that has changed
// shows in more pixels than that.
constexpr double kDifferenzaMedia = 0.4;  // of 255
constexpr int kDiverso = 20;
constexpr double kParteDiversa = 0.002;

struct Quadro {
  const char* nome;
  int scala;
  std::function<void(Banco&)> apri;  // returns when the screen has closed
  bool nelSuono = false;             // as it looks in its last wait
  int attese = 22;  // how often the game waits before: the logo slides, pulses beat; 0: at once
};

// As a test may be called.
std::string Nome(const Quadro& quadro) {
  std::string nome = quadro.nome;
  std::replace(nome.begin(), nome.end(), '-', '_');
  return nome;
}

void PrintTo(const Quadro& quadro, std::ostream* su) { *su << quadro.nome; }

void Turno(int giocatore, int dado) {
  using namespace mod_Girovia;
  Giocatore = giocatore;
  Dado = dado;
  mod_Messaggi::ColoreCornice = Colore[giocatore];
  mod_Messaggi::Messaggio = "Vinci " + std::to_string(dado) + " euro";
}

// A tile trial with a deal in which two cells are exchanged; lifts the tile of the first, carries
// it by (dx, dy) and, if told so, drops it there.
void Tasselli(Banco& banco, Schermata schermata, std::vector<int> mazzo, platform::Point presa,
              double dx, double dy, bool posa) {
  using platform::EventKind;
  Turno(2, 12);
  mod_Girovia::Pos[2] = 99;
  mod_Messaggi::IndiceOrdinamento = 8;
  mod_Messaggi::Messaggio = "Se non ci riesci restituisci 12 euro e torni a Dniepropetrovsk";
  const double vie = schermata == Schermata::FormProvaPuzzle ? 12 : 9;
  for (const int t : mazzo) banco.numeri.push_back((t + 0.5) / vie);
  const auto manda = [&](EventKind cosa, platform::Point dove) {
    const platform::Point p = banco.gioco.screen().ToWindow(dove);
    banco.host.Queue({cosa, int(p.x), int(p.y), platform::MouseButton::Left});
  };
  if (dx != 0) {
    const platform::Point la{presa.x + dx, presa.y + dy};
    manda(EventKind::MouseDown, presa);
    manda(EventKind::MouseUp, presa);
    manda(EventKind::MouseMove, la);
    if (posa) manda(EventKind::MouseDown, la), manda(EventKind::MouseUp, la);
  }
  servizi().schermi->MostraModale(schermata);
}

void Ordinamento(Banco& banco, double dx, double dy, bool posa) {
  Tasselli(banco, Schermata::FormProvaOrdinamento, {1, 0, 2, 3, 5, 6, 7, 8}, {88, 76}, dx, dy,
           posa);
}

void Puzzle(Banco& banco, Flag finale, double dx, double dy, bool posa) {
  mod_Girovia::ArrivoRaggiunto = finale;
  Tasselli(banco, Schermata::FormProvaPuzzle, {1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, {200, 60}, dx,
           dy, posa);
}

const Quadro kQuadri[] = {
    {"ordinamento", 1, [](Banco& banco) { Ordinamento(banco, 0, 0, false); }},
    {"ordinamento-in-mano", 2, [](Banco& banco) { Ordinamento(banco, 90, 130, false); }},
    {"ordinamento-risolto", 1, [](Banco& banco) { Ordinamento(banco, 240, 0, true); }, true},
    {"puzzle", 1, [](Banco& banco) { Puzzle(banco, Falso, 0, 0, false); }},
    {"puzzle-in-mano", 2, [](Banco& banco) { Puzzle(banco, Falso, 90, 130, false); }},
    {"puzzle-risolto", 1, [](Banco& banco) { Puzzle(banco, Vero, 120, 0, true); }, true},
    {"domanda", 2,
     [](Banco&) {
       mod_Messaggi::Messaggio = "Vuoi uscire dal gioco?";
       servizi().schermi->MostraModale(Schermata::FormMessaggi);
     }},
    {"banconote", 1,
     [](Banco&) {
       Turno(1, 8);
       servizi().schermi->MostraModale(Schermata::FormBanconote);
     }},
    {"sovrapposizioni", 1,
     [](Banco&) {
       Turno(2, 3);
       mod_Messaggi::Messaggio = "Stoccarda è già occupata.\r\nCosa vuoi fare?";
       servizi().schermi->PreparaSovrapposizioni("Pago 5 euro e vado a Helsinki",
                                                 "Non pago niente e torno a Zurigo");
       servizi().schermi->MostraModale(Schermata::FormSovrapposizioni);
     }},
    {"bonus", 2,
     [](Banco& banco) {
       Turno(1, 3);
       banco.numeri = {0.1, 0.1, 0.3, 0.5, 0.9};
       servizi().schermi->MostraModale(Schermata::FormBonus);
     }},
    {"carta", 2,
     [](Banco&) {
       Turno(2, 9);
       mod_Messaggi::IndiceCarte2 = 65;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       servizi().schermi->MostraModale(Schermata::FormCarte2Items);
     }},
    {"giornale", 2,
     [](Banco&) {
       Turno(2, 9);
       mod_Girovia::Pos[2] = 47;
       mod_Messaggi::IndiceImprevisto = 14;
       servizi().schermi->MostraModale(Schermata::FormImprevisti);
     }},
    {"aiuto", 1,
     [](Banco& banco) {
       std::tm& ora = banco.host.wallClock;  // the longest date there is
       ora.tm_wday = 3, ora.tm_mday = 30, ora.tm_mon = 8, ora.tm_hour = 20;
       mod_Girovia::InfoDaPartita = Vero;
       servizi().schermi->MostraModale(Schermata::FormInfo);
     }},
    {"cartolina", 2,
     [](Banco&) {
       Turno(1, 4);
       mod_Girovia::CittaCliccata = 80;
       servizi().schermi->MostraModale(Schermata::FormCitta);
     }},
    {"pacco", 1,
     [](Banco&) {
       Turno(2, 4);
       mod_Girovia::Sorpresa = 1;
       mod_Girovia::CittaCliccata = mod_Girovia::Pos[2] = 67;
       servizi().schermi->MostraModale(Schermata::FormCitta);
     }},
    {"foto", 2,
     [](Banco& banco) {
       Turno(1, 9);
       mod_Messaggi::IndiceCarte4 = 16;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       servizi().comandi->SpegniTimer();
       const auto carta = banco.gioco.Crea(Schermata::FormCarte4Items);
       carta->Load();
       banco.Clicca(*carta->Find("cmdRisposta(1)"));
       carta->ShowModal();
     },
     false, 16},
    {"citta", 1,
     [](Banco&) {
       Turno(2, 9);
       mod_Messaggi::IndiceProvaCitta = 71;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       servizi().comandi->SpegniTimer();
       servizi().schermi->MostraModale(Schermata::FormProvaCitta);
     },
     false, 50},
    {"capitali", 2,
     [](Banco& banco) {
       Turno(1, 12);
       mod_Messaggi::IndiceProvaCapitali = 29;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 12 e torni ad Amburgo";
       servizi().comandi->SpegniTimer();
       const auto mappa = banco.gioco.Crea(Schermata::FormProvaCapitali);
       mappa->Load();
       banco.host.Click({800, 400});  // on the open map
       banco.Sopra(*mappa->Find("cmdcitta(71)"));
       mappa->ShowModal();
     },
     false, 98},
    {"avviso", 1,
     [](Banco& banco) {
       platform::MsgBox(banco.gioco.screen(), "GIROVIA GRANDETAPPA", "Vuoi uscire dal gioco?",
                        platform::MsgButtons::YesNo);
     }},
    {"tabellone", 2,
     [](Banco&) {
       using namespace mod_Girovia;
       Tabellone& tabellone = *servizi().tabellone;
       Turno(1, 3);
       Pos[1] = 81, Pos[2] = 20;
       for (int p : {1, 2}) {
         for (int i = 1; i <= Pos[p]; ++i) tabellone.MostraTratto(p, i);
         tabellone.ColoraCasella(Pos[p], int(NumeroColore(Colore[p])));
         tabellone.ScriviGruzzolo(p, Euro::Centesimi(p == 1 ? 12345 : -250));
       }
       tabellone.RefreshPrBar();
       tabellone.ColoraGruzzoli(65280, 255);
       tabellone.ScriviAnnuncio("Primo,\r\nc'è una sorpresa per te ad Istanbul");
       tabellone.ScambiaAnnuncio();  // in step with the second portrait
       tabellone.AvviaLampeggio();
     }},
    {"premiazione", 2,
     [](Banco&) {
       Turno(2, 3);
       mod_Girovia::Nome[1] = "Massimiliano...";
       servizi().schermi->MostraModale(Schermata::FormPremiazione);
     }},
    {"cerimonia", 2,
     [](Banco&) {
       Turno(2, 3);
       Cerimonia& cerimonia = *servizi().cerimonia;
       servizi().comandi->NascondiAiuto();
       servizi().comandi->NascondiAnnuncio();
       cerimonia.SgombraTabellone();
       cerimonia.NascondiPercorso();
       cerimonia.TingiTabellone();
       cerimonia.MostraCorona();
       cerimonia.MostraVincitore(mod_Girovia::Ritratto[2]);
       cerimonia.MostraTrofeo();
       cerimonia.MostraCongratulazioni();
       cerimonia.MostraPremioSpeciale(9);
       cerimonia.MostraBanconota500(2);
       cerimonia.MostraBanconota50(2);
     },
     false, 0},
};

// The form in front and what shows around its shape, at half its logical size.
Surface Fotografa(Banco& banco) {
  const Surface schermo = banco.host.Shot();
  const platform::Rect r = banco.davanti().PlaneRect();
  const double k = banco.gioco.screen().windowPixelsPerLogical();
  const int sinistra = int(r.left * k), alto = int(r.top * k);
  const int larghezza = int(r.width * k), altezza = int(r.height * k);
  Surface foto(int(r.width) / 2, int(r.height) / 2, 1);
  platform::Reducer riduttore(larghezza, altezza, foto.width(), foto.height());
  riduttore.Run(schermo.row(alto) + sinistra, schermo.deviceWidth(), foto.row(0),
                foto.deviceWidth(), foto.deviceBounds());
  return foto;
}

void Confronta(const Surface& foto, const std::string& file, const std::string& nome) {
  int errore = 0;
  const auto atteso = platform::Picture::Load(file, errore);
  ASSERT_TRUE(atteso) << file;
  ASSERT_EQ(atteso->pixelWidth(), foto.deviceWidth());
  ASSERT_EQ(atteso->pixelHeight(), foto.deviceHeight());
  double somma = 0, diversi = 0;
  const double quanti = double(atteso->argb().size());
  for (int y = 0; y < foto.deviceHeight(); ++y)
    for (int x = 0; x < foto.deviceWidth(); ++x) {
      const std::uint32_t a = atteso->argb()[std::size_t(y * foto.deviceWidth() + x)];
      const std::uint32_t b = foto.row(y)[x];
      int massima = 0;
      for (int s : {0, 8, 16}) {
        const int d = std::abs(int(a >> s & 255) - int(b >> s & 255));
        somma += d;
        massima = std::max(massima, d);
      }
      diversi += massima > kDiverso;
    }
  EXPECT_LE(somma / 3 / quanti, kDifferenzaMedia);
  EXPECT_LE(diversi / quanti, kParteDiversa);
  if (testing::Test::HasNonfatalFailure()) platform::SavePng(foto, nome + ".avuto.png");
}

class Quadri : public testing::TestWithParam<Quadro> {};

TEST_P(Quadri, LooksAsItDid) {
  const Quadro& quadro = GetParam();
  // Large pictures are not looked at here: they change when a city is drawn anew.
  Cartella cartella;
  cartella.Alleggerisci();
  for (const char* nome : {"FormGirovia.bmp", "FormImprevisti.png", "FormProvaCitta.jpg",
                           "FormProvaOrdinamento.jpg"}) {
    const std::string tinta = cartella.percorso() + "/risorse/schermate/" + nome;
    std::filesystem::remove(tinta);
    platform::SavePng(Surface(8, 6, 1, 0xC0A080), tinta);
  }

  Banco banco(quadro.scala, cartella.percorso());
  std::deque<std::function<void()>> passi(std::size_t(quadro.attese));
  for (auto& passo : passi) passo = [] {};
  passi.push_front([&] { quadro.apri(banco); });
  Surface foto;
  if (quadro.nelSuono)
    banco.host.OnBlocked = [&] { foto = Fotografa(banco); };
  else
    passi.push_back([&] { foto = Fotografa(banco); });
  banco.Passi(std::move(passi));

  const std::string file = std::string(PROVE) + "/quadri/" + quadro.nome + ".png";
  if (std::getenv("GIROVIA_RINNOVA")) {
    ASSERT_TRUE(platform::SavePng(foto, file));
  } else {
    Confronta(foto, file, quadro.nome);
  }
}

INSTANTIATE_TEST_SUITE_P(Tutti, Quadri, testing::ValuesIn(kQuadri),
                         [](const auto& quadro) { return Nome(quadro.param); });

}  // namespace
}  // namespace girovia
