// The two card trials, played by the pointer, and the card that turns before them.
#include "banco.h"
#include "cartella.h"
#include "core/mod_Messaggi.h"
#include "platform/forms/msgbox.h"

namespace girovia {
namespace {

using mod_Girovia::Premio;
using platform::Rect;

constexpr int kPorto = 35;  // "che hanno un porto": the first of the four does not fit

class Carte : public testing::Test {
 protected:
  explicit Carte() : banco((cartella.Alleggerisci(), 1), cartella.percorso()) {
    banco.gioco.screen().OnSound = [this](const std::string& nome) { suoni += nome + " "; };
  }

  void Gioca(Schermata carta, std::deque<Banco::Momento> momenti) {
    servizi().comandi->SpegniTimer();
    servizi().comandi->NascondiUscita();  // as the turning card leaves the board
    mod_Girovia::Giocatore = 1;
    mod_Messaggi::IndiceCarte4 = kPorto;
    mod_Messaggi::Risposta = -1;
    suoni.clear();
    inizio = banco.host.NowMicros();
    banco.Mostra(carta, std::move(momenti));
  }
  std::function<void()> Clic(int i) {
    return [this, i] { banco.Clicca(banco.Trova("cmdRisposta(" + std::to_string(i) + ")")); };
  }
  double Passati() { return double(banco.host.NowMicros() - inizio) / 1000; }

