// What forms show and do over time and under the pointer, read off their controls.
#include <algorithm>
#include <set>

#include "banco.h"
#include "cartella.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using platform::Control;
using platform::EventKind;
using platform::MouseButton;
using platform::Rect;

class Segni : public testing::Test {
 protected:
  Segni() : banco((cartella.Alleggerisci(), 1), cartella.percorso()) {}
  Control& T(const std::string& nome) { return *banco.gioco.tabellone()->Find(nome); }
  double Bordo(const char* nome) {
    return dynamic_cast<const platform::Shape&>(T(nome)).borderWidth();
  }
  Cartella cartella;
  Banco banco;
};

// Portraits and squares beat every 400 ms, the two portraits by different rules.
TEST_F(Segni, TheBoardBeats) {
  std::deque<std::function<void()>> passi;
  std::int64_t inizio = 0;
  std::set<int> visti;
  passi.push_back([&] { inizio = banco.host.NowMicros(); });
  bool grande = false, cambiato = false;
  for (int n = 0; n < 24; ++n)
    passi.push_back([&] {
      const bool ora = T("cmdRitratto(1)").place().width == 56;
      if (ora != grande) cambiato = true;
      grande = ora;
      visti.insert(ora);
      if (!cambiato) return;
      EXPECT_EQ(T("cmdRitratto(1)").place(),
                ora ? (Rect{325, 527, 56, 56}) : (Rect{326, 528, 54, 54}));
      EXPECT_EQ(T("cmdRitratto(2)").place(),
                ora ? (Rect{455, 527, 56, 56}) : (Rect{456, 528, 54, 54}));
      EXPECT_EQ(T("cmdcitta(0)").place().width, ora ? 19 : 15);
      EXPECT_EQ(Bordo("Picture1"), ora ? 4 : 3);
      EXPECT_EQ(Bordo("Picture2"), ora ? 4 : 2);
      for (const char* nome : {"LblClicca(1)", "ImgFreccia(1)"})
        EXPECT_EQ(T(nome).visible(), !ora) << nome;
      for (const char* nome : {"LblClicca(2)", "ImgFreccia(2)"})
        EXPECT_EQ(T(nome).visible(), ora) << nome;
    });
  banco.Passi(std::move(passi));
  EXPECT_EQ(visti.size(), 2u);
}

// Both players' squares beat in one phase, an occupied square has no star and a free one has it
// back; what a click on a portrait puts away, dice included until the prize is taken.
TEST_F(Segni, SquaresSegmentsAndDiceOfATurn) {
  const auto rosa = [&](int i) {  // the colour of a square's edge and of its middle
    const Rect r = T("cmdcitta(" + std::to_string(i) + ")").place();
    return std::pair{banco.host.planeShown().PixelAt(r.left + 3, r.top + 3),
                     banco.host.planeShown().PixelAt(r.left + r.width / 2, r.top + r.height / 2)};
  };
  const auto dadi = [&](bool ci) {
    for (const char* nome : {"PicDado1", "PicDadoOmbra1", "PicDado2", "PicDadoOmbra2"})
      EXPECT_EQ(T(nome).visible(), ci) << nome;
  };
  std::pair<platform::Color, platform::Color> stella;
  banco.Passi({[&] {
                 banco.gioco.screen().Flush();
                 stella = rosa(1);
                 Tabellone& t = *servizi().tabellone;
                 t.ColoraCasella(1, 0x00C878);
                 EXPECT_EQ(rosa(1).second, 0x00C878u) << "the star stands on an occupied square";
                 t.LiberaCasella(1);
                 EXPECT_EQ(rosa(1), stella);
                 for (int i : {1, 2, 3}) t.MostraTratto(1, i);
                 t.NascondiTratto(1, 3);
                 for (int i : {1, 2, 3}) {
                   EXPECT_EQ(T("Line1(" + std::to_string(i) + ")").visible(), i < 3);
                   EXPECT_FALSE(T("Line2(" + std::to_string(i) + ")").visible());
                 }
                 banco.numeri = {0.1, 0.3, 0.5, 0.5, 0.5, 0.2, 0.7, 0.4};
                 banco.Clicca(T("cmdRitratto(2)"));
               },
               [&] {
                 ASSERT_EQ(banco.davanti().name(), "FormBanconote");
                 dadi(true);
                 EXPECT_EQ(Bordo("Picture1"), 2);
                 EXPECT_EQ(Bordo("Picture2"), 2);
                 EXPECT_EQ(T("cmdRitratto(1)").place(), (Rect{326, 528, 54, 54}));
                 EXPECT_EQ(T("cmdRitratto(2)").place(), (Rect{456, 528, 54, 54}));
                 for (const char* nome :
                      {"cmdRitratto(1)", "cmdRitratto(2)", "LblClicca(1)", "LblClicca(2)",
                       "ImgFreccia(1)", "ImgFreccia(2)", "CmdHelp", "cmdExit", "LblSorpresa"})
                   EXPECT_FALSE(T(nome).visible()) << nome;
                 banco.Aspetta(410);
               },
               [&] {
                 const Control& bottone = banco.Trova("cmdRisposta");
                 EXPECT_EQ(bottone.place(), (Rect{291, 173, 58, 58}));
                 banco.Aspetta(400);
               },
               [&] {
                 const Control& bottone = banco.Trova("cmdRisposta");
                 EXPECT_EQ(bottone.place(), (Rect{293, 175, 54, 54}));
                 dadi(true);
                 banco.Clicca(bottone);
               },
               [&] { dadi(false); }});
}

