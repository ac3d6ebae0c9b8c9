// The two trials in which tiles are carried about, played by pointer.
#include <cmath>

#include "banco.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using mod_Messaggi::Risposta;
using platform::EventKind;
using platform::MouseButton;
using platform::PictureBox;
using platform::Point;

constexpr platform::Color kColore = 0x00C878;  // no picture holds exactly this one
constexpr auto kOrdinamento = Schermata::FormProvaOrdinamento;
constexpr auto kPuzzle = Schermata::FormProvaPuzzle;

std::string Nome2(int cella) { return "Picture2(" + std::to_string(cella) + ")"; }

class Tavolo : public Banco {
 public:
  using Banco::Banco;

  // Opens a trial whose draws give these tiles, and returns when it has closed.
  void Apri(Schermata schermata, std::deque<int> mazzo) {
    Giocatore = 2;
    Colore[2] = mod_Messaggi::ColoreCornice = std::to_string(kColore);
    mod_Messaggi::Messaggio = "Se non ci riesci restituisci 12 euro e torni a Dniepropetrovsk";
    mod_Messaggi::IndiceOrdinamento = 1;
    Risposta = -1;
    numeri.clear();
    for (int t : mazzo) numeri.push_back((t + 0.5) / (schermata == kOrdinamento ? 9 : 12));
    servizi().comandi->SpegniTimer();
    RitornoProva = Vero;
    servizi().schermi->MostraModale(schermata);
  }

  PictureBox& Riquadro(const std::string& nome) {
    return dynamic_cast<PictureBox&>(*davanti().Find(nome));
  }
  int Tassello(int cella) { return std::stoi(Riquadro(Nome2(cella)).tag()); }
  bool InMano() { return Riquadro("picTassello").visible(); }

  // A point of a control, on the plane.
  Point Punto(const std::string& nome, double x, double y) {
    const platform::Control& c = *davanti().Find(nome);
    const platform::Rect r = c.InForm(c.place()), f = davanti().PlaneRect();
    return {f.left + r.left + x, f.top + r.top + y};
  }
  void Manda(EventKind cosa, Point dove, MouseButton bottone = MouseButton::Left) {
    const Point p = gioco.screen().ToWindow(dove);
    host.Queue({cosa, int(p.x), int(p.y), bottone});
  }
  void Muovi(Point dove) { Manda(EventKind::MouseMove, dove); }
  void Premi(Point dove, MouseButton bottone = MouseButton::Left) {
    Manda(EventKind::MouseDown, dove, bottone);
    Manda(EventKind::MouseUp, dove, bottone);
  }
  void Clic(Point dove, MouseButton bottone = MouseButton::Left) {
    Muovi(dove);
    Premi(dove, bottone);
  }
  // From the point (x, y) of one cell to that of another.
  void Sposta(int da, int a, double x, double y) {
    Clic(Punto(Nome2(da), x, y));
    Clic(Punto(Nome2(a), x, y));
  }
};

struct Prova {
  Schermata schermata;
  Flag arrivo;
  platform::PixelSize finestra;
};

void PrintTo(const Prova& p, std::ostream* su) {
  *su << int(p.schermata) << " arrival " << p.arrivo << " in " << p.finestra.width;
}

class Tessere : public testing::TestWithParam<Prova> {};

