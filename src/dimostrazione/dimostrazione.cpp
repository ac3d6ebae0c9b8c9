#include "dimostrazione/dimostrazione.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <set>

#include "core/mod_Girovia.h"
#include "dimostrazione/partita_da_sola.h"
#include "platform/hosts/headless/headless_host.h"

namespace girovia {
namespace {

// Takes a picture of each form once it has been in front for a moment.
class Fotografo {
 public:
  Fotografo(platform::HeadlessHost& host, PartitaDaSola& partita, std::string galleria)
      : host_(host), partita_(partita), galleria_(std::move(galleria)) {
    host_.OnIdle = [this] {
      Guarda(kSguardo);
      // A game that has not ended by then is left: nobody waits for a demonstration for ever.
      if (host_.NowMicros() > kDurataMassima) host_.Queue({.kind = platform::EventKind::Quit});
    };
    // Dice and cards run by themselves and are gone before anything is clicked.
    host_.OnBlocked = [this] { Guarda(kSguardo / 2); };
  }
  int foto() const { return int(fatte_.size()); }
  int errore() const { return errore_; }  // why the last that failed could not be written, or 0

 private:
  void Guarda(std::int64_t quanto) {
    if (const int scena = partita_.automa.Scena(); scena != scena_) {
      scena_ = scena;
      daQuando_ = host_.NowMicros();
    }
    const platform::Form* form = partita_.gioco.screen().top();
    if (!form || host_.NowMicros() - daQuando_ < quanto || !fatte_.insert(form->name()).second)
      return;
    if (!platform::SavePng(host_.Shot(), galleria_ + "/" + form->name() + ".png")) errore_ = errno;
  }

  static constexpr std::int64_t kDurataMassima = 3LL * 3600 * 1'000'000;
  static constexpr std::int64_t kSguardo = 1'500'000;

  platform::HeadlessHost& host_;
  PartitaDaSola& partita_;
  std::string galleria_;
  std::set<std::string> fatte_;
  int errore_ = 0;
  int scena_ = -1;
  std::int64_t daQuando_ = 0;
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
  PartitaDaSola partita(host, cartella, false);
  Fotografo fotografo(host, partita, galleria);
  const int codice = partita.gioco.Gioca();
  if (fotografo.errore() != 0) {
    std::fprintf(stderr, "Non posso scrivere nella cartella %s: %s\n", galleria.c_str(),
                 std::strerror(fotografo.errore()));
    return 1;
  }
  using namespace mod_Girovia;
  std::printf("Partita finita: %s %s, %s %s. Le %d schermate incontrate sono in %s\n",
              Nome[1].c_str(), TestoEuro(Gruzzolo[1]).c_str(), Nome[2].c_str(),
              TestoEuro(Gruzzolo[2]).c_str(), fotografo.foto(),
              std::filesystem::absolute(galleria, error).c_str());
  return codice;
}

FineDimostrazione Dimostra(platform::Host& host, const std::string& cartella) {
  for (;;) {
    PartitaDaSola partita(host, cartella, true);
    const int codice = partita.gioco.Gioca();
    if (partita.mano.toccata()) return FineDimostrazione::Toccata;
    if (partita.mano.chiusa()) return FineDimostrazione::Chiusa;
    if (codice != 0) return FineDimostrazione::Guasta;
  }
}

}  // namespace girovia
