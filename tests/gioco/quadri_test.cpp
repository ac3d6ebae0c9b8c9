// Pictures of a few screens as they were found good: quadri/<name>.png, at half the size of the
// forms. With GIROVIA_RINNOVA=1 in the environment they are made anew; look at them before they are
// committed.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>

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

// Another compiler may round a soft edge otherwise. The worst block counts and not the average: a
// label that has moved by a pixel is nothing in a whole screen.
constexpr int kBlocco = 8;
constexpr double kDifferenzaMassima = 2;  // of 255, in the mean of a block

constexpr int kNelSuono = 1'000'000;  // in the last blocking wait of all

struct Quadro {
  const char* nome;
  int scala;
  std::function<void(Banco&)> apri;  // returns when the screen has closed
  int attese = 22;   // how often the game waits before: the logo slides, pulses beat; 0: at once
  int bloccato = 0;  // as it looks in the last blocking wait up to so many milliseconds
  bool dallInizio = false;         // on the start screen
  std::string_view vere{};         // pictures that are not replaced
  platform::PixelSize finestra{};  // all of it is looked at
};

// As soon as the game waits again.
void Poi(Banco& banco, std::function<void(Banco&)> fai) {
  auto prima = banco.host.OnIdle;
  banco.host.OnIdle = [&banco, prima, fai] {
    const auto ora = fai;
    Banco& b = banco;
    b.host.OnIdle = prima;
    ora(b);
  };
}

// Another screen takes the place of what the steps would see, after so many milliseconds.
void Mostra(Banco& banco, Schermata schermata, int ms) {
  if (ms > 0) banco.Aspetta(ms);
  servizi().schermi->MostraModale(schermata);
}

