// The award ceremony, from its opening to the last click.
#include <gmock/gmock.h>

#include "banco.h"
#include "cartella.h"
#include "content/catalogo.h"
#include "core/mod_Girovia.h"
#include "core/premiazione.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using platform::Color;
using platform::Control;
using platform::Rect;

constexpr Color kBlu = 0xFF0000;
constexpr Color kNessuno = 0xFF00FF;  // of no picture

struct Fine {
  int euro1, euro2, pos1, pos2;
};

// A game that has come to its end.
class Festa : public Banco {
 public:
  Festa(const Cartella& cartella, const Fine& fine, int scala = 1)
      : Banco(scala, cartella.percorso()), fine_(fine) {
    gioco.screen().OnSound = [this](const std::string& nome) { suoni.push_back(nome); };
  }

  // Each step runs when the game waits; the first one finds the menu open.
  void Gioca(std::deque<std::function<void()>> passi) {
    passi.push_front([this] {
      Arriva();
      CerimoniaDiPremiazione();
    });
    Passi(std::move(passi));
  }
  void Preme(const std::string& bottone) {
    const Control* c = davanti().Find(bottone);
    if (!c) throw std::runtime_error("no " + bottone + " on " + davanti().name());
    Clicca(*c);
  }
  void Sceglie(int i) { Preme("cmdRisposta(" + std::to_string(i) + ")"); }
  std::function<void()> Scelta(int i) {
    return [this, i] { Sceglie(i); };
  }

  // The two figures, each with its colour.
  std::string Gruzzoli() {
    std::string figure;
    for (const char* nome : {"lblGruzzolo(1)", "lblGruzzolo(2)"}) {
      const auto& label = dynamic_cast<platform::Label&>(*gioco.tabellone()->Find(nome));
      figure += label.caption() + (label.foreColor() == 65280 ? " verde " : " rosso ");
    }
    return figure;
  }
  // What the menu offers, as digits.
  std::string Offerta() {
    std::string cifre;
    for (const Control* c : davanti().controls())
      if (c->name().starts_with("cmdRisposta") && c->visible()) cifre += *(c->name().end() - 2);
    return cifre;
  }
  // The part of a picture's figure that is seen on the board with its corner there, and of what
  // does not belong to it, that is as `sotto` has it. Where the menu lies neither counts.
  std::pair<double, double> Mostrata(int bitmap, int x, int y, const platform::Surface& sotto) {
    const auto pic = immagini_.LoadResPicture(bitmap);
    const platform::Surface figura = pic.picture->Fit(pic.width, pic.height, 1, kNessuno, true);
    const Rect menu = davanti().PlaneRect();
    double tutti[2] = {}, giusti[2] = {};
    for (int riga = 0; riga < pic.height; ++riga)
      for (int colonna = 0; colonna < pic.width; ++colonna) {
        if (menu.contains(x + colonna, y + riga) || y + riga < 0 || x + colonna >= 800) continue;
        const Color suo = figura.PixelAt(colonna, riga);
        const bool fuori = suo == kNessuno;
        const Color atteso = fuori ? sotto.PixelAt(x + colonna, y + riga) : suo;
        ++tutti[fuori];
        giusti[fuori] += host.planeShown().PixelAt(x + colonna, y + riga) == atteso;
      }
    return {giusti[0] / tutti[0], tutti[1] > 0 ? giusti[1] / tutti[1] : 1};
  }

  void Arriva() {
    Tabellone& tabellone = *servizi().tabellone;
    Comandi& comandi = *servizi().comandi;
    Giocatore = 1;
    statoTabellone.TurnoInCorso = Vero;
    comandi.NascondiAiuto();
    comandi.NascondiAnnuncio();
    Pos[1] = fine_.pos1, Pos[2] = fine_.pos2;
    Gruzzolo[1] = Euro::Interi(fine_.euro1), Gruzzolo[2] = Euro::Interi(fine_.euro2);
    for (int p : {1, 2}) {
      for (int i = 1; i <= Pos[p]; ++i) tabellone.MostraTratto(p, i);
      tabellone.ColoraCasella(Pos[p], ValoreColore(Colore[p]));
      tabellone.ScriviGruzzolo(p, Gruzzolo[p]);
    }
    tabellone.RefreshPrBar();
    tabellone.ColoraGruzzoli(65280, 255);
  }

