#include "screens/form_premiazione.h"

#include <algorithm>

#include "comune/cornice.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Rect;

namespace {

constexpr int kPremioSpeciale = 4;
constexpr int kUscita = 6;

struct Scelta {
  Rect bottone, scritta;
  const char* testo;
};

constexpr Scelta kScelte[] = {
    {{16, 64, 54, 54}, {72, 64, 95, 53}, "Ritiri il trofeo di Girovia Grandetappa"},
    {{16, 128, 54, 54}, {72, 128, 95, 50}, "Ritiri il premio di 500 €"},
    {{176, 64, 54, 54}, {232, 72, 96, 48}, "Regali 50 € a "},
    {{176, 128, 54, 54}, {232, 128, 98, 52}, "Ritiri il premio speciale"},
    {{336, 64, 54, 54}, {392, 64, 117, 52}, "Ricevi le congratulazioni degli autori"},
    {{336, 128, 54, 54}, {392, 136, 96, 37}, "Esci da GIROVIA"},
};

}  // namespace

FormPremiazione::FormPremiazione(Ambiente& ambiente)
    : Form(ambiente.screen, "FormPremiazione", 518, 200, platform::colors::kNavy), a_(ambiente) {
  Row(LblTitolo, "LblTitolo", {5, 8, 508, 49},
      {.font = Verdana(13.5, true),
       .fore = platform::colors::kWhite,
       .align = platform::Align::Center});
  for (int i = 1; i <= kUscita; ++i) {
    const Scelta& scelta = kScelte[i - 1];
    Row(lblPremiazione.Load(i), Indexed("lblPremiazione", i), scelta.scritta,
        {.caption = scelta.testo, .font = Verdana(9.75, true), .fore = platform::colors::kWhite});
    Row(cmdRisposta.Load(i), Indexed("cmdRisposta", i), scelta.bottone,
        {.back = 0xC0FFC0, .hand = &a_.mani, .focusOnMove = true});
    cmdRisposta(i).OnClick = [this, i] { cmdRisposta_Click(i); };
  }
  cmdRisposta(kUscita).SetPicture(a_.immagini.DiSchermata("FormPremiazione.cmdRisposta6"));
}

void FormPremiazione::Form_Load() {
  PlaceOnPlane();
  InUnCorpo();
  lblPremiazione(3).SetCaption(lblPremiazione(3).caption() + Nome[3 - Giocatore]);
  LblTitolo.SetCaption(Nome[Giocatore] + " hai vinto!!! Complimenti.\r\nCosa vuoi fare adesso?");
  const auto ritratto = a_.immagini.LoadResPicture(Ritratto[Giocatore]);
  for (int i = 1; i < kUscita; ++i) cmdRisposta(i).SetPicture(ritratto);
  DisegnaCornice(*this, kSmussoDialogo);
  SuonoAsync("inno");
}

// One size for all, the largest in which every sentence fits its box; only a long name may still
// make its own smaller.
void FormPremiazione::InUnCorpo() {
  double punti = 9.75;
  for (int i = 1; i <= kUscita; ++i) punti = std::min(punti, lblPremiazione(i).drawnPoints());
  for (int i = 1; i <= kUscita; ++i) lblPremiazione(i).SetFont(Verdana(punti, true));
}

// Below the wreath and the trophy and above the banknotes: 233 from the top of the board.
void FormPremiazione::PlaceOnPlane() {
  const auto plane = screen().planeSize();
  const int k = screen().scale();
  MoveOnPlane((plane.width - width() * k) / 2, (plane.height - 600 * k) / 2 + 233 * k);
}

void FormPremiazione::cmdRisposta_Click(int Index) {
  mod_Messaggi::Risposta = Index;
  RitornoProva = Vero;
  if (Index != kUscita) MostraScelta(Index, false);
  if (Index == kPremioSpeciale) {
    lblPremiazione(Index).SetCaption("Scegli un altro premio");
    MostraScelta(Index, true);
  }
  Hide();
}

void FormPremiazione::MostraScelta(int Index, bool visibile) {
  cmdRisposta(Index).SetVisible(visibile);
  lblPremiazione(Index).SetVisible(visibile);
}

}  // namespace girovia
