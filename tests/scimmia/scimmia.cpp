#include "scimmia.h"

#include <algorithm>
#include <cmath>

#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/stato.h"

namespace girovia {

using namespace mod_Girovia;
using platform::EventKind;
using platform::MouseButton;

Scimmia::Scimmia(const Opzioni& opzioni)
    : opzioni_(opzioni),
      generatore_(opzioni.seme),
      host_(opzioni.finestra),
      gioco_(host_, {opzioni.cartella, opzioni.scala, this}),
      automa_(gioco_) {
  gioco_.screen().OnForm = [this, prima = gioco_.screen().OnForm](const platform::Form& form) {
    prima(form);
    Davanti(form);
  };
  // Heard when the newspaper has been paid for, and before it pays in its turn.
  gioco_.screen().OnSound = [this](const std::string& suono) {
    if (suono == "120") Ovunque([](auto& c, int) { c.PrimaDellaCarta(); });
  };
  host_.OnIdle = [this] { Inattiva(); };
  host_.OnBlocked = [this] {
    if (A(60) == 0) Tocca();
  };
}

std::string Scimmia::Gioca() {
  Pretendi(gioco_.Gioca() == 0, "the game ended with an error");
  Pretendi(!host_.pointerArea(), "the pointer is held after the end");
  return guasto_;
}

void Scimmia::Inattiva() {
  Controlla();
  if (fatti_ >= opzioni_.eventi || !guasto_.empty()) {
    host_.Queue({EventKind::Quit, 0, 0, MouseButton::Left});
  } else if (A(4) > 0) {  // or else it lets some time pass
    Tocca();
  }
}

// --- What must be so

void Scimmia::Davanti(const platform::Form& form) {
  if (form.name() == "Dadi") {
    for (int p : {1, 2}) Pretendi(Gruzzolo[p] == gruzzoli_[std::size_t(p)], "a purse changed");
    turno_ = std::vector<Ipotesi>(kIpotesi);
    Ovunque([](auto& c, int) { c.InizioTurno(); });
  } else if (form.name() == "FormBanconote") {
    Ovunque([](auto& c, int) { c.Dadi(); });
  } else if (form.name() == "FormSovrapposizioni") {
    Ovunque([](auto& c, int paga) { c.Sovrapposizione(paga != 0); });
  } else if (form.name() == "FormPremiazione" && !cerimonia_) {
    cerimonia_ = true;
    FineTurno(true);
  }
}

void Scimmia::FineTurno(bool finita) {
  bool torna = false;
  for (int i = 0; i < int(turno_.size()); ++i) {
    Ipotesi& ipotesi = turno_[std::size_t(i)];
    if (i / 2 == 1) ipotesi.controllore.Vinta(Premio);
    if (i / 2 == 2) ipotesi.controllore.Persa();
    ipotesi.controllore.FineTurno(finita);
    torna = torna || std::all_of(ipotesi.conti.violazioni.begin(), ipotesi.conti.violazioni.end(),
                                 [](std::int64_t n) { return n == 0; });
  }
  std::string violate;
  for (const Ipotesi& ipotesi : turno_) {
    violate += " /";
    for (std::size_t r = 0; r < simulazione::kRegole; ++r)
      if (ipotesi.conti.violazioni[r] > 0)
        violate += std::string(" ") + simulazione::kNomiRegole[r] + ",";
  }
  Pretendi(torna, "the turn comes out right in no telling, as far as it has one:" + violate);
  turno_.clear();
}

void Scimmia::Controlla() {
  if (!gioco_.tabellone()) return;  // still on the start screen
  const FormGirovia& tabellone = *gioco_.tabellone();
  for (int p : {1, 2})
    Pretendi(Pos[p] >= 0 && Pos[p] <= kUltimaCasella, "a player is off the route");
  Pretendi(tabellone.shown(), "the board has gone");
  const platform::Form* davanti = gioco_.screen().top();
  const platform::Control* inMano = davanti->Find("picTassello");
  if (!inMano || !inMano->visible())
    Pretendi(!host_.pointerArea(), "the pointer is held, and no tile is carried");
  if (davanti != &tabellone) return;
  // The board waits: somebody can throw, and the game can be left.
  Pretendi(gioco_.screen().forms().size() == 2, "a form is left open");
  Pretendi(statoTabellone.TurnoInCorso == Falso, "the board waits in the middle of a turn");
  Pretendi(RitornoProva == Falso, "the board waits in the middle of a trial");
  Pretendi(tabellone.Find("cmdExit")->visible(), "there is no way out");
  for (int p : {1, 2})
    Pretendi(tabellone.Find("cmdRitratto(" + std::to_string(p) + ")")->visible() ==
                 (Giocatore == 0 || Giocatore == p),
             "the wrong player can throw");
  if (!turno_.empty()) {
    FineTurno(false);
  } else if (gruzzoli_[1] != Euro()) {
    // Only a parcel pays while nobody throws, and in whole euro.
    const Euro dono = Gruzzolo[1] + Gruzzolo[2] - gruzzoli_[1] - gruzzoli_[2];
    const int g = std::max(1, Giocatore);
    Pretendi(Gruzzolo[3 - g] == gruzzoli_[std::size_t(3 - g)] &&
                 dono.decimillesimi() % 10'000 == 0 && dono >= Euro::Interi(-5) &&
                 dono <= Euro::Interi(12),
             "a purse changed while the board waited");
  }
  std::copy_n(Gruzzolo, 3, gruzzoli_.begin());
}

// --- What it does

void Scimmia::Tocca() {
  ++fatti_;
  if (A(100) < opzioni_.giudizio) {
    if (const auto gesto = automa_.Prossimo()) {
      host_.Click(gesto->dove);
      return host_.Type(gesto->testo);
    }
  }
  const platform::PixelSize finestra = host_.WindowSize();
  const auto punto = [&] {
    return platform::Point{Rnd() * finestra.width, Rnd() * finestra.height};
  };
  const MouseButton bottone = MouseButton(1 + A(3));
  switch (A(14)) {
    case 0: {
      // Any size now and then, and mostly one that a person would choose.
      const auto lato = [this](int usuale) {
        return A(8) == 0 ? 1 + A(3 * usuale) : usuale / 2 + A(usuale);
      };
      host_.Resize({lato(opzioni_.finestra.width), lato(opzioni_.finestra.height)});
      break;
    }
    case 1:
      host_.Queue({A(2) ? EventKind::Expose : EventKind::MouseLeave, 0, 0, MouseButton::Left});
      break;
    case 2:
      host_.Click(punto(), bottone);
      break;
    case 3: {  // presses here and lets go there
      const auto da = punto(), a = punto();
      host_.Queue({EventKind::MouseDown, int(da.x), int(da.y), bottone});
      host_.Queue({EventKind::MouseMove, int(a.x), int(a.y), MouseButton::Left});
      host_.Queue({EventKind::MouseUp, int(a.x), int(a.y), bottone});
      break;
    }
    case 4:
      // Also beyond the window, as while a button is held.
      host_.Queue({EventKind(A(3)), A(3 * finestra.width) - finestra.width,
                   A(3 * finestra.height) - finestra.height, bottone});
      break;
    case 5:
    case 6:
      Batti();
      break;
    default:
      ToccaQualcosa(A(8) == 0 ? bottone : MouseButton::Left);
  }
}

void Scimmia::Batti() {
  static const std::string kTesti[] = {
      "a", "Zoè", "WWWWWWWWWWWWWWWW", "日本", "\xF0\x9F\x91\xA9", "\xFF\xC3"};
  if (A(3) == 0) return host_.Type(kTesti[A(int(std::size(kTesti)))]);
  const auto tasto = platform::Key(A(int(platform::Key::X) + 1));
  // Escape on the board asks about the end of the game.
  if (tasto != platform::Key::Escape || A(10) == 0) host_.Press(tasto, A(3) == 0, A(3) == 0);
}

void Scimmia::ToccaQualcosa(MouseButton bottone) {
  const platform::Form& form = *gioco_.screen().top();
  // Most of the board is squares, and the exit ends the game: a monkey without a preference would
  // hardly ever throw.
  std::vector<const platform::Control*> adatti;
  for (const platform::Control* c : form.controls()) {
    const int rarita = c->name().starts_with("cmdcitta") ? 200 : c->name() == "cmdExit" ? 40 : 1;
    if (c->ShownOnScreen() && (c->OnClick || c->OnMouseDown) && A(rarita) == 0) adatti.push_back(c);
  }
  if (adatti.empty()) return;
  const platform::Control* scelto = adatti[std::size_t(A(int(adatti.size())))];
  const platform::Rect r = scelto->InForm(scelto->place());
  const platform::Rect f = form.PlaneRect();
  host_.Click(gioco_.screen().ToWindow(
                  {f.left + r.left + Rnd() * r.width, f.top + r.top + Rnd() * r.height}),
              bottone);
}

}  // namespace girovia
