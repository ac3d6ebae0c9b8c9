#include "dimostrazione.h"

#include <cstdio>
#include <filesystem>
#include <set>

#include "core/mod_Girovia.h"
#include "gioco.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {
namespace {

// Two players who click whatever asks for a click, and are right most of the time. A game that has
// not ended by then is left: nobody waits for a demonstration for ever.
class Spettatore {
 public:
  Spettatore(platform::HeadlessHost& host, Gioco& gioco, std::string galleria)
      : host_(host), gioco_(gioco), galleria_(std::move(galleria)) {
    host_.OnIdle = [this] { Tocca(); };
    // Dice and cards run by themselves and are gone before anything is clicked.
    host_.OnBlocked = [this] { Guarda(kSguardo / 2); };
  }
  int schermate() const { return int(viste_.size()); }

 private:
  void Tocca() {
    if (!Guarda(kSguardo)) return;
    if (host_.NowMicros() > kDurataMassima) {
      host_.Queue({platform::EventKind::Quit, 0, 0, platform::MouseButton::Left});
      return;
    }
    // On the board the click is on a portrait; a form over it has its answers.
    for (const char* nome : {"cmdRitratto", "cmdRisposta", "cmdYes"})
      if (Clicca(*gioco_.screen().top(), nome)) return;
  }

  // A new screen is looked at for a moment before it is answered; its picture is taken then.
  bool Guarda(std::int64_t quanto) {
    platform::Form* form = gioco_.screen().top();
    if (form != davanti_) {
      davanti_ = form;
      daQuando_ = host_.NowMicros();
    }
    if (!form || host_.NowMicros() - daQuando_ < quanto) return false;
    Fotografa(form->name());
    return true;
  }

  bool Clicca(platform::Form& form, const std::string& nome) {
    platform::Control* scelto = nullptr;
    double meglio = 2;
    for (platform::Control* c : form.controls()) {
      const bool suo = c->name() == nome || c->name().starts_with(nome + "(");
      if (!suo || !c->ShownOnScreen()) continue;
      // The first answer, as a rule the good one, is taken two times out of three.
      const double voto = (scelto ? 1.0 / 3 : 0) + caso_.Draw() * 2 / 3;
      if (voto < meglio) scelto = c, meglio = voto;
    }
    if (!scelto) return false;
    const platform::Rect r = scelto->InForm(scelto->place());
    const platform::Rect f = form.PlaneRect();
    host_.Click(
        gioco_.screen().ToWindow({f.left + r.left + r.width / 2, f.top + r.top + r.height / 2}));
    return true;
  }

  void Fotografa(const std::string& nome) {
    if (!viste_.insert(nome).second) return;
    platform::SavePng(host_.Shot(), galleria_ + "/" + nome + ".png");
  }

  static constexpr std::int64_t kDurataMassima = 3LL * 3600 * 1'000'000;
  static constexpr std::int64_t kSguardo = 1'500'000;

  platform::HeadlessHost& host_;
  Gioco& gioco_;
  std::string galleria_;
  std::set<std::string> viste_;
  platform::Form* davanti_ = nullptr;
  std::int64_t daQuando_ = 0;
  platform::ClockRandom caso_;
};

}  // namespace

int Dimostrazione(const std::string& cartella, const std::string& galleria) {
  std::error_code error;
  std::filesystem::create_directories(galleria, error);
  if (error) {
    std::fprintf(stderr, "Non posso creare la cartella %s: %s\n", galleria.c_str(),
                 error.message().c_str());
    return 1;
  }
  platform::HeadlessHost host({1600, 1200});
  Gioco gioco(host, {.cartella = cartella});
  Spettatore spettatore(host, gioco, galleria);
  const int codice = gioco.Gioca();
  using namespace mod_Girovia;
  std::printf("Partita finita: %s %s, %s %s. Le %d schermate incontrate sono in %s\n",
              Nome[1].c_str(), TestoEuro(Gruzzolo[1]).c_str(), Nome[2].c_str(),
              TestoEuro(Gruzzolo[2]).c_str(), spettatore.schermate(),
              std::filesystem::absolute(galleria, error).c_str());
  return codice;
}

}  // namespace girovia
