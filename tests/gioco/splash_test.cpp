// The start screen: what it shows while time passes, and what a dialog over it hides.
#include <gtest/gtest.h>

#include "banco.h"
#include "cartella.h"
#include "core/mod_Girovia.h"
#include "platform/forms/text_box.h"
#include "screens/titoli_logica.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using platform::Control;
using platform::Rect;

class Inizio : public testing::Test {
 protected:
  Inizio() {
    cartella_.Alleggerisci();
    banco = std::make_unique<Banco>(1, cartella_.percorso());
    banco->dallInizio = true;
    banco->gioco.screen().OnSound = [this](const std::string& nome) { suoni += nome + " "; };
  }
  Control& C(const std::string& nome) { return *banco->davanti().Find(nome); }
  std::function<void()> Clicca(const std::string& nome) {
    return [this, nome] { banco->Clicca(C(nome)); };
  }
  // Time passes in steps of a tick of the credits.
  static void Attendi(std::deque<std::function<void()>>& passi, int scatti) {
    for (int i = 0; i < scatti; ++i) passi.push_back([] {});
  }
  platform::Color Punto(const Control& c, double x, double y) {
    const Rect r = c.InForm(c.place());
    return banco->host.planeShown().PixelAt(r.left + x, r.top + y);
  }

  Cartella cartella_;
  std::unique_ptr<Banco> banco;
  std::string suoni;
};

constexpr const char* kComandi[] = {"cmdExit",    "CmdHelp",      "CmdOK",       "FrmPrimo",
                                    "FrmSecondo", "FrmGalleria1", "frmGalleria2"};
constexpr const char* kOmbre[] = {"Frame1", "Frame3", "PicGalleria1", "PicGalleria2"};

TEST_F(Inizio, CreditsFitTheirPanel) {
  const platform::Font carattere{"MS Sans Serif", 9.75, true, false};
  int piene = 0;
  for (const bool fermi : {false, true})
    for (const std::string& riga : RigheTitoli(fermi)) {
      piene += !riga.empty();
      EXPECT_TRUE(riga.empty() || riga.starts_with("  ")) << riga;
      EXPECT_LE(platform::TextWidth(carattere, riga), 229 - 6) << riga;
    }
  EXPECT_EQ(piene, 50);
  EXPECT_EQ(RigheTitoli(false).front(), "  Girovia è stato");
  EXPECT_EQ(RigheTitoli(true).front(), "  GIROVIA è stato");
}

TEST_F(Inizio, CreditsRiseAndRestWhileThePortraitsShimmer) {
  std::deque<std::function<void()>> passi;
  const auto guarda = [this] {
    const double alto = C("picTitoli").place().top;
    EXPECT_EQ(C("picTitoliOmbra").place().top, alto + 8);
    EXPECT_GT(456, alto);
    // One portrait of each gallery is out of its row.
    for (const char* galleria : {"picRitrattoPrimo", "picRitrattoSecondo"}) {
      int fuori = 0;
      for (int i = 0; i < 6; ++i) {
        const Rect r = C(std::string(galleria) + "(" + std::to_string(i) + ")").place();
        const double x = 8 + 56 * (i % 3), y = 24 + 56 * (i / 3);
        EXPECT_TRUE(r == (Rect{x, y, 54, 54}) || r == (Rect{x - 2, y - 2, 58, 58}));
        fuori += r.width == 58;
      }
      EXPECT_EQ(fuori, 1) << galleria;
    }
  };
  banco->numeri.assign(2, 0.5);
  for (int i = 0; i < 200; ++i) banco->numeri.push_back(i % 7 / 7.0);
  Attendi(passi, 60);
  passi.push_back(guarda);
  Attendi(passi, 60);
  passi.push_back(guarda);
  Attendi(passi, 520);
  passi.push_back([this] {
    EXPECT_EQ(C("picTitoli").place().top, 0);
    EXPECT_FALSE(C("picTitoliOmbra").visible());
    // Black letters on the light picture, where they had been yellow on blue.
    int nere = 0;
    for (int x = 8; x < 120; ++x) nere += Punto(C("picTitoli"), x, 163) == 0x000000;
    EXPECT_GT(nere, 5);
  });
  banco->Passi(std::move(passi));
}

