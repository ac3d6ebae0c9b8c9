// The two map trials, played by the pointer.
#include "banco.h"
#include "cartella.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"

namespace girovia {
namespace {

using platform::Control;
using platform::Rect;

constexpr int kBerlino = 62;
constexpr int kGermania = 17;  // of the capitals

class ProveMappa : public testing::TestWithParam<Schermata> {
 protected:
  ProveMappa() : banco((cartella.Alleggerisci(), 1), cartella.percorso()) {
    banco.gioco.screen().OnSound = [this](const std::string& nome) { suoni += nome + " "; };
  }

  // As a turn opens it for player 2, who is to find Berlino.
  void Gioca(std::deque<Banco::Momento> momenti) {
    using namespace mod_Girovia;
    servizi().comandi->SpegniTimer();
    Giocatore = 2;
    mod_Messaggi::IndiceProvaCitta = kBerlino;
    mod_Messaggi::IndiceProvaCapitali = kGermania;
    mod_Messaggi::Risposta = -1;
    mod_Messaggi::Messaggio = "Se sbagli restituisci 7 euro e torni a Roma";
    suoni.clear();
    inizio = banco.host.NowMicros();
    banco.Mostra(GetParam(), std::move(momenti));
  }
  bool UscitaVisibile() { return banco.gioco.tabellone()->Find("cmdExit")->visible(); }
  std::function<void()> Clic(const std::string& nome) {
    return [this, nome] { banco.Clicca(banco.Trova(nome)); };
  }