// The dialog of an occupied square is carried by its own ground and by its title, with the left
// button only, and not by its message.
TEST_F(Segni, DraggingTheOverlap) {
  const auto tira = [&](double x, double y, MouseButton bottone) {
    const Rect f = banco.davanti().PlaneRect();
    const auto manda = [&](EventKind cosa, double dx) {
      banco.host.Queue({cosa, int(f.left + x + dx), int(f.top + y + dx), bottone});
    };
    manda(EventKind::MouseMove, 0);
    manda(EventKind::MouseDown, 0);
    manda(EventKind::MouseMove, 20);
    manda(EventKind::MouseUp, 20);
    return f;
  };
  const struct {
    double x, y;
    MouseButton bottone;
    bool segue;
  } kCasi[] = {{100, 30, MouseButton::Left, true},
               {100, 30, MouseButton::Right, false},
               {2, 100, MouseButton::Left, true},
               {2, 100, MouseButton::Right, false},
               {150, 90, MouseButton::Left, false}};
  std::deque<Banco::Momento> momenti;
  Rect prima;
  for (const auto& caso : kCasi) {
    momenti.push_back({0, [&, caso] { prima = tira(caso.x, caso.y, caso.bottone); }});
    momenti.push_back({0, [&, caso] {
                         const Rect f = banco.davanti().PlaneRect();
                         EXPECT_EQ(f.left - prima.left, caso.segue ? 20 : 0) << caso.x;
                         EXPECT_EQ(f.top - prima.top, caso.segue ? 20 : 0) << caso.x;
                       }});
  }
  banco.Passi({[&] {
    Giocatore = 1;
    mod_Messaggi::ColoreCornice = Colore[1];
    mod_Messaggi::Messaggio = "Stoccarda è già occupata.\r\nCosa vuoi fare?";
    banco.Mostra(Schermata::FormSovrapposizioni, std::move(momenti));
  }});
}

// Over each thing that can be clicked the open hand shows, from a press to the next movement the
// closed one; some take the focus with the movement.
TEST_F(Segni, HandsAndFocusOfEveryForm) {
  const struct {
    Schermata schermata;
    std::string_view conFuoco, senza;  // names as they begin
  } kForme[] = {
      {Schermata::FormMessaggi, "cmdRisposta", ""},
      {Schermata::FormSovrapposizioni, "cmdRisposta", ""},
      {Schermata::FormBanconote, "cmdRisposta", ""},
      {Schermata::FormBonus, "", "cmdRisposta"},
      {Schermata::FormCitta, "", "cmdExit CmdSorpresa"},
      {Schermata::FormCarte2Items, "cmdRisposta", ""},
      {Schermata::FormCarte4Items, "cmdRisposta", ""},
      {Schermata::FormImprevisti, "cmdRisposta", ""},
      {Schermata::FormInfo, "cmdRisposta", ""},
      {Schermata::FormPremiazione, "cmdRisposta", ""},
      {Schermata::FormProvaCitta, "", "cmdExit cmdcitta"},
      {Schermata::FormProvaCapitali, "", "cmdExit cmdcitta"},
      {Schermata::FormProvaOrdinamento, "cmdRisposta", ""},
      {Schermata::FormProvaPuzzle, "cmdRisposta", ""},
  };
  const auto controlla = [&](const platform::Form& form, std::string_view con,
                             std::string_view senza) {
    std::set<std::string> trovati;
    for (Control* c : form.controls()) {
      if (!dynamic_cast<platform::CommandButton*>(c)) continue;
      const std::string nome = c->name().substr(0, c->name().find('('));
      const bool fuoco = con.find(nome) != con.npos;
      const std::string chi = form.name() + "." + c->name();
      EXPECT_TRUE(fuoco || senza.find(nome) != senza.npos) << chi;
      EXPECT_EQ(c->focusOnMove(), fuoco) << chi;
      c->MouseMove({});
      EXPECT_EQ(c->pointer().hotX, 12) << chi;
      c->MouseDown({});
      EXPECT_EQ(c->pointer().hotX, 16) << chi;
      c->MouseMove({});
      EXPECT_EQ(c->pointer().hotX, 12) << chi;
    }
  };
  banco.numeri.assign(3000, 0);
  for (std::size_t i = 0; i < banco.numeri.size(); ++i)
    banco.numeri[i] = double(i * 37 % 101) / 101;
  banco.Passi({[&] {
    controlla(*banco.gioco.tabellone(), "cmdRitratto CmdHelp", "cmdExit cmdcitta");
    EXPECT_EQ(T("cmdRitratto(1)").toolTip(), "TIRA IL DADO");
    EXPECT_EQ(T("cmdRitratto(2)").toolTip(), "TIRA IL DADO");
    Giocatore = 1;
    Dado = 7;
    Sorpresa = 1;
    Pos[1] = CittaCliccata = 34;
    mod_Messaggi::ColoreCornice = Colore[1];
    for (const auto& forma : kForme) {
      const auto form = banco.gioco.Crea(forma.schermata);
      form->Load();
      form->Show();
      controlla(*form, forma.conFuoco, forma.senza);
      form->Unload();
    }
  }});
}

}  // namespace
}  // namespace girovia