TEST_F(Inizio, DialogsHideTheCommandsAndTheHelpTakesTheShadows) {
  const auto visibili = [this](bool comandi, bool ombre) {
    for (const char* nome : kComandi) EXPECT_EQ(C(nome).visible(), comandi) << nome;
    for (const char* nome : kOmbre) EXPECT_EQ(C(nome).visible(), ombre) << nome;
  };
  const auto sotto = [this] {  // while a dialog is open
    for (const platform::Form* form : banco->gioco.screen().forms())
      if (form->name() == "Splash") {
        for (const char* nome : kComandi) EXPECT_FALSE(form->Find(nome)->visible()) << nome;
        for (const char* nome : kOmbre) EXPECT_FALSE(form->Find(nome)->visible()) << nome;
        EXPECT_TRUE(form->Find("picTitoli")->visible());
      }
  };
  banco->Passi({[&] { visibili(true, true); }, Clicca("CmdHelp"), sotto, Clicca("cmdRisposta"),
                [&] { visibili(true, false); }, Clicca("OptColoreSecondo(2)"),
                [&] { EXPECT_EQ(suoni, "inno "); }, Clicca("cmdExit"), sotto,
                Clicca("cmdRisposta(2)"), [&] { visibili(true, true); },
                Clicca("OptColoreSecondo(1)"), [&] { EXPECT_EQ(suoni, "inno 122 102 102 "); },
                Clicca("cmdExit"), Clicca("cmdRisposta(1)")});
  EXPECT_EQ(suoni, "inno 122 102 102 122 102 ");
  EXPECT_EQ(UscitaDaSplash, Falso);
}

TEST_F(Inizio, WhatIsChosenGoesToTheBoard) {
  banco->numeri = {0.0, 0.99};
  const auto colore = [this](const char* nome, platform::Color atteso) {
    EXPECT_EQ(Punto(C(nome), 5, 20), atteso) << nome;
  };
  const auto scrivi = [this](const char* testo) {
    return [this, testo] { banco->host.Type(testo); };
  };
  banco->Passi(
      {[&] {
         EXPECT_EQ(Ritratto[1], 124);
         EXPECT_EQ(Ritratto[2], 135);
         EXPECT_TRUE(C("TxtPrimo").focused());
         colore("FrmPrimo", 0x00FF00);
       },
       scrivi("Zoè"), Clicca("TxtSecondo"), scrivi("Bo"),
       [&] { EXPECT_EQ(C("TxtSecondo").text(), "Bo"); },
       // Both may take the same colour.
       Clicca("OptColorePrimo(1)"), Clicca("OptColoreSecondo(4)"), Clicca("picRitrattoPrimo(5)"),
       Clicca("picRitrattoSecondo(0)"),
       [&] {
         for (const char* nome : {"FrmPrimo", "FrmSecondo", "FrmGalleria1", "frmGalleria2"})
           colore(nome, 0xFF00FF);
         EXPECT_TRUE(C("picRitrattoSecondo(0)").focused());  // by the movement over it
       },
       Clicca("CmdOK")});
  EXPECT_EQ(Nome[1], "Zoè");
  EXPECT_EQ(Nome[2], "Bo");
  EXPECT_EQ(Colore[1], "16711935");
  EXPECT_EQ(Colore[2], "16711935");
  EXPECT_EQ(Ritratto[1], 129);
  EXPECT_EQ(Ritratto[2], 130);
  EXPECT_EQ(banco->gioco.screen().forms().size(), 2u);  // the backdrop and the board
}

}  // namespace
}  // namespace girovia
