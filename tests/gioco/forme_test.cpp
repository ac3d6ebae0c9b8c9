// Goes over the table of every form by rules, so that a new form is covered as soon as it can be
// opened: what stands on it lies on it, its texts can be read, its buttons can be clicked.
#include <algorithm>
#include <random>
#include <set>

#include "banco.h"
#include "cartella.h"
#include "content/atlante.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"
#include "platform/forms/msgbox.h"

namespace girovia {
namespace {

using platform::Control;
using platform::Form;
using platform::Rect;

constexpr double kPuntiLeggibili = 6;
// The foot of the board cuts its two frames, and the line of a purse below the base line of its
// figures.
constexpr double kTaglio = 3;
// Two photographs of the puzzle are smaller than its cells together.
constexpr double kMancante = 4;

// Lines follow the route, and a picture box that is hidden is a work surface or waits for its
// place.
bool HaPosto(const Control& c) {
  return !dynamic_cast<const platform::Line*>(&c) &&
         (c.visible() || !dynamic_cast<const platform::PictureBox*>(&c));
}

bool SiClicca(const Control& c) {
  return c.visible() && c.enabled() && c.takesMouse() && (c.OnClick || c.OnMouseDown);
}

// The columns of the news and the credits of the start screen begin under the foot of their page.
bool Sale(const Control& c) {
  const std::string& form = c.form()->name();
  return (form == "FormImprevisti" &&
          (c.name() == "lblGiornale(1)" || c.name() == "lblGiornale(2)")) ||
         (form == "Splash" && c.name().starts_with("picTitoli"));
}

bool Dentro(const Control& c, const Rect& area) {
  const Rect& r = c.place();
  if (Sale(c)) return true;
  const double bordo = dynamic_cast<const platform::Shape*>(&c) ? 1 : 0;  // half a wide line
  const double oltre = c.name().starts_with("Picture2") ? kMancante : 0;
  return r.left >= area.left - bordo && r.top >= area.top - bordo &&
         r.right() <= area.right() + oltre &&
         r.bottom() <= area.bottom() + (c.windowed() ? oltre : kTaglio);
}

bool Toccano(const Rect& a, const Rect& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

std::string Dice(const Rect& r) {
  return " " + std::to_string(r.left) + "," + std::to_string(r.top) + " " +
         std::to_string(r.width) + "x" + std::to_string(r.height);
}

// `solito`: with names and sums as they are in most games.
void Controlla(const Form& form, bool solito) {
  const Rect foglio{0, 0, double(form.width()), double(form.height())};
  std::set<std::string> nomi;
  for (const Control* c : form.controls()) {
    const std::string chi = form.name() + "." + c->name() + Dice(c->place());
    EXPECT_TRUE(nomi.insert(c->name()).second) << chi << " stands twice in the table";
    const Control* in = c->container();
    const Rect area = in ? Rect{0, 0, in->place().width - 2 * in->childOrigin().x,
                                in->place().height - 2 * in->childOrigin().y}
                         : foglio;
    EXPECT_TRUE(!HaPosto(*c) || Dentro(*c, area)) << chi << " lies outside";
    EXPECT_TRUE(c->TextFits()) << chi << " cuts off: " << c->text();
    const auto* scritta = dynamic_cast<const platform::Label*>(c);
    EXPECT_TRUE(!solito || !scritta || scritta->drawnPoints() >= kPuntiLeggibili)
        << chi << " is too small: " << c->text();
    if (!SiClicca(*c)) continue;
    const Rect r = c->InForm(c->place());
    const double x = r.left + r.width / 2, y = r.top + r.height / 2;
    EXPECT_TRUE(form.ContainsPoint(x, y)) << chi << " is outside the form's shape";
    EXPECT_EQ(form.HitTest(x, y), c) << chi << " cannot be clicked";
    if (!c->windowed()) continue;
    for (const Control* altro : form.controls()) {
      if (altro == c) break;
      if (!altro->windowed() || !SiClicca(*altro) || altro->container() != in) continue;
      EXPECT_FALSE(Toccano(c->place(), altro->place())) << chi << " overlaps " << altro->name();
    }
  }
}

std::string Testi(const Form& form) {
  std::string testi;
  for (const Control* c : form.controls()) testi.append(c->text()).append("|");
  return testi;
}

// The fields as the turn leaves them for a screen; everything that can be chosen follows from n.
void Prepara(Schermata schermata, int n) {
  using namespace mod_Girovia;
  using namespace mod_Messaggi;
  const std::string citta(NomeCasella(n));
  Giocatore = 1 + n % 2;
  Pos[1] = Pos[2] = CittaCliccata = n;
  Dado = 2 + n % 11;
  IndiceCarte2 = n;
  IndiceCarte4 = n % 41;
  IndiceProvaCitta = n;
  IndiceProvaCapitali = n % 35;
  IndiceImprevisto = n % 31;
  IndiceOrdinamento = n % 9;
  ColoreCornice = Colore[Giocatore];
  switch (schermata) {
    case Schermata::FormMessaggi:
      Messaggio = "Vuoi uscire dal gioco?";
      break;
    case Schermata::FormBanconote:
      Messaggio = "Vinci " + std::to_string(Dado) + " euro";
      break;
    case Schermata::FormInfo:
      InfoDaPartita = Vero;
      UscitaDaSplash = n == 1 ? Vero : Falso;
      break;
    case Schermata::FormSovrapposizioni:
      Messaggio = citta + " è già occupata.\r\nCosa vuoi fare?";
      servizi().schermi->PreparaSovrapposizioni("Pago 5 euro e vado a " + citta,
                                                "Non pago niente e torno a " + citta);
      break;
    default:
      Messaggio =
          "Se non ci riesci restituisci " + std::to_string(Dado) + " euro e torni a " + citta;
  }
}

// A stand-in goes by the name of the form that it is made of.
bool Supplente(const Form& form, Schermata schermata) {
  return form.name() == "FormMessaggi" && schermata != Schermata::FormMessaggi;
}

int CasellaDalNomePiuLungo() {
  int lunga = 0;
  for (int i = 1; i < kNumeroCaselle; ++i)
    if (NomeCasella(i).size() > NomeCasella(lunga).size()) lunga = i;
  return lunga;
}

class Forme : public testing::Test {
 protected:
  Forme() { cartella_.Alleggerisci(); }

  // All that is open at the start. The help lies over a square until the first throw.
  static void ControllaAperte(Banco& banco, bool solito) {
    servizi().comandi->NascondiAiuto();
    for (const Form* form : banco.gioco.screen().forms()) Controlla(*form, solito);
  }

  // Opens the screen, which shows its content n and, where it draws, its first draw `u`.
  std::string Apri(Banco& banco, Schermata schermata, int n, double u, bool solito) {
    SCOPED_TRACE("content " + std::to_string(n));
    Prepara(schermata, n);
    std::mt19937 caso;
    caso.seed(unsigned(n));
    banco.numeri = {u};
    for (int i = 0; i < 2000; ++i) banco.numeri.push_back(double(caso()) / 4294967296.0);
    const auto form = banco.gioco.Crea(schermata);
    if (Supplente(*form, schermata)) return "";
    form->Load();
    form->Show();
    Controlla(*form, solito);
    const std::string testi = Testi(*form);
    form->Unload();
    return testi;
  }

  // A screen whose texts stay the same has the same for all squares and draws.
  void TuttiIContenuti(Banco& banco, Schermata schermata) {
    std::string prima;
    for (int n = 0; n < kNumeroCaselle; ++n) {
      const std::string testi = Apri(banco, schermata, n, 0, true);
      if (n > 2 && testi == prima) break;
      prima = testi;
      for (const double u : {0.33, 0.67, 0.99})
        if (Apri(banco, schermata, n, u, true) == testi) break;
    }
  }

  Cartella cartella_;
};

TEST_F(Forme, EveryContentOfEveryScreen) {
  Banco banco(1, cartella_.percorso());
  banco.Passi({[&] {
    ControllaAperte(banco, true);
    for (int s = 0; s < kNumeroSchermate; ++s) TuttiIContenuti(banco, Schermata(s));
  }});
}

TEST_F(Forme, LongNamesAndLargeSumsAtBothScales) {
  for (const int scala : {1, 2}) {
    SCOPED_TRACE("scale " + std::to_string(scala));
    Banco banco(scala, cartella_.percorso());
    banco.Passi({[&] {
      using namespace mod_Girovia;
      for (const bool solito : {true, false}) {
        for (const int n : {0, CasellaDalNomePiuLungo()}) {
          for (int p : {1, 2}) {
            if (!solito) Nome[p] = "WWWWWWWWWWWW...";
            Pos[p] = n;
            servizi().tabellone->ScriviGruzzolo(p, Euro::Centesimi(solito ? 123456 : -123456789));
          }
          servizi().tabellone->RefreshPrBar();
          ControllaAperte(banco, solito);
          for (int s = 0; s < kNumeroSchermate; ++s) Apri(banco, Schermata(s), n, 0.5, solito);
        }
      }
    }});
  }
}

TEST_F(Forme, TheSystemsBox) {
  for (const auto bottoni : {platform::MsgButtons::Ok, platform::MsgButtons::YesNo}) {
    Banco banco(1, cartella_.percorso());
    banco.Passi({[&] {
                   platform::MsgBox(banco.gioco.screen(), "GIROVIA GRANDETAPPA",
                                    "Vuoi uscire dal gioco?", bottoni);
                 },
                 [&] { Controlla(banco.davanti(), true); }});
  }
}

}  // namespace
}  // namespace girovia
