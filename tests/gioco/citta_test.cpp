// The postcard.
#include <random>

#include "banco.h"
#include "cartella.h"
#include "content/catalogo.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "platform/drawing/picture.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using platform::Form;
using platform::Rect;
using platform::Surface;

TEST(Citta, ButtonsPulseByTurnsAlsoWhenTheParcelIsOpen) {
  Banco banco;
  std::int64_t inizio = 0;
  const auto guarda = [&] {
    const Form& form = banco.davanti();
    const int ms = int((banco.host.NowMicros() - inizio) / 1000);
    SCOPED_TRACE(ms);
    const bool pacco = ms / 300 % 2 == 1;  // is the large one
    const bool prima = ms < 300;           // both small, as in the table
    EXPECT_EQ(form.Find("cmdExit")->place(),
              pacco || prima ? (Rect{424, 304, 54, 54}) : (Rect{422, 302, 58, 58}));
    EXPECT_EQ(form.Find("CmdSorpresa")->place(),
              pacco ? (Rect{14, 302, 58, 58}) : (Rect{16, 304, 54, 54}));
  };
  std::deque<std::function<void()>> passi(12, guarda);
  passi.insert(passi.begin() + 6, [&] {
    banco.numeri = {0.4};
    banco.Clicca(*banco.davanti().Find("CmdSorpresa"));
  });
  passi.push_front([&] {
    Giocatore = 2;
    Sorpresa = 1;
    Pos[2] = CittaCliccata = 34;
    inizio = banco.host.NowMicros();
    servizi().schermi->MostraModale(Schermata::FormCitta);
    EXPECT_EQ(Gruzzolo[2], Euro::Interi(5));
    EXPECT_EQ(banco.gioco.tabellone()->Find("lblGruzzolo(2)")->text(), "5,00 €");
    EXPECT_TRUE(banco.gioco.tabellone()->Find("cmdExit")->visible());
  });
  passi.push_back([&] {
    const Form& form = banco.davanti();
    EXPECT_FALSE(form.Find("CmdSorpresa")->visible());
    EXPECT_EQ(form.Find("LblSorpresa")->text(),
              "La visita guidata della città con un bus turistico ti costa 5 €.");
    banco.Clicca(*form.Find("cmdExit"));
  });
  banco.Passi(std::move(passi));
}

// The two odd photographs lie in the upper left corner as they are, and what they leave free is as
// black as the frame.
TEST(Citta, PhotographsAreNeverScaled) {
  const struct {
    int citta, larghezza, altezza;
  } kCasi[] = {{66, 480, 360}, {67, 479, 360}, {72, 480, 356}};
  constexpr int k = 2;
  for (const auto& caso : kCasi) {
    SCOPED_TRACE(caso.citta);
    Surface foto(caso.larghezza * k, caso.altezza * k, 1);
    std::mt19937 rumore;
    for (int y = 0; y < foto.deviceHeight(); ++y)
      for (int x = 0; x < foto.deviceWidth(); ++x)
        foto.row(y)[x] = (rumore() & 0xFFFFFF) | 0x010101;
    Cartella cartella;
    const std::string file = PercorsoFile(*TrovaVoce(Tipo::Jpeg, 400 + caso.citta));
    cartella.Togli(file);
    ASSERT_TRUE(platform::SavePng(foto, cartella.percorso() + "/" + file));
    Banco banco(k, cartella.percorso());
    banco.Passi({[&] {
      CittaCliccata = caso.citta;
      const auto form = banco.gioco.Crea(Schermata::FormCitta);
      form->Load();
      EXPECT_TRUE(form->ContainsPoint(490, 200));
      EXPECT_FALSE(form->ContainsPoint(494, 200));
      EXPECT_FALSE(form->ContainsPoint(4, 4));
      // A row and a column, from frame to frame.
      const Surface& s = form->surface();
      const auto atteso = [&](int x, int y) {
        return x < foto.deviceWidth() && y < foto.deviceHeight() ? foto.row(y)[x] : 0;
      };
      int diversi = 0;
      for (int x = 8 * k; x < 497 * k; ++x)
        diversi += s.row(180 * k)[x] != (x < 484 * k ? atteso(x, 180 * k) : 0);
      for (int y = 8 * k; y < 377 * k; ++y)
        diversi += s.row(y)[240 * k] != (y < 364 * k ? atteso(240 * k, y) : 0);
      EXPECT_EQ(diversi, 0);
      form->Unload();
    }});
  }
}

// All that a postcard may say stands in its band at the size told.
TEST(Citta, EveryGiftCanBeRead) {
  Banco banco;
  banco.Passi({[&] {
    for (int dono = 0; dono < 9; ++dono) {
      Sorpresa = 1;
      Giocatore = 1;
      CittaCliccata = 0;
      banco.numeri = {(dono + 0.5) / 9};
      const auto form = banco.gioco.Crea(Schermata::FormCitta);
      form->Load();
      const auto& testo = dynamic_cast<const platform::Label&>(*form->Find("LblSorpresa"));
      form->Find("CmdSorpresa")->Click();
      EXPECT_TRUE(testo.TextFits() && testo.drawnPoints() == 12) << testo.text();
      form->Unload();
    }
  }});
}

}  // namespace
}  // namespace girovia