  Cartella cartella;
  Banco banco;
  std::string suoni;
  std::int64_t inizio = 0;
};

TEST_P(ProveMappa, OneClickDecidesOrTheTimeDoes) {
  const std::string giusta = "cmdcitta(62)", vicina = "cmdcitta(63)";
  const struct {
    int ms;
    std::string clic;  // none: the time runs out
    int risposta, dura;
    const char* suoni;
  } kCasi[] = {
      {700, giusta, 1, 700, "105 "},   {28'300, giusta, 1, 28'300, "105 "},
      {700, vicina, 2, 700, "105 "},   {900, "cmdExit", 0, 900, "105 102 "},
      {29'000, "", 2, 28'400, "105 "},
  };
  banco.Passi({[&] {
    for (const auto& caso : kCasi) {
      SCOPED_TRACE(caso.clic + " " + std::to_string(caso.ms));
      Gioca({{0, [&] { EXPECT_FALSE(UscitaVisibile()); }},
             {caso.ms, caso.clic.empty() ? nullptr : Clic(caso.clic)}});
      EXPECT_EQ(mod_Messaggi::Risposta, caso.risposta);
      EXPECT_NEAR(double(banco.host.NowMicros() - inizio) / 1000, caso.dura, 100);
      EXPECT_EQ(suoni, caso.suoni);
      EXPECT_EQ(&banco.davanti(), banco.gioco.tabellone());
      // Solved, the exit waits for the dialog of the prize.
      EXPECT_EQ(UscitaVisibile(), caso.risposta != 1);
      if (caso.risposta == 1)
        banco.Mostra(Schermata::FormBonus, {{500, Clic("cmdRisposta")}, {1000, nullptr}});
      EXPECT_TRUE(UscitaVisibile());
      EXPECT_EQ(statoTabellone.TurnoInCorso, Falso);
    }
  }});
}

TEST_P(ProveMappa, TheBarShrinksAndBlinksAndNothingElseIsRepainted) {
  const Rect barra{72, 572, 569, 6}, bottone{743, 515, 56, 84};
  const auto dentro = [](const platform::DeviceRect& r, const Rect& in) {
    return r.left >= in.left && r.top >= in.top && r.right <= in.right() && r.bottom <= in.bottom();
  };
  const struct {
    int scatto;
    Rect linea;
    bool visibile, grande;
    platform::Color colore;
  } kScatti[] = {
      {1, {74, 572, 565, 6}, true, true, 0x00FF00},
      {2, {76, 572, 561, 6}, true, false, 0x00FF00},
      {92, {256, 572, 201, 6}, true, false, 0x00FF00},
      {93, {258, 572, 197, 6}, false, true, 0x0000FF},
      {94, {260, 572, 193, 6}, true, false, 0x0000FF},
      {141, {354, 572, 5, 6}, false, true, 0x0000FF},
  };
  int mostre = 0;
  std::deque<Banco::Momento> momenti{
      {100, [&] {
         banco.host.OnShow = [&](const std::vector<platform::DeviceRect>& parti) {
           ++mostre;
           for (const auto& r : parti)
             EXPECT_TRUE(dentro(r, barra) || dentro(r, bottone)) << mostre;
         };
       }}};
  for (const auto& s : kScatti)
    momenti.push_back(
        {s.scatto * 200 + 50, [&] {
           SCOPED_TRACE(s.scatto);
           const Control& linea = banco.Trova("Linea");
           EXPECT_EQ(linea.place(), s.linea);
           EXPECT_EQ(linea.visible(), s.visibile);
           const platform::Color visto =
               banco.host.planeShown().PixelAt(s.linea.left + s.linea.width / 2, 574);
           EXPECT_EQ(visto == s.colore, s.visibile);
           EXPECT_EQ(banco.Trova("cmdExit").place(), s.grande ? bottone : (Rect{744, 516, 54, 82}));
           if (s.scatto == 141) banco.host.OnShow = nullptr;
         }});
  banco.Passi({[&] { Gioca(std::move(momenti)); }});
  EXPECT_EQ(mostre, 141);
}

TEST_P(ProveMappa, OnlyTheCapitalsNameTheCityUnderThePointer) {
  const bool capitali = GetParam() == Schermata::FormProvaCapitali;
  const struct {
    std::string sopra;  // none: the open map
    bool visibile;
    std::string nome;
  } kMosse[] = {
      {"cmdcitta(96)", false, "Monaco"}, {"", true, ""},
      {"cmdcitta(62)", true, "Berlino"}, {"cmdcitta(96)", true, "Monaco"},
      {"Linea", true, "Monaco"},         {"LblDomanda", true, "Monaco"},
      {"cmdExit", true, "Monaco"},       {"", true, ""},
  };
  std::deque<Banco::Momento> momenti;
  for (const auto& mossa : kMosse) {
    momenti.push_back({0, [&] {
                         if (mossa.sopra.empty()) return banco.Muovi({400, 300});
                         banco.Sopra(banco.Trova(mossa.sopra));
                       }});
    momenti.push_back({0, [&] {
                         SCOPED_TRACE(&mossa - kMosse);
                         const Control* nome = banco.davanti().Find("LblCitta");
                         ASSERT_EQ(nome != nullptr, capitali);
                         if (nome) {
                           EXPECT_EQ(nome->visible(), mossa.visibile);
                           EXPECT_EQ(nome->text(), mossa.nome);
                         }
                         const bool clicca = mossa.sopra.starts_with("cmd");
                         EXPECT_EQ(banco.host.pointer().kind == platform::Pointer::Kind::Custom,
                                   clicca);
                       }});
  }
  momenti.push_back({0, [&] {
                       EXPECT_EQ(banco.Trova("cmdcitta(13)").place().left, capitali ? 288 : 296);
                       EXPECT_FALSE(banco.Trova("cmdcitta(36)").visible());
                       // The rim of Nizza is red, that of its neighbour blue.
                       for (const int i : {13, 14}) {
                         const Rect r = banco.Trova("cmdcitta(" + std::to_string(i) + ")").place();
                         const platform::Color rim =
                             banco.host.planeShown().PixelAt(r.right() - 1, r.top + 7);
                         EXPECT_EQ((rim & 0xFF) > (rim >> 16), i == 13) << i;
                       }
                       EXPECT_EQ(banco.Trova("LblDomanda").text(),
                                 capitali ? "Secondo, clicca la capitale della Germania"
                                          : "Secondo, clicca la città di Berlino");
                       EXPECT_EQ(banco.Trova("lblInfo").text(), mod_Messaggi::Messaggio);
                     }});
  banco.Passi({[&] { Gioca(std::move(momenti)); }});
}

INSTANTIATE_TEST_SUITE_P(Due, ProveMappa,
                         testing::Values(Schermata::FormProvaCitta, Schermata::FormProvaCapitali),
                         [](const auto& prova) {
                           return prova.param == Schermata::FormProvaCitta ? "Citta" : "Capitali";
                         });

}  // namespace
}  // namespace girovia
