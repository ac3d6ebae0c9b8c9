// A monkey at the mouse.
#include <random>

#include "cartella.h"
#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/stato.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"

#include <gtest/gtest.h>

namespace girovia {
namespace {

using platform::EventKind;
using platform::MouseButton;

class Scimmia : public Caso {
 public:
  Scimmia(unsigned seme, const std::string& cartella, int eventi)
      : eventi_(eventi), generatore_(seme), gioco_(host_, {cartella, 1, this}) {
    host_.OnIdle = [this] { Inattiva(); };
    host_.OnBlocked = [this] {
      if (A(60) == 0) Tocca();
    };
  }

  // How many events it took, those during waits aside, until the game had ended or the monkey was
  // tired.
  int Gioca() {
    EXPECT_EQ(gioco_.Gioca(), 0);
    return fatti_;
  }

 private:
  double Rnd() override { return double(generatore_()) / 4294967296.0; }
  int A(int n) { return int(Rnd() * n); }

  void Inattiva() {
    Controlla();
    if (fatti_ >= eventi_) {
      host_.Queue({EventKind::Quit, 0, 0, MouseButton::Left});
    } else if (A(4) > 0) {  // or else it lets some time pass
      ++fatti_;
      Tocca();
    }
  }

  void Controlla() {
    using namespace mod_Girovia;
    if (!gioco_.tabellone()) return;  // still on the start screen
    const FormGirovia& tabellone = *gioco_.tabellone();
    for (int p : {1, 2}) {
      ASSERT_TRUE(Pos[p] >= 0 && Pos[p] <= kUltimaCasella) << Pos[p];
      ASSERT_LT(std::abs(Gruzzolo[p].ADouble()), 3000);
    }
    ASSERT_TRUE(tabellone.shown());
    if (gioco_.screen().top() != &tabellone) return;
    // The board waits: somebody can throw, and the game can be left.
    ASSERT_EQ(statoTabellone.TurnoInCorso, Falso);
    ASSERT_EQ(RitornoProva, Falso);
    ASSERT_TRUE(tabellone.Find("cmdExit")->visible());
    for (int p : {1, 2})
      ASSERT_EQ(tabellone.Find("cmdRitratto(" + std::to_string(p) + ")")->visible(),
                Giocatore == 0 || Giocatore == p);
    ASSERT_FALSE(host_.pointerArea());
  }

  void Tocca() {
    const platform::PixelSize finestra = host_.WindowSize();
    const auto punto = [&] {
      return platform::Point{Rnd() * finestra.width, Rnd() * finestra.height};
    };
    const MouseButton bottone = MouseButton(1 + A(3));
    switch (A(12)) {
      case 0:
        host_.Resize({300 + A(800), 200 + A(600)});
        break;
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
        host_.Queue({A(2) ? EventKind::MouseDown : EventKind::MouseUp, A(finestra.width),
                     A(finestra.height), bottone});
        break;
      default:
        ToccaQualcosa(A(8) == 0 ? bottone : MouseButton::Left);
    }
  }

  void ToccaQualcosa(MouseButton bottone) {
    const platform::Form& form = *gioco_.screen().top();
    // Most of the board is squares, and the exit ends the game: a monkey without a preference would
    // hardly ever throw.
    std::vector<const platform::Control*> adatti;
    for (const platform::Control* c : form.controls()) {
      const int rarita = c->name().starts_with("cmdcitta") ? 200 : c->name() == "cmdExit" ? 40 : 1;
      if (c->ShownOnScreen() && (c->OnClick || c->OnMouseDown) && A(rarita) == 0)
        adatti.push_back(c);
    }
    if (adatti.empty()) return;
    const platform::Control* scelto = adatti[std::size_t(A(int(adatti.size())))];
    const platform::Rect r = scelto->InForm(scelto->place());
    const platform::Rect f = form.PlaneRect();
    host_.Click(gioco_.screen().ToWindow(
                    {f.left + r.left + Rnd() * r.width, f.top + r.top + Rnd() * r.height}),
                bottone);
  }

  int eventi_, fatti_ = 0;
  std::mt19937 generatore_;
  platform::HeadlessHost host_{{800, 600}};
  Gioco gioco_;
};

TEST(Scimmia, BreaksNothing) {
  Cartella cartella;
  cartella.Alleggerisci();
  int eventi = 0;
  for (unsigned seme = 1; eventi < 500 && !HasFatalFailure(); ++seme) {
    SCOPED_TRACE("seed " + std::to_string(seme));
    eventi += Scimmia(seme, cartella.percorso(), 250).Gioca();
  }
}

}  // namespace
}  // namespace girovia
