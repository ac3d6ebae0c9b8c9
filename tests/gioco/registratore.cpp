#include "registratore.h"

#include <deque>
#include <iomanip>
#include <random>
#include <sstream>
#include <vector>

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {
namespace {

using platform::Control;
using platform::Form;

// The draws that go by a name: how many ways each has, and the number of the first.
struct Sorte {
  const char* nome;
  int vie;
  int prima = 0;
};

constexpr Sorte kSorti[] = {
    {"dado", 6, 1},       // both dice
    {"esito", 9},         // of a move
    {"affermazione", 3},  // which sentence of the true-or-false card
    {"sorpresa", 3},      // 1: there is one
    {"dono", 9},          // in the parcel
    {"imprevisto", 31},   // the card
    {"volo", 2},          // 1: onwards
    {"biglietto", 2},     // of the map trials' prize: 10 or 5 euro
    {"monete", 8},        // four of them
    {"tasselli", 9},      // of the ordering trial, to the cells but the middle one
    {"pezzi", 12},        // of the puzzle
    {"citta", 100},      {"capitale", 35}, {"ordinamento", 9}, {"foto", 41}, {"premio", 14},
};

struct Istruzione {
  int riga = 0;
  std::string testo;
  std::string verbo;
  std::vector<std::string> argomenti;
  std::deque<double> numeri;  // of a draw
};

[[noreturn]] void Errore(const Istruzione& dove, const std::string& cosa) {
  throw ErroreCopione("line " + std::to_string(dove.riga) + " (" + dove.testo + "): " + cosa);
}

double Numero(const Istruzione& dove, const std::string& testo) {
  std::size_t letti = 0;
  double numero = 0;
  try {
    numero = std::stod(testo, &letti);
  } catch (const std::logic_error&) {
  }
  if (letti == 0 || letti != testo.size()) Errore(dove, "'" + testo + "' is no number");
  return numero;
}

// Keys by name; a name is written with blanks between its words.
constexpr std::pair<const char*, platform::Key> kTasti[] = {
    {"Tab", platform::Key::Tab},      {"Invio", platform::Key::Enter},
    {"Esc", platform::Key::Escape},   {"Spazio", platform::Key::Space},
    {"Destra", platform::Key::Right}, {"Canc", platform::Key::Delete}};

void LeggiNumeri(Istruzione& i) {
  if (i.verbo == "scrivi" || i.verbo == "tasto") {
    if (i.argomenti.empty()) Errore(i, "nothing to type");
    return;
  }
  const bool posa = i.verbo == "posto" || i.verbo == "gruzzolo";
  if (posa || i.verbo == "clic" || i.verbo == "attendi" || i.verbo == "seme") {
    if (i.argomenti.size() != (posa ? 2 : 1)) Errore(i, "not so many words");
    return;
  }
  for (std::size_t n = 0; n < i.argomenti.size(); ++n) {
    const double k = Numero(i, i.argomenti[n]);
    if (i.verbo == "u") {
      i.numeri.push_back(k);
    } else if (i.verbo == "ritratti") {
      i.numeri.push_back((k - (n == 0 ? 124 : 130) + 0.5) / 6);
    } else {
      for (const Sorte& sorte : kSorti)
        if (i.verbo == sorte.nome) i.numeri.push_back((k - sorte.prima + 0.5) / sorte.vie);
    }
    if (i.numeri.size() != n + 1) Errore(i, "unknown statement");
    if (i.numeri.back() < 0 || i.numeri.back() >= 1) Errore(i, "out of range");
  }
  if (i.numeri.empty()) Errore(i, "no number");
}

// What nearly every turn does, in a word.
std::vector<std::string> Sciogli(const std::string& riga) {
  std::istringstream parole(riga);
  std::string verbo, primo, secondo, resto;
  parole >> verbo >> primo >> secondo;
  std::getline(parole, resto);
  if (verbo == "tira")
    return {"clic FormGirovia.cmdRitratto(" + primo + ")", "dado " + secondo + resto,
            "clic FormBanconote.cmdRisposta"};
  if (verbo == "passa") return {"esito 7", "affermazione 0", "clic FormCarte2Items.cmdRisposta(0)"};
  if (verbo == "sposta")
    return {"clic Picture2(" + primo + ")",
            secondo == primo ? "clic picTassello" : "clic Picture2(" + secondo + ")"};
  return {riga};
}

std::deque<Istruzione> Leggi(const std::string& copione) {
  std::deque<Istruzione> istruzioni;
  std::istringstream testo(copione);
  std::string riga;
  for (int n = 1; std::getline(testo, riga); ++n) {
    riga.erase(std::min(riga.find('#'), riga.size()));
    std::istringstream pezzi(riga);
    for (std::string pezzo; std::getline(pezzi, pezzo, ';');) {
      for (const std::string& detto : Sciogli(pezzo)) {
        std::istringstream parole(detto);
        Istruzione i{.riga = n, .testo = {}, .verbo = {}, .argomenti = {}, .numeri = {}};
        if (!(parole >> i.verbo)) continue;
        i.testo = i.verbo;
        for (std::string parola; parole >> parola;) {
          i.argomenti.push_back(parola);
          i.testo += " " + parola;
        }
        LeggiNumeri(i);
        istruzioni.push_back(std::move(i));
      }
    }
  }
  return istruzioni;
}

class Registratore : public Caso {
 public:
  Registratore(const std::string& copione, const std::string& cartella, bool impaziente)
      : istruzioni_(Leggi(copione)), gioco_(host_, {cartella, 1, this}) {
    for (const Istruzione& i : istruzioni_)
      if (i.testo.starts_with("clic Splash.") || i.verbo == "scrivi") saltaInizio_ = false;
    host_.OnIdle = [this] { Inattivo(); };
    if (impaziente) host_.OnBlocked = [this] { NonAspetta(); };
    gioco_.screen().OnSound = [this](const std::string& nome) { Scrivi("suono " + nome); };
    gioco_.screen().OnForm = [this](const Form& form) { Avanti(form); };
  }

  std::string Gioca() {
    const int codice = gioco_.Gioca();
    if (!istruzioni_.empty()) Errore(istruzioni_.front(), "the game had ended before this");
    Scrivi("fine, codice " + std::to_string(codice));
    return Verbale();
  }

 private:
  // --- The game asks

  double Rnd() override {
    if (automatico_) return Uniforme();
    if (attesa_ >= 0 && Davanti() == "Splash") return Uniforme();  // the portraits shimmer
    if (attesa_ >= 0) {                                            // the game went on by itself
      attesa_ = -1;
      istruzioni_.pop_front();
    }
    if (istruzioni_.empty())
      throw ErroreCopione("the script has run out of numbers at " + Adesso() + " ms, with " +
                          Davanti() + " in front");
    Istruzione& i = istruzioni_.front();
    if (i.numeri.empty())
      Errore(i, "the game draws a number here, with " + Davanti() + " in front");
    if (i.numeri.size() == i.argomenti.size()) Scrivi("caso " + i.testo);
    const double u = i.numeri.front();
    i.numeri.pop_front();
    if (i.numeri.empty()) istruzioni_.pop_front();
    return u;
  }

  void Inattivo() {
    ScriviStato();
    if (saltaInizio_ && gioco_.screen().top()->name() == "Splash")
      return CliccaInMezzo(*gioco_.screen().top(), *gioco_.screen().top()->Find("CmdOK"));
    if (automatico_) return CliccaACaso();
    if (istruzioni_.empty()) {
      host_.Queue({platform::EventKind::Quit, 0, 0, platform::MouseButton::Left});
      return;
    }
    const Istruzione i = istruzioni_.front();
    if (!i.numeri.empty())
      Errore(i, "the game waits for a click here, with " + Davanti() + " in front");
    if (i.verbo == "attendi") {
      if (attesa_ < 0) attesa_ = host_.NowMicros() + std::int64_t(Numero(i, i.argomenti[0]) * 1000);
      if (host_.NowMicros() < attesa_) return;
      attesa_ = -1;
      istruzioni_.pop_front();
      return Inattivo();
    }
    istruzioni_.pop_front();
    if (i.verbo == "posto" || i.verbo == "gruzzolo") {
      Posa(i);
      return Inattivo();
    }
    if (i.verbo == "scrivi" || i.verbo == "tasto") return Batti(i);
    if (i.verbo == "seme") {
      generatore_.seed(unsigned(Numero(i, i.argomenti[0])));
      automatico_ = true;
      return CliccaACaso();
    }
    Clicca(i);
  }

  static void Posa(const Istruzione& i) {
    const int p = Numero(i, i.argomenti[0]) == 1 ? 1 : 2;
    const int n = int(Numero(i, i.argomenti[1]));
    if (i.verbo == "posto") {
      mod_Girovia::Pos[p] = n;
      servizi().tabellone->RefreshPrBar();
    } else {
      mod_Girovia::Gruzzolo[p] = Euro::Interi(n);
      servizi().tabellone->ScriviGruzzolo(p, Euro::Interi(n));
    }
  }

  void Batti(const Istruzione& i) {
    Scrivi(i.testo);
    if (i.verbo == "scrivi") return host_.Type(i.testo.substr(i.testo.find(' ') + 1));
    for (const auto& [nome, tasto] : kTasti)
      if (i.argomenti[0] == nome) return host_.Press(tasto);
    Errore(i, "unknown key");
  }

  // --- Clicks

  void Clicca(const Istruzione& i) {
    std::string nome = i.argomenti[0];
    Form* form = gioco_.screen().top();
    if (form->systemBox()) Avanti(*form);  // no form of the program: nobody else tells of it
    if (const auto punto = nome.find('.'); punto != std::string::npos) {
      if (form->name() != nome.substr(0, punto)) Errore(i, Davanti() + " is in front");
      nome.erase(0, punto + 1);
    }
    Control* controllo = form->Find(nome);
    if (!controllo) Errore(i, Davanti() + " has no such control");
    if (!Raggiunge(*form, *controllo)) Errore(i, "a click would not reach it");
    Scrivi("clic " + form->name() + "." + nome);
    CliccaInMezzo(*form, *controllo);
  }

  // Answers, portraits and the exits of screens that have nothing else.
  void CliccaACaso() {
    if (host_.NowMicros() > kDurataMassima) throw ErroreCopione("the game does not come to an end");
    Form& form = *gioco_.screen().top();
    if (form.Find("picTassello") && SpostaACaso(form)) return;
    if (form.name().starts_with("FormProvaC")) return CliccaSuMappa(form);
    for (const char* nome : {"cmdRitratto", "cmdRisposta", "cmdExit", "cmdOK", "cmdYes"}) {
      std::vector<Control*> adatti;
      for (Control* c : form.controls())
        if (c->name().substr(0, c->name().find('(')) == nome && Raggiunge(form, *c))
          adatti.push_back(c);
      if (adatti.empty()) continue;
      Control& scelto = *adatti[std::size_t(Uniforme() * double(adatti.size()))];
      Scrivi("clic " + form.name() + "." + scelto.name());
      return CliccaInMezzo(form, scelto);
    }
  }

  // Puts the next tile in its place, unless the player loses patience.
  bool SpostaACaso(const Form& form) {
    const auto cella = [&form](int c) { return form.Find("Picture2(" + std::to_string(c) + ")"); };
    const auto tassello = [&](int c) { return std::stoi(cella(c)->tag()); };
    if (const Control* mano = form.Find("picTassello"); mano->visible()) {
      CliccaInMezzo(form, *cella(std::stoi(mano->tag())));
      return true;
    }
    if (Uniforme() < 0.05) return false;
    int da = 0;
    for (int c = 0; cella(c); ++c)
      if (tassello(c) != c) da = c;
    Scrivi("sposta " + std::to_string(da) + " " + cella(da)->tag());
    CliccaInMezzo(form, *cella(da));
    return true;
  }

  // One time out of three he knows the city, and one time he does not look for it.
  void CliccaSuMappa(const Form& form) {
    using namespace mod_Messaggi;
    const int giusta = form.name() == "FormProvaCitta" ? IndiceProvaCitta : IndiceProvaCapitali;
    const double come = Uniforme();
    Control* scelto = form.Find("cmdcitta(" + std::to_string(giusta) + ")");
    if (come > 1.0 / 3) scelto = form.Find("cmdExit");
    while (come > 2.0 / 3 && !scelto->name().starts_with("cmdcitta")) {
      Control* caso = form.Find("cmdcitta(" + std::to_string(int(Uniforme() * 100)) + ")");
      if (Raggiunge(form, *caso)) scelto = caso;
    }
    Scrivi("clic " + form.name() + "." + scelto->name());
    CliccaInMezzo(form, *scelto);
  }

  // Somewhere on the screen, and half the time a press that is not let go.
  void NonAspetta() {
    if (host_.NowMicros() == ultimoClic_) return;
    ultimoClic_ = host_.NowMicros();
    host_.Click({Uniforme() * 800, Uniforme() * 600},
                Uniforme() < 0.2 ? platform::MouseButton::Right : platform::MouseButton::Left);
    if (Uniforme() < 0.5)
      host_.Queue({platform::EventKind::MouseDown, int(Uniforme() * 800), int(Uniforme() * 600),
                   platform::MouseButton::Left});
  }

  static platform::Point Mezzo(const Control& controllo) {
    const platform::Rect r = controllo.InForm(controllo.place());
    return {r.left + r.width / 2, r.top + r.height / 2};
  }

  static bool Raggiunge(const Form& form, const Control& controllo) {
    const auto [x, y] = Mezzo(controllo);
    return controllo.ShownOnScreen() && form.HitTest(x, y) == &controllo;
  }

  void CliccaInMezzo(const Form& form, const Control& controllo) {
    const auto [x, y] = Mezzo(controllo);
    const platform::Rect f = form.PlaneRect();
    host_.Click(gioco_.screen().ToWindow({f.left + x, f.top + y}));
  }

  // --- The record

  void Avanti(const Form& form) {
    if (saltaInizio_ && form.name() == "Splash") return;
    ScriviStato();
    std::string riga = "davanti " + form.name();
    if (&form != gioco_.tabellone())
      for (const Control* c : form.controls())
        if (c->visible() && !c->text().empty())
          riga += "; " + c->name() + ": " + UnaRiga(c->text());
    Scrivi(riga);
  }

  static std::string UnaRiga(std::string_view testo) {
    std::string riga;
    for (const char c : testo)
      if (c == '\n') {
        riga += " / ";
      } else if (c != '\r') {
        riga += c;
      }
    return riga;
  }

  // What the board shows of a player and where he is, whenever it has changed.
  void ScriviStato() {
    const FormGirovia* tabellone = gioco_.tabellone();
    if (!tabellone || !tabellone->shown()) return;
    for (std::size_t p : {1u, 2u}) {
      const std::string indice = "(" + std::to_string(p) + ")";
      std::string riga = UnaRiga(tabellone->Find("PrBar" + indice)->text());
      riga += " (" + std::to_string(mod_Girovia::Pos[p]) + "), ";
      riga += tabellone->Find("lblGruzzolo" + indice)->text();
      if (riga != stato_[p]) Scrivi(riga);
      stato_[p] = riga;
    }
    const std::string annuncio = UnaRiga(tabellone->Find("LblSorpresa")->text());
    if (annuncio != stato_[0]) Scrivi("annuncio " + annuncio);
    stato_[0] = annuncio;
  }

  void Scrivi(const std::string& cosa) { righe_.push_back({host_.NowMicros() / 1000, cosa}); }

  // Equal events in a row become one line.
  std::string Verbale() const {
    std::ostringstream verbale;
    for (std::size_t da = 0, a; da < righe_.size(); da = a) {
      for (a = da + 1; a < righe_.size() && righe_[a].cosa == righe_[da].cosa;) ++a;
      verbale << std::setw(8) << righe_[da].ms << "  " << righe_[da].cosa;
      if (a > da + 1) verbale << " x" << a - da << " fino a " << righe_[a - 1].ms;
      verbale << "\n";
    }
    return verbale.str();
  }

  std::string Davanti() {
    return gioco_.screen().top() ? gioco_.screen().top()->name() : "nothing";
  }
  std::string Adesso() { return std::to_string(host_.NowMicros() / 1000); }
  // Not std::uniform_real_distribution, whose numbers are each library's own.
  double Uniforme() { return double(generatore_()) / 4294967296.0; }

  static constexpr std::int64_t kDurataMassima = 5LL * 3600 * 1'000'000;

  struct Riga {
    std::int64_t ms;
    std::string cosa;
  };

  std::deque<Istruzione> istruzioni_;
  std::vector<Riga> righe_;
  std::string stato_[3];
  std::int64_t attesa_ = -1;
  std::int64_t ultimoClic_ = -1;
  bool automatico_ = false;
  bool saltaInizio_ = true;
  std::mt19937 generatore_;
  platform::HeadlessHost host_{{800, 600}};
  Gioco gioco_;
};

}  // namespace

std::string Registra(const std::string& copione, const std::string& cartella, bool impaziente) {
  return Registratore(copione, cartella, impaziente).Gioca();
}

}  // namespace girovia
