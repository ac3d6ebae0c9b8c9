#include "dimostrazione/automa.h"

#include <algorithm>

#include "content/quiz.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;
using platform::Control;
using platform::Form;

namespace {

// How long a form is looked at before something is done on it, in microseconds: as long as its
// texts want to be read, but nobody reads for ever.
constexpr std::int64_t kSguardo = 1'600'000;
constexpr std::int64_t kPerLettera = 30'000;
constexpr std::int64_t kLettura = 8'000'000;

constexpr int kUscita = 6;
constexpr int kPremi[] = {4, 1, 2, 5, 3, 4, 4, kUscita, 4, kUscita};

std::string Indice(const std::string& nome, int i) { return nome + "(" + std::to_string(i) + ")"; }

}  // namespace

Automa::Automa(Gioco& gioco) : gioco_(gioco) {
  gioco_.screen().OnForm = [this](const Form& form) {
    viste_.insert(form.name());
    davanti_ = nullptr;  // even where it is the one that was there before
  };
}

// The names on the board need not be read, and no text twice.
std::int64_t Automa::TempoDiLettura(const Form& form) {
  std::size_t lettere = 0;
  if (&form != gioco_.tabellone())
    for (const Control* c : form.controls())
      if (c->ShownOnScreen() && letti_.emplace(c->text()).second) lettere += c->text().size();
  return std::min(kLettura, kSguardo + std::int64_t(lettere) * kPerLettera);
}

int Automa::Scena() {
  const Form* form = gioco_.screen().top();
  if (form == davanti_) return scena_;
  davanti_ = form;
  guardaFinoA_ = gioco_.screen().host().NowMicros() + (form ? TempoDiLettura(*form) : 0);
  return ++scena_;
}

std::int64_t Automa::GuardaFinoA() {
  Scena();
  return guardaFinoA_;
}

Automa::Mossa Automa::Prossimo() {
  static constexpr std::pair<const char*, Mossa (Automa::*)()> kForme[] = {
      {"Splash", &Automa::SuSplash},
      {"FormGirovia", &Automa::SuTabellone},
      {"FormCitta", &Automa::SuCitta},
      {"FormCarte2Items", &Automa::SuCarte2},
      {"FormCarte4Items", &Automa::SuCarte4},
      {"FormProvaCitta", &Automa::SuMappaCitta},
      {"FormProvaCapitali", &Automa::SuMappaCapitali},
      {"FormProvaOrdinamento", &Automa::SuTessere},
      {"FormProvaPuzzle", &Automa::SuTessere},
      {"FormMessaggi", &Automa::SuDomanda},
      {"FormPremiazione", &Automa::SuPremiazione},
      {"MsgBox", &Automa::SuAvviso},
  };
  const Form* form = gioco_.screen().top();
  if (!form) return {};
  for (const auto& [nome, fa] : kForme)
    if (form->name() == nome) return (this->*fa)();
  return Risponde();
}

Automa::Mossa Automa::Clicca(const std::string& nome, const std::string& testo) {
  const platform::Screen& screen = gioco_.screen();
  const Control* c = screen.top()->Find(nome);
  if (!c || !screen.CanClick(*c)) return {};
  const platform::Rect r = c->InForm(c->place()), f = screen.top()->PlaneRect();
  return Gesto{screen.ToWindow({f.left + r.left + r.width / 2, f.top + r.top + r.height / 2}),
               testo};
}

Automa::Mossa Automa::Clicca(const std::string& nome, int indice) {
  return Clicca(Indice(nome, indice));
}

Automa::Mossa Automa::Risponde() {
  for (const char* nome : {"cmdRisposta", "cmdRisposta(1)", "cmdExit"})
    if (const Mossa mossa = Clicca(nome)) return mossa;
  return {};
}