  Cartella cartella;
  Banco banco;
  std::string suoni;
  std::int64_t inizio = 0;
};

TEST_F(Carte, FourPhotosOutcomes) {
  const struct {
    const char* nome;
    std::vector<std::pair<int, int>> clic;  // milliseconds, button
    int risposta;
    Euro premio;
    std::string suoni;
  } kCasi[] = {
      {"three right", {{500, 4}, {900, 2}, {1300, 3}}, 1, Euro::Interi(20), "102 102 102 106 "},
      // A tick that falls due while the sound plays does not lower the prize any more.
      {"the last one late",
       {{500, 4}, {900, 2}, {11'950, 3}},
       1,
       Euro::Interi(5),
       "102 102 215 215 102 106 "},
      {"wrong at last", {{500, 4}, {900, 2}, {1300, 1}}, 2, Euro::Interi(20), "102 102 102 "},
      {"wrong at once", {{500, 1}}, 2, Euro::Interi(20), "102 "},
      {"two right, then given up",
       {{500, 4}, {4100, 3}, {4500, 0}},
       0,
       Euro::Interi(10),
       "102 215 102 102 "},
      {"two right, then too late",
       {{500, 4}, {900, 2}, {45'000, 3}},
       0,
       Euro::Centesimi(1),
       "102 102 215 215 215 215 215 215 215 215 215 215 215 "},
  };
  banco.Passi({[&] {
    for (const auto& caso : kCasi) {
      SCOPED_TRACE(caso.nome);
      std::deque<Banco::Momento> momenti;
      for (const auto& [ms, i] : caso.clic) momenti.push_back({ms, Clic(i)});
      momenti.push_back({60'000, nullptr});
      Gioca(Schermata::FormCarte4Items, std::move(momenti));
      EXPECT_EQ(mod_Messaggi::Risposta, caso.risposta);
      EXPECT_EQ(Premio, caso.premio);
      EXPECT_EQ(suoni, caso.suoni);
      EXPECT_LT(Passati(), 46'000);
      EXPECT_EQ(&banco.davanti(), banco.gioco.tabellone());
      EXPECT_TRUE(banco.gioco.tabellone()->Find("cmdExit")->visible());
    }
  }});
}

TEST_F(Carte, ADoubleClickOnAPhotoCountsOnce) {
  banco.Passi({[&] {
    Gioca(Schermata::FormCarte4Items, {{100,
                                        [&] {
                                          const platform::Control& bottone =
                                              banco.Trova("cmdRisposta(2)");
                                          for (int n = 0; n < 3; ++n) banco.Clicca(bottone);
                                        }},
                                       {200, [&] {
                                          EXPECT_EQ(mod_Messaggi::Risposta, -1);
                                          EXPECT_FALSE(banco.Trova("cmdRisposta(2)").visible());
                                          EXPECT_TRUE(banco.Trova("ImgCitta(2)").visible());
                                        }}});
  }});
}

// The coins are round, and the card around them is white; the names stand in front of them.
TEST_F(Carte, NoCoinStandsInASquare) {
  banco.Passi({[&] {
    for (const Schermata carta : {Schermata::FormCarte2Items, Schermata::FormCarte4Items}) {
      const int primaMoneta = carta == Schermata::FormCarte2Items ? 8 : 12;
      std::deque<Banco::Momento> momenti;
      for (int n = 0; n < 8; ++n)
        momenti.push_back(
            {(primaMoneta + 4 * n) * 1000 + 100, [&, n] {
               const platform::Form& form = banco.davanti();
               const Rect f = form.PlaneRect(), r = form.Find("PicBonus")->place();
               const platform::Surface& visto = banco.host.planeShown();
               for (const double x : {r.left + 1, r.right() - 2})
                 for (const double y : {r.top + 4, r.bottom() - 2})
                   EXPECT_EQ(visto.PixelAt(f.left + x, f.top + y), 0xFFFFFFu) << n;
               EXPECT_NE(visto.PixelAt(f.left + r.left + r.width / 2, f.top + r.top + r.height / 2),
                         0xFFFFFFu);
             }});
      Gioca(carta, std::move(momenti));
    }
    const auto form = banco.gioco.Crea(Schermata::FormCarte4Items);
    const auto& righe = form->controls();
    const auto posto = [&](const std::string& nome) {
      return std::find_if(righe.begin(), righe.end(), [&](auto* c) { return c->name() == nome; }) -
             righe.begin();
    };
    EXPECT_LT(posto("PicBonus"), posto("cmdRisposta(3)"));
  }});
}

// What lies over a card for a moment does not bring the first prize back.
TEST_F(Carte, ThePrizeGoesOnFalling) {
  banco.Passi({[&] {
    for (const Schermata carta : {Schermata::FormCarte2Items, Schermata::FormCarte4Items}) {
      Gioca(carta, {{5000,
                     [&] {
                       banco.host.OnIdle = [&, idle = banco.host.OnIdle] {
                         banco.Clicca(banco.Trova("cmdOK"));
                         banco.host.OnIdle = idle;
                       };
                       platform::MsgBox(banco.gioco.screen(), "", "", platform::MsgButtons::Ok);
                     }},
                    {8100, [&] {
                       EXPECT_EQ(Premio, Euro::Interi(carta == Schermata::FormCarte2Items ? 2 : 5));
                     }}});
    }
  }});
}

// Letters keep off the bevel of their button.
TEST_F(Carte, TheWordsOfAButtonStandFree) {
  banco.Passi({[&] {
    Gioca(Schermata::FormCarte2Items,
          {{100, [&] {
              const platform::Form& form = banco.davanti();
              const Rect f = form.PlaneRect();
              for (const int i : {0, 1, 2}) {
                const Rect r = form.Find("cmdRisposta(" + std::to_string(i) + ")")->place();
                for (double y = r.top + 57; y < r.bottom() - 3; ++y)
                  for (const double x : {r.left + 2, r.left + 3, r.right() - 4, r.right() - 3})
                    ASSERT_EQ(banco.host.planeShown().PixelAt(f.left + x, f.top + y),
                              NumeroColore(mod_Girovia::Colore[1]))
                        << i << " " << x - r.left << " " << y - r.top;
              }
            }}});
  }});
}

// The board stands still around the turning card from its first picture on, and that comes before
// the last frames have been read.
TEST_F(Carte, TheCardTurnsOverTheBoard) {
  cartella.Togli("risorse/schermate/FormRotazioneCarta.Avanti7.png");
  int quadri = 0;
  banco.Passi({[&] {
    servizi().comandi->SpegniTimer();
    servizi().comandi->NascondiUscita();
    banco.gioco.screen().Flush();
    const auto campioni = [&] {
      std::vector<platform::Color> colori;
      for (const platform::Point p : {platform::Point{20, 20}, {760, 30}, {100, 550}, {400, 590}})
        colori.push_back(banco.host.planeShown().PixelAt(p.x, p.y));
      return colori;
    };
    const auto tabellone = campioni();
    servizi().comandi->MostraUscita();
    banco.host.OnShow = [&](const auto&) {
      ++quadri;
      EXPECT_EQ(campioni(), tabellone) << quadri;
    };
    EXPECT_THROW(servizi().schermi->MostraModale(Schermata::FormRotazioneCarta),
                 platform::PictureError);
    banco.host.OnShow = nullptr;
    mod_Girovia::RitornoProva = Vero;
  }});
  EXPECT_EQ(quadri, 21);  // the back wide and narrow again, and six steps of the front
}

}  // namespace
}  // namespace girovia