// One tile after the other is lifted off its middle, dragged a little as children do, carried and
// dropped.
TEST_P(Tessere, ArePutInOrderByPointer) {
  const auto& [schermata, arrivo, finestra] = GetParam();
  const bool puzzle = schermata == kPuzzle;
  Tavolo t(finestra, 0);
  std::vector<std::string> suoni;
  t.gioco.screen().OnSound = [&](const std::string& suono) { suoni.push_back(suono); };
  std::deque<std::function<void()>> passi{[&] {
    Pos[2] = 65;
    ArrivoRaggiunto = arrivo;
    t.Apri(schermata, puzzle ? std::deque{11, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}
                             : std::deque{8, 0, 1, 2, 3, 5, 6, 7});
    EXPECT_EQ(&t.davanti(), t.gioco.tabellone());
  }};
  int solleva = 0;
  for (int c = 0; c < (puzzle ? 11 : 8); ++c) {
    if (!puzzle && c == 4) continue;
    const double x = 20 + 9 * c, y = 100 - 7 * c;
    passi.push_back([&, c, x, y] {
      EXPECT_FALSE(t.gioco.tabellone()->Find("cmdExit")->visible());
      int da = c;
      while (t.Tassello(da) != c) ++da;
      solleva = da;
      const Point presa = t.Punto(Nome2(da), x, y);
      t.Muovi(presa);
      t.Manda(EventKind::MouseDown, presa);
      t.Muovi({presa.x + 9, presa.y - 5});
      t.Manda(EventKind::MouseUp, {presa.x + 9, presa.y - 5});
      t.Muovi({presa.x - 30, presa.y + 40});
      t.Muovi(t.Punto(Nome2(c), x, y));
    });
    passi.push_back([&, c, x, y] {
      const platform::Rect qui = t.Riquadro("picTassello").place();
      const platform::Rect cella = t.Riquadro(Nome2(c)).place();
      EXPECT_TRUE(t.InMano());
      // Window and form count in different pixels, and the ordering rounds to whole ones.
      EXPECT_NEAR(qui.left, cella.left, 1) << c;
      EXPECT_NEAR(qui.top, cella.top, 1) << c;
      EXPECT_TRUE(t.host.pointerArea());
      EXPECT_EQ(t.host.pointer().hotX, 16) << "no closed hand";
      // The cell of origin is empty, but for what the tile itself covers.
      EXPECT_EQ(t.Riquadro(Nome2(solleva)).surface().PixelAt(50, 50), kColore);
      t.Premi(t.Punto(Nome2(c), x, y));
    });
  }
  passi.push_back([&] {
    EXPECT_EQ(Risposta, 1);
    EXPECT_EQ(Premio, Euro::Interi(puzzle ? 20 : 10));
    EXPECT_FALSE(t.host.pointerArea());
    EXPECT_TRUE(t.gioco.tabellone()->Find("cmdExit")->visible());
    ASSERT_GT(suoni.size(), 4u);
    EXPECT_EQ(suoni.front(), "inno");
    EXPECT_EQ(suoni[1], "117");
    EXPECT_EQ(std::count(suoni.begin(), suoni.end(), "212"), puzzle ? 11 : 7);
    EXPECT_EQ(std::count(suoni.begin(), suoni.end(), "214"), puzzle ? 11 : 7);
    EXPECT_EQ(suoni.back(), "106");
  });
  t.Passi(std::move(passi));
}

INSTANTIATE_TEST_SUITE_P(Tutte, Tessere,
                         testing::Values(Prova{kOrdinamento, Falso, {800, 600}},
                                         Prova{kOrdinamento, Falso, {1024, 768}},
                                         Prova{kPuzzle, Falso, {800, 600}},
                                         Prova{kPuzzle, Falso, {1024, 768}},
                                         Prova{kPuzzle, Vero, {1024, 768}}));