void Tira(Banco& banco, int d1, int d2) {
  banco.numeri = {(d1 - 0.5) / 6, (d2 - 0.5) / 6};
  servizi().comandi->NascondiAiuto();
  servizi().schermi->MostraNonModale(Schermata::Dadi);
  banco.host.Queue({platform::EventKind::Expose, 0, 0, platform::MouseButton::Left});
}

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
    {"ordinamento-risolto", 1, [](Banco& banco) { Ordinamento(banco, 240, 0, true); }, 22,
     kNelSuono},
    {"puzzle", 1, [](Banco& banco) { Puzzle(banco, Falso, 0, 0, false); }},
    {"puzzle-in-mano", 2, [](Banco& banco) { Puzzle(banco, Falso, 90, 130, false); }},
    {"puzzle-risolto", 1, [](Banco& banco) { Puzzle(banco, Vero, 120, 0, true); }, 22, kNelSuono},
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
     16},
    {"citta", 1,
     [](Banco&) {
       Turno(2, 9);
       mod_Messaggi::IndiceProvaCitta = 71;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       servizi().comandi->SpegniTimer();
       servizi().schermi->MostraModale(Schermata::FormProvaCitta);
     },
     50},
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
     98},
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
     0},
    {"inizio", 2, [](Banco&) {}, 0, 0, true},
    {"inizio-fermo", 1, [](Banco& banco) { banco.Aspetta(12'000); }, 0, 0, true},
    {"aiuto-dall-inizio", 1, [](Banco& banco) { banco.Clicca(banco.Trova("CmdHelp")); }, 30, 0,
     true},
    {"dadi-in-aria", 1, [](Banco& banco) { Tira(banco, 5, 6); }, 1, 2150, false, "Dadi."},
    {"dadi-fermi", 2, [](Banco& banco) { Tira(banco, 4, 5); }, 1, 0, false, "Dadi."},
    {"carta-di-dorso", 1, [](Banco& banco) { Mostra(banco, Schermata::FormRotazioneCarta, 0); }, 1,
     1020, false, "FormRotazioneCarta."},
    {"carta-di-fronte", 2, [](Banco& banco) { Mostra(banco, Schermata::FormRotazioneCarta, 0); }, 1,
     kNelSuono, false, "FormRotazioneCarta."},
    {"incasso", 1,
     [](Banco& banco) {
       banco.numeri = {0.1, 0.3, 0.5, 0.5, 0.5, 0.2, 0.7, 0.4};
       banco.Clicca(banco.Trova("cmdRitratto(1)"));
       Poi(banco, [](Banco& b) { b.Clicca(b.Trova("cmdRisposta")); });
     },
     2, kNelSuono},
    {"nomi-di-citta", 2,
     [](Banco& banco) {
       servizi().comandi->NascondiAiuto();
       banco.Sopra(banco.Trova("cmdcitta(80)"));
       // Two movements at once would be merged.
       Poi(banco, [](Banco& b) { b.Sopra(b.Trova("cmdcitta(34)")); });
     },
     4},
    {"finestra-larga",
     1,
     [](Banco& banco) { Mostra(banco, Schermata::FormMessaggi, 0); },
     2,
     0,
     false,
     "",
     {1280, 720}},
    {"logo-al-secondo-giro", 1,
     [](Banco& banco) {
       mod_Messaggi::Messaggio = "Vuoi uscire dal gioco?";
       Mostra(banco, Schermata::FormMessaggi, 2400);
     },
     0},
    {"carta-con-moneta", 1,
     [](Banco& banco) {
       Turno(1, 9);
       mod_Messaggi::IndiceCarte2 = 12;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       Mostra(banco, Schermata::FormCarte2Items, 8400);
     },
     0},
    {"foto-con-moneta", 1,
     [](Banco& banco) {
       Turno(2, 9);
       mod_Messaggi::IndiceCarte4 = 3;
       mod_Messaggi::Messaggio = "Se sbagli restituisci 9 euro e torni a Copenaghen";
       Mostra(banco, Schermata::FormCarte4Items, 12'400);
     },
     0},
    {"pacco-aperto", 1,
     [](Banco& banco) {
       Turno(1, 4);
       banco.numeri = {0.3};
       mod_Girovia::Sorpresa = 1;
       mod_Girovia::CittaCliccata = mod_Girovia::Pos[1] = 34;
       Poi(banco, [](Banco& b) { b.Clicca(b.Trova("CmdSorpresa")); });
       Mostra(banco, Schermata::FormCitta, 0);
     },
     4},
};

// The form in front and what shows around its shape, or the whole window, at half its size.
Surface Fotografa(Banco& banco, bool intera) {
  const Surface schermo = banco.host.Shot();
  const platform::Rect r =
      intera ? platform::Rect{0, 0, double(schermo.deviceWidth()), double(schermo.deviceHeight())}
             : banco.davanti().PlaneRect();
  const double k = intera ? 1 : banco.gioco.screen().windowPixelsPerLogical();
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
  const int colonne = (foto.deviceWidth() + kBlocco - 1) / kBlocco;
  std::map<int, std::pair<double, int>> blocchi;  // differences and how many, by the block's place
  for (int y = 0; y < foto.deviceHeight(); ++y)
    for (int x = 0; x < foto.deviceWidth(); ++x) {
      const std::uint32_t a = atteso->argb()[std::size_t(y * foto.deviceWidth() + x)];
      const std::uint32_t b = foto.row(y)[x];
      auto& [somma, quanti] = blocchi[y / kBlocco * colonne + x / kBlocco];
      for (int s : {0, 8, 16}) somma += std::abs(int(a >> s & 255) - int(b >> s & 255)), ++quanti;
    }
  const auto media = [](const auto& blocco) { return blocco.second.first / blocco.second.second; };
  const auto& peggiore =
      *std::max_element(blocchi.begin(), blocchi.end(),
                        [&](const auto& a, const auto& b) { return media(a) < media(b); });
  EXPECT_LE(media(peggiore), kDifferenzaMassima)
      << "around " << 2 * kBlocco * (peggiore.first % colonne) << ","
      << 2 * kBlocco * (peggiore.first / colonne) << " of the form";
  if (testing::Test::HasNonfatalFailure()) platform::SavePng(foto, nome + ".avuto.png");
}

class Quadri : public testing::TestWithParam<Quadro> {};

TEST_P(Quadri, LooksAsItDid) {
  const Quadro& quadro = GetParam();
  // Large pictures are not looked at here: they change when a city is drawn anew.
  Cartella cartella;
  cartella.Alleggerisci(quadro.vere);
  for (const char* nome : {"FormGirovia.bmp", "FormImprevisti.png", "FormProvaCitta.jpg",
                           "FormProvaOrdinamento.jpg", "Splash.jpg"}) {
    const std::string tinta = cartella.percorso() + "/risorse/schermate/" + nome;
    std::filesystem::remove(tinta);
    platform::SavePng(Surface(8, 6, 1, 0xC0A080), tinta);
  }

  const bool intera = quadro.finestra.width > 0;
  const platform::PixelSize finestra =
      intera ? quadro.finestra : platform::PixelSize{800 * quadro.scala, 600 * quadro.scala};
  Banco banco(finestra, intera ? 0 : quadro.scala, cartella.percorso());
  banco.dallInizio = quadro.dallInizio;
  std::deque<std::function<void()>> passi(std::size_t(quadro.attese));
  for (auto& passo : passi) passo = [] {};
  std::int64_t inizio = 0;
  passi.push_front([&] {
    inizio = banco.host.NowMicros();
    quadro.apri(banco);
  });
  Surface foto;
  if (quadro.bloccato > 0)
    banco.host.OnBlocked = [&] {
      if (banco.host.NowMicros() - inizio <= quadro.bloccato * 1000LL)
        foto = Fotografa(banco, intera);
    };
  else
    passi.push_back([&] { foto = Fotografa(banco, intera); });
  banco.Passi(std::move(passi));
  ASSERT_GT(foto.width(), 0) << "the moment never came";

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
