// The two screens that are printed as a newspaper.
#include <gmock/gmock.h>

#include "banco.h"
#include "cartella.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "screens/form_info.h"
#include "screens/form_messaggi.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using platform::Form;
using platform::Label;
using platform::Rect;
using testing::ElementsAre;

const Rect& Posto(const Form& form, const char* nome) { return form.Find(nome)->place(); }

bool UscitaInVista(Banco& banco) { return banco.gioco.tabellone()->Find("cmdExit")->visible(); }

TEST(Giornale, ColumnsRiseAndThenThePortraitPulses) {
  Banco banco;
  std::int64_t inizio = 0;
  const auto guarda = [&] {
    const Form& form = banco.davanti();
    const int ms = int((banco.host.NowMicros() - inizio) / 1000);
    SCOPED_TRACE(ms);
    const double alto = std::max(240, 400 - ms / 120 * 10);
    EXPECT_EQ(Posto(form, "lblGiornale(1)"), (Rect{8, alto, 169, 177}));
    EXPECT_EQ(Posto(form, "lblGiornale(2)"), (Rect{200, alto, 169, 177}));
    // The seventeenth tick is the first pulse, and the last one to come so soon.
    const int pulsazioni = ms < 2040 ? 0 : 1 + (ms - 2040) / 400;
    EXPECT_EQ(Posto(form, "cmdRisposta"), (pulsazioni == 0       ? Rect{320, 360, 54, 54}
                                           : pulsazioni % 2 == 1 ? Rect{316, 356, 58, 58}
                                                                 : Rect{318, 358, 54, 54}));
    EXPECT_TRUE(form.Find("ImgAereo")->visible());
    EXPECT_FALSE(UscitaInVista(banco));
    // Nothing of the columns shows below the frame.
    const platform::Surface foto = banco.host.Shot();
    const Rect foglio = form.PlaneRect();
    for (double x = 5; x < 370; ++x) {
      ASSERT_EQ(foto.PixelAt(foglio.left + x, foglio.top + 416), 0xFFFFFFu) << x;
      ASSERT_EQ(foto.PixelAt(foglio.left + x, foglio.top + 417), 0xFFFFFFu) << x;
      ASSERT_EQ(foto.PixelAt(foglio.left + x, foglio.top + 418), 0u) << x;
    }
  };
  std::deque<std::function<void()>> passi(40, guarda);
  passi.push_front([&] {
    Giocatore = 1;
    mod_Messaggi::IndiceImprevisto = 14;
    inizio = banco.host.NowMicros();
    servizi().schermi->MostraModale(Schermata::FormImprevisti);
    EXPECT_TRUE(UscitaInVista(banco));
  });
  passi.push_back([&] {
    EXPECT_GT(banco.host.NowMicros() - inizio, 3'300'000);
    banco.Clicca(*banco.davanti().Find("cmdRisposta"));
  });
  banco.Passi(std::move(passi));
}

// Whatever the card and the names: nothing is set larger than told, the columns are set alike, and
// no letter touches frame or portrait.
TEST(Giornale, EveryCardFitsItsPage) {
  Cartella cartella;
  cartella.Alleggerisci();
  Banco banco(1, cartella.percorso());
  banco.Passi({[&] {
    for (const char* nome : {"Primo", "Massimiliano", "WWWWWWW WWWW...", "WWWWWWWWWWWW...", ""})
      for (int n = 0; n < 62; ++n) {
        SCOPED_TRACE(std::string(nome) + " " + std::to_string(n));
        Giocatore = 1 + n % 2;
        Nome[1] = Nome[2] = nome;
        Pos[1] = Pos[2] = 65;  // a flight onwards ends in Dniepropetrovsk
        mod_Messaggi::IndiceImprevisto = n / 2;
        banco.numeri = {0.9};
        const auto form = banco.gioco.Crea(Schermata::FormImprevisti);
        form->Load();
        EXPECT_EQ(form->Find("ImgAereo")->visible(), n / 2 >= 14 && n / 2 <= 19);
        const auto misura = [&](const char* chi, bool grassetto) {
          const auto& l = dynamic_cast<const Label&>(*form->Find(chi));
          EXPECT_TRUE(l.TextFits());
          return platform::MeasureText(
              l.text(), {.font = {"Times New Roman", l.drawnPoints(), grassetto}, .wrap = true},
              l.place().width);
        };
        EXPECT_LE(misura("lblGiornale(0)", true).width, 365);
        EXPECT_LE(240 + misura("lblGiornale(2)", false).height, 356 + 5);
        const double punti = dynamic_cast<Label*>(form->Find("lblGiornale(1)"))->drawnPoints();
        EXPECT_EQ(dynamic_cast<Label*>(form->Find("lblGiornale(2)"))->drawnPoints(), punti);
        EXPECT_TRUE(nome[0] == 'W' ? punti <= 15.75 : punti == 15.75) << punti;
        form->Unload();
      }
  }});
}

// A start screen that writes down what is asked of it.
struct Iniziale : SchermataIniziale {
  explicit Iniziale(Banco& b) : banco(b) {}
  bool InnoInCorso() override { return inno; }
  void TornaDallaDomanda() override {
    EXPECT_EQ(UscitaDaSplash, Falso);
    detto.push_back("torna sotto " + banco.davanti().name());
  }
  Banco& banco;
  bool inno = false;
  std::vector<std::string> detto;
};

TEST(Giornale, DialogsOverTheStartScreenGoBackToIt) {
  Banco banco;
  platform::PictureStore archivio(PROGRAMMA, "girovia");
  Immagini immagini(archivio, 1);
  Iniziale iniziale(banco);
  Ambiente ambiente{.screen = banco.gioco.screen(),
                    .immagini = immagini,
                    .mani = {immagini.Puntatore(101), immagini.Puntatore(102)},
                    .iniziale = &iniziale};
  banco.gioco.screen().OnSound = [&](const std::string& nome) { iniziale.detto.push_back(nome); };
  const auto apri = [&](auto&& form) {
    servizi().comandi->NascondiUscita();  // which is the board's own matter
    UscitaDaSplash = Vero;
    iniziale.detto.clear();
    form.ShowModal();
    EXPECT_FALSE(UscitaInVista(banco));
  };
  const auto chiudi = [&] { banco.Clicca(*banco.davanti().Find("cmdRisposta")); };
  banco.Passi({[&] {
                 apri(FormInfo(ambiente));
                 EXPECT_THAT(iniziale.detto, ElementsAre("119", "torna sotto FormGirovia"));
                 iniziale.inno = true;
                 apri(FormInfo(ambiente));
                 EXPECT_THAT(iniziale.detto, ElementsAre("torna sotto FormGirovia"));
                 apri(FormMessaggi(ambiente));
                 EXPECT_THAT(iniziale.detto, ElementsAre("122", "102", "torna sotto FormGirovia"));
                 EXPECT_EQ(mod_Messaggi::Risposta, 2);
               },
               chiudi, chiudi, [&] { banco.Clicca(*banco.davanti().Find("cmdRisposta(2)")); }});
}

}  // namespace
}  // namespace girovia