TEST(Ordinamento, ATileIsNeverOutrunAndOnlyAFreshClickDropsIt) {
  Tavolo t;
  t.Passi({[&] {
             t.Apri(kOrdinamento, {0, 1, 2, 3, 5, 6, 8, 7});
           },
           [&] {
             t.Clic(t.Punto(Nome2(0), 20, 20), MouseButton::Right);
             t.Clic(t.Punto("PicCaricamento", 20, 20));
           },
           [&] {
             EXPECT_FALSE(t.InMano());
             EXPECT_TRUE(t.Riquadro("PicCaricamento").visible());
             EXPECT_EQ(t.host.pointer(), platform::Pointer{});
             // Off its cell by half of where it was grabbed, rounded to even, until it is moved.
             t.Manda(EventKind::MouseDown, t.Punto(Nome2(0), 195, 151));
           },
           [&] {
             EXPECT_FALSE(t.Riquadro("PicCaricamento").visible());
             EXPECT_EQ(t.Riquadro("picTassello").place().left, 98);  // 195 - 97.5
             EXPECT_EQ(t.Riquadro("picTassello").place().top, 76);   // 151 - 75.5
             EXPECT_EQ(*t.host.pointerArea(), (platform::DeviceRect{195, 151, 780, 590}));
             t.davanti().Find("cmdRisposta")->Click();  // as a key would
             t.Manda(EventKind::MouseUp, {2000, 2000});
             t.Muovi({-500, 2000});
           },
           [&] {
             EXPECT_EQ(t.Riquadro("picTassello").place().left, 0);
             EXPECT_EQ(t.Riquadro("picTassello").place().top, 438);
             const Point bottone = t.Punto("cmdRisposta", 27, 41);
             t.Clic(bottone, MouseButton::Right);
             EXPECT_EQ(t.davanti().HitTest(bottone.x, bottone.y), t.davanti().Find("cmdRisposta"));
             t.Clic(bottone);
           },
           [&] {
             EXPECT_EQ(&t.davanti(), t.gioco.screen().top());
             EXPECT_FALSE(t.InMano());
             EXPECT_EQ(t.Tassello(8), 0) << "dropped under the button";
             EXPECT_EQ(t.Tassello(0), 7);
             // Pressed elsewhere without a movement: it falls where it is.
             t.Clic(t.Punto(Nome2(8), 20, 20));
             t.Muovi(t.Punto(Nome2(2), 20, 20));
             t.Premi({10, 590});
           },
           [&] {
             EXPECT_EQ(t.Tassello(2), 0);
             EXPECT_EQ(t.Tassello(8), 2);
             t.Sposta(6, 4, 50, 50);
           },
           [&] {
             EXPECT_EQ(t.Tassello(4), 6);
             t.Clic(t.Punto(Nome2(4), 50, 50));
             t.Sposta(6, 4, 50, 50);  // brings the reference city back
             t.Sposta(1, 1, 50, 50);
           },
           [&] {
             EXPECT_FALSE(t.InMano());
             for (const auto& [c, tassello] : {std::pair{0, 7}, {1, 1}, {4, 4}, {6, 6}, {8, 2}})
               EXPECT_EQ(t.Tassello(c), tassello);
             t.Clic(t.Punto("cmdRisposta", 20, 20));
           },
           [&] { EXPECT_EQ(Risposta, 0); }});
}

TEST(Tessere, TheEndOfTheTimeFreesThePointer) {
  for (const auto& [schermata, millisecondi] :
       {std::pair{kOrdinamento, 62'000}, {kPuzzle, 114'000}}) {
    Tavolo t;
    std::int64_t inizio = 0;
    t.Passi({[&, prova = schermata] {
               inizio = t.host.NowMicros();
               t.Apri(prova, {7, 0, 1, 2, 3, 5, 6, 8, 4, 9, 10, 11});
               EXPECT_EQ((t.host.NowMicros() - inizio) / 1000, millisecondi);
               EXPECT_EQ(Risposta, 2);
               EXPECT_FALSE(t.host.pointerArea());
             },
             [&] {
               t.Manda(EventKind::MouseDown, t.Punto(Nome2(3), 50, 50));
               t.Muovi({400, 300});
             },
             [&] {
               EXPECT_TRUE(t.InMano());
               EXPECT_TRUE(t.host.pointerArea());
               t.Aspetta(millisecondi);
             },
             [&] {
               // The board has the mouse again.
               t.Manda(EventKind::MouseUp, {10, 10});
               t.Clicca(*t.gioco.tabellone()->Find("cmdExit"));
             },
             [&] { EXPECT_EQ(t.davanti().name(), "FormMessaggi"); }});
  }
}