  std::vector<std::string> suoni;

 private:
  Fine fine_;
  platform::PictureStore archivio_{PROGRAMMA, "girovia"};
  Immagini immagini_{archivio_, 1};
};

class LaCerimonia : public testing::Test {
 protected:
  LaCerimonia() { cartella.Alleggerisci(); }
  Cartella cartella;
};

TEST_F(LaCerimonia, NamesTheRicherOrBetweenEqualsTheOneWhoIsAhead) {
  const struct {
    Fine fine;
    int vincitore;
  } casi[] = {
      {{70, 60, 99, 20}, 1}, {{30, 40, 99, 20}, 2}, {{40, 40, 99, 97}, 1}, {{40, 40, 20, 99}, 2}};
  for (const auto& caso : casi) {
    Festa festa(cartella, caso.fine);
    festa.Gioca({[&] {
      Nome[1] = Nome[2] = "";  // read once, at the first show
      const int p = caso.vincitore;
      EXPECT_EQ(Giocatore, p);
      const std::string chi[] = {"", "Primo", "Secondo"};
      EXPECT_EQ(festa.davanti().Find("LblTitolo")->text(),
                chi[p] + " hai vinto!!! Complimenti.\r\nCosa vuoi fare adesso?");
      EXPECT_EQ(festa.davanti().Find("lblPremiazione(3)")->text(), "Regali 50 € a " + chi[3 - p]);
      EXPECT_GT(festa.Mostrata(Ritratto[p], 52, 44, {}).first, 0.99);
      EXPECT_EQ(festa.davanti().PlaneRect(), (Rect{141, 233, 518, 200}));
    }});
  }
}

// The whole board keeps its blue alone, and of the route only what the map has of it.
TEST_F(LaCerimonia, AVeilFallsAtOnce) {
  Festa festa(cartella, {50, 60, 99, 81});
  constexpr double kPalermo[] = {423, 527}, kMare[] = {30, 400};
  platform::Surface prima;
  std::vector<std::pair<Color, Color>> visti;
  festa.Passi(
      {[&] {
         festa.Arriva();
         festa.gioco.tabellone()->Find("Label1(47)")->SetVisible(true);  // the pointer was there
         festa.gioco.screen().Flush();
         prima = festa.gioco.tabellone()->surface();
         festa.host.OnShow = [&](const auto&) {
           const platform::Surface& ora = festa.host.planeShown();
           const std::pair vista{ora.PixelAt(kPalermo[0], kPalermo[1]),
                                 ora.PixelAt(kMare[0], kMare[1])};
           if (visti.empty() || visti.back() != vista) visti.push_back(vista);
         };
         CerimoniaDiPremiazione();
       },
       [&] {
         ASSERT_EQ(visti.size(), 2u)
             << "the board as it was, then at once without squares and blue";
         const platform::Surface& ora = festa.host.planeShown();
         std::vector<Rect> davanti = {festa.davanti().PlaneRect(), {0, 0, 160, 143}};
         for (const Control* c : festa.gioco.tabellone()->controls()) {
           for (const char* nome :
                {"cmdcitta", "Label1", "Line1", "Line2", "cmdRitratto", "cmdExit"})
             EXPECT_FALSE(c->visible() && c->name().starts_with(nome)) << c->name();
           if (c->visible()) davanti.push_back(c->place());
         }
         int sbagliati = 0;
         for (int y = 0; y < 600; ++y)
           for (int x = 0; x < 800; ++x)
             if (std::none_of(davanti.begin(), davanti.end(),
                              [&](const Rect& r) { return r.contains(x, y); }))
               sbagliati += ora.PixelAt(x, y) != (prima.PixelAt(x, y) & kBlu);
         // Nor does an old figure shine through the new one.
         platform::Surface& foglio = festa.gioco.tabellone()->surface();
         for (const char* nome : {"lblGruzzolo(1)", "lblGruzzolo(2)"}) {
           const Rect r = festa.gioco.tabellone()->Find(nome)->place();
           for (double y = r.top; y < r.bottom(); ++y)
             for (double x = r.left; x < r.right(); ++x)
               sbagliati += foglio.PixelAt(x, y) != (prima.PixelAt(x, y) & kBlu);
         }
         EXPECT_EQ(sbagliati, 0);
       }});
}