// The help first, then each player chooses for himself.
Automa::Mossa Automa::SuSplash() {
  switch (iniziale_++) {
    case 0:
      return Clicca("CmdHelp");
    case 1:
      return Clicca("TxtPrimo", "Giulia");
    case 2:
      return Clicca("OptColorePrimo", 1);
    case 3:
      return Clicca("picRitrattoPrimo", 3);
    case 4:
      return Clicca("TxtSecondo", "Matteo");
    case 5:
      return Clicca("OptColoreSecondo", 2);
    case 6:
      return Clicca("picRitrattoSecondo", 1);
    default:
      return Clicca("CmdOK");
  }
}

Automa::Mossa Automa::SuTabellone() {
  if (Giocatore == 0) {
    if (const Mossa aiuto = Clicca("CmdHelp")) return aiuto;
    return Clicca("cmdRitratto", 1);
  }
  if (!uscitaChiesta_) {
    uscitaChiesta_ = true;
    return Clicca("cmdExit");
  }
  const bool sorpresa = Sorpresa == 1 && Pos[Giocatore] > 0;
  if (sorpresa || (!viste_.contains("FormCitta") && Pos[Giocatore] > 0))
    if (const Mossa citta = Clicca("cmdcitta", Pos[Giocatore])) return citta;
  return Clicca("cmdRitratto", Giocatore);
}

Automa::Mossa Automa::SuCitta() {
  if (const Mossa pacco = Clicca("CmdSorpresa")) return pacco;
  return Clicca("cmdExit");
}

// Every third answer is wrong.
Automa::Mossa Automa::SuCarte2() {
  const bool sbaglia = ++affermazioni_ % 3 == 2;
  return Clicca("cmdRisposta", sbaglia ? 3 - RispostaEsatta : RispostaEsatta);
}

Automa::Mossa Automa::SuCarte4() {
  const int sbagliata = LeggiSetFoto(IndiceCarte4).sbagliata;
  for (int i = 1; i <= 4; ++i)
    if (i != sbagliata)
      if (const Mossa mossa = Clicca("cmdRisposta", i)) return mossa;
  return {};
}

Automa::Mossa Automa::SuMappaCitta() { return Clicca("cmdcitta", IndiceProvaCitta); }
Automa::Mossa Automa::SuMappaCapitali() { return Clicca("cmdcitta", IndiceProvaCapitali); }

// The tag of a cell says which tile lies there, and so to which cell that tile belongs. A tile in
// the hand is dropped there; else one is lifted that lies wrong.
Automa::Mossa Automa::SuTessere() {
  const Form& form = *gioco_.screen().top();
  const Control* inMano = form.Find("picTassello");
  const auto mezzo = [&](const Control& c) {
    const platform::Rect r = c.InForm(c.place()), f = form.PlaneRect();
    return Gesto{
        gioco_.screen().ToWindow({f.left + r.left + r.width / 2, f.top + r.top + r.height / 2})};
  };
  if (inMano && inMano->visible()) {
    const Control* cella = form.Find("Picture2(" + inMano->tag() + ")");
    return cella ? Mossa(mezzo(*cella)) : Mossa();
  }
  const Control* prima = nullptr;
  for (int c = 0;; ++c) {
    const Control* cella = form.Find(Indice("Picture2", c));
    if (!cella) break;
    if (!prima) prima = cella;
    if (cella->visible() && cella->tag() != std::to_string(c)) return mezzo(*cella);
  }
  return prima && prima->visible() ? Mossa(mezzo(*prima)) : Mossa();
}

// Nobody leaves before the end.
Automa::Mossa Automa::SuDomanda() { return Clicca("cmdRisposta", 2); }

// Everything once, the special prize more often; at the first question he stays.
Automa::Mossa Automa::SuPremiazione() {
  const int scelta = premi_ < std::size(kPremi) ? kPremi[premi_] : kUscita;
  ++premi_;
  return Clicca("cmdRisposta", scelta);
}

Automa::Mossa Automa::SuAvviso() {
  if (const Mossa bene = Clicca("cmdOK")) return bene;
  return Clicca(premi_ < std::size(kPremi) ? "cmdNo" : "cmdYes");
}

}  // namespace girovia