// The middle of mark n on the ring.
Point Segno(int n) {
  const double a = 0.05 * n - 1.5;
  return {400 + 400 * 0.965 * std::cos(a) - 0.5, 300 + 300 * 0.965 * std::sin(a) - 0.5};
}

TEST(Ordinamento, MarksGrowAroundTheRing) {
  Tavolo t;
  // The game's own clocks would not wake it in time for a sound that is on when a mark falls due.
  platform::Timer sveglia;
  std::int64_t inizio = 0;
  const auto segno = [&](int n) {
    const auto colore = t.Riquadro("picOriginale").surface().PixelAt(Segno(n).x, Segno(n).y);
    return colore == platform::colors::kYellow ? 'g' : colore == platform::colors::kRed ? 'r' : '-';
  };
  t.Passi({[&] {
             t.Apri(kOrdinamento, {0, 1, 2, 3, 5, 6, 8, 7});
           },
           [&] {
             inizio = t.host.NowMicros();
             sveglia.Attach(t.davanti(), 400, true);
             t.Clic(t.Punto(Nome2(0), 20, 20));
             t.Aspetta(400);
           },
           [&] {
             t.Premi({20, 20});
           },
           [&] {
             EXPECT_EQ((t.host.NowMicros() - inizio) / 1000, 600);
             EXPECT_EQ(segno(1), 'g');
             EXPECT_EQ(segno(2), '-');
             t.Aspetta(400);
           },
           [&] {
             EXPECT_EQ(segno(2), 'g');
             EXPECT_EQ(segno(3), '-');
             t.Aspetta(60'500);
           },
           [&] {
             std::string anello;
             for (int n = 1; n <= 123; ++n) anello += segno(n);
             EXPECT_EQ(anello, std::string(28, 'g') + "---" + std::string(29, 'g') + "--" +
                                   std::string(27, 'g') + "------" + std::string(27, 'r') + "-");
             // In the solved grid the photographs hide what their tiles hid.
             t.host.OnBlocked = [&] {
               if (t.Riquadro(Nome2(0)).visible()) return;
               EXPECT_EQ(segno(2), 'g');
               EXPECT_EQ(segno(12), '-');
             };
             t.Sposta(7, 8, 50, 50);
           },
           [&] { EXPECT_EQ(Risposta, 1); }});
}

// Square 67 has a photograph one pixel narrower than the others, square 72 one four pixels lower.
TEST(Puzzle, ASmallerPhotographLeavesAStripOfThePlayersColour) {
  const struct {
    int casella, ultimo;  // a tile of the short side
    double x, y;          // in the strip
    int larghezza, altezza;
  } casi[] = {{67, 7, 119, 60, 481, 362}, {72, 8, 60, 117, 482, 358}};
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.casella);
    Tavolo t;
    t.Passi({[&] {
               Pos[2] = caso.casella;
               std::deque<int> mazzo{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
               std::swap(mazzo[0], mazzo[std::size_t(caso.ultimo)]);
               t.Apri(kPuzzle, mazzo);
             },
             [&] {
               EXPECT_EQ(t.Riquadro("picOriginale").place().width, caso.larghezza);
               EXPECT_EQ(t.Riquadro("picOriginale").place().height, caso.altezza);
               const auto vede = [&](const std::string& nome, double x, double y) {
                 const Point p = t.Punto(nome, x, y);
                 return t.host.planeShown().PixelAt(p.x, p.y);
               };
               EXPECT_EQ(vede(Nome2(0), caso.x, caso.y), kColore);
               EXPECT_NE(vede(Nome2(0), caso.x - 1, caso.y - 3), kColore);
               EXPECT_EQ(vede("picOriginale", caso.larghezza - 1, caso.altezza - 1), 0u);
               t.Clic(t.Punto(Nome2(0), 5, 5));
               t.Clic({799, 599});  // as far as it goes
             },
             [&] {
               EXPECT_EQ(t.Tassello(11), caso.ultimo);
               t.Clic(t.Punto(Nome2(11), 100, 90));
               t.Clic({0, 0});
             },
             [&] { EXPECT_EQ(t.Tassello(0), caso.ultimo); }});
  }
}