TEST_F(LaCerimonia, PutsEachPrizeAtTheSideOfItsPlayer) {
  for (const int p : {1, 2}) {
    SCOPED_TRACE(p);
    Festa festa(cartella, {p == 1 ? 70 : 20, 60, 99, 20});
    platform::Surface sotto;
    const auto mostrata = [&](int bitmap, int x, int y) {
      const auto [figura, intorno] = festa.Mostrata(bitmap, x, y, sotto);
      EXPECT_EQ(figura, 1) << bitmap;
      EXPECT_EQ(intorno, 1) << bitmap;
    };
    festa.Gioca({[&] {
                   sotto = festa.host.planeShown();
                   festa.Sceglie(3);
                 },
                 [&] {
                   mostrata(201, p == 1 ? 536 : 152, 448);
                   EXPECT_EQ(festa.Gruzzoli(), p == 1 ? "20,00 € verde 110,00 € rosso "
                                                      : "70,00 € verde 10,00 € rosso ")
                       << "in the colours of before";
                   festa.Sceglie(1);
                 },
                 festa.Scelta(5), festa.Scelta(2),
                 [&] {
                   mostrata(202, p == 1 ? 72 : 544, 448);
                   for (const auto& [bitmap, x, y] :
                        {std::tuple{140, 0, 0}, {340, 168, 0}, {344, 432, -24}})
                     mostrata(bitmap, x, y);
                   EXPECT_EQ(festa.Gruzzoli(), p == 1 ? "520,00 € verde 110,00 € rosso "
                                                      : "70,00 € rosso 510,00 € verde ");
                   EXPECT_EQ(festa.Offerta(), "46");
                 }});
  }
}

// Never the same picture twice running, never number 0 first, and nothing of one under the next.
TEST_F(LaCerimonia, TheSpecialPrizeTenTimes) {
  Festa festa(cartella, {70, 60, 99, 20});
  platform::Surface sotto;
  std::deque<std::function<void()>> passi = {[&] {
    sotto = festa.host.planeShown();
    for (const int n : {0, 13, 13, 13, 5, 5, 0, 1, 2, 3, 12, 12, 4, 7})
      festa.numeri.push_back((n + 0.5) / kNumeroPremi);
    festa.Sceglie(4);
  }};
  for (const int n : {13, 5, 0, 1, 2, 3, 12, 4, 7})
    passi.push_back([&, n] {
      const auto [figura, intorno] = festa.Mostrata(kPrimoPremio + 2 * n, 0, 200, sotto);
      EXPECT_EQ(figura, 1) << n;
      EXPECT_EQ(intorno, 1) << n;
      EXPECT_EQ(festa.Offerta(), "123456");
      EXPECT_EQ(festa.davanti().Find("lblPremiazione(4)")->text(), "Scegli un altro premio");
      festa.Sceglie(4);
    });
  festa.Gioca(passi);
  EXPECT_TRUE(festa.numeri.empty());
}

// The window changes while the money is counted and the menu is away.
TEST_F(LaCerimonia, TheMenuComesBackToItsPlace) {
  Festa festa(cartella, {70, 60, 99, 20});
  festa.Gioca({[&] {
                 festa.host.OnBlocked = [&] {
                   festa.host.OnBlocked = nullptr;
                   festa.host.Resize({1000, 600});
                 };
                 festa.Sceglie(2);
               },
               [&] {
                 EXPECT_EQ(festa.davanti().PlaneRect(), (Rect{241, 233, 518, 200}));
               }});
}

}  // namespace
}  // namespace girovia