TEST(Puzzle, TheBarShrinksAndBlinksRed) {
  Tavolo t;
  const auto barra = [&t] { return t.davanti().Find("Linea"); };
  const auto colore = [&t] { return t.Riquadro("Linea").backColor(); };
  t.Passi({[&] {
             t.Apri(kPuzzle, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
           },
           [&] { t.Aspetta(64'500); },
           [&] {
             EXPECT_EQ(barra()->place(), (platform::Rect{153, 534, 201, 7}));
             EXPECT_TRUE(barra()->visible());
             EXPECT_EQ(colore(), platform::colors::kNavy);
             t.Aspetta(500);
           },
           [&] {
             EXPECT_FALSE(barra()->visible());
             t.Aspetta(500);
           },
           [&] {
             EXPECT_TRUE(barra()->visible());
             EXPECT_EQ(colore(), platform::colors::kRed);
           }});
}

TEST(Puzzle, TheFormIsDraggedByItsFreeSurfaceAndTheConfinementFollows) {
  Tavolo t;
  t.Passi({[&] {
             t.Apri(kPuzzle, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
           },
           [&] {
             t.Manda(EventKind::MouseDown, {400, 580});
             t.Muovi({300, 560});
             t.Manda(EventKind::MouseUp, {300, 560});
             t.Muovi({300, 100});
           },
           [&] {
             EXPECT_EQ(t.davanti().PlaneRect().left, 46);  // 146.5 in the middle
             EXPECT_EQ(t.davanti().PlaneRect().top, -5);
             t.Clic(t.Punto(Nome2(6), 30, 40));
             t.Muovi({799, 599});
           },
           [&] {
             // From the outer corner of the box on, as far as box and tile differ.
             EXPECT_EQ(*t.host.pointerArea(), (platform::DeviceRect{88, 47, 451, 290}));
             EXPECT_EQ(t.Riquadro("picTassello").place().left, 361);
             EXPECT_EQ(t.Riquadro("picTassello").place().top, 241);
           }});
}

TEST(Puzzle, SolvedItShrinksAroundPictureAndTitle) {
  for (const Flag finale : {Falso, Vero}) {
    Tavolo t;
    int guardato = 0;
    t.host.OnBlocked = [&] {
      if (t.davanti().name() != "FormProvaPuzzle" || t.Riquadro(Nome2(0)).visible()) return;
      ++guardato;
      const platform::Form& form = t.davanti();
      EXPECT_EQ(form.height(), 420);
      const platform::Rect titolo = form.Find("LblTitolo")->place();
      EXPECT_EQ(titolo.left, (507 - titolo.width) / 2);
      EXPECT_GE(titolo.top, 374);
      EXPECT_LE(titolo.bottom(), 408);
      EXPECT_EQ(titolo.height, finale ? 32 : 19);
      const auto vede = [&](double x, double y) {
        const platform::Rect f = form.PlaneRect();
        return t.host.planeShown().PixelAt(f.left + x, f.top + y);
      };
      EXPECT_EQ(vede(250, 407), 0xFFFFFFu);
      EXPECT_EQ(vede(250, 408), 0x808080u);
      EXPECT_EQ(vede(250, 419), 0u);
      EXPECT_EQ(vede(100, 390), 0xFFFFFFu) << "the small picture";
      EXPECT_EQ(vede(5, 410), 0xE0E0E0u);
      EXPECT_NE(vede(250, 535), kColore) << "the bed of the bar";
    };
    t.Passi({[&] {
               Pos[2] = 65;
               ArrivoRaggiunto = finale;
               t.Apri(kPuzzle, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
             },
             [&] { t.Sposta(0, 0, 60, 60); }});
    EXPECT_GT(guardato, 0);
  }
}

}  // namespace
}  // namespace girovia
