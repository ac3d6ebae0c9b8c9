// The whole game, put together over a host: the forms behind the rules' interfaces.
#pragma once

#include <memory>
#include <string>

#include "comune/ambiente.h"
#include "platform/forms/picture_store.h"
#include "platform/forms/sound.h"
#include "platform/hosts/host.h"
#include "platform/hosts/random.h"
#include "screens/form_girovia.h"
#include "screens/form_sfondo.h"

namespace girovia {

// One exists at a time: the state of the game is the modules' own.
class Gioco : private Schermi, private Suoni, private Attese, private Caso {
 public:
  struct Opzioni {
    std::string cartella;  // of the program: risorse/, Suoni/ and font/ lie in it
    int scala = 0;         // device pixels for a logical one; 0 chooses it from the window
    Caso* caso = nullptr;  // null: the clock
  };

  Gioco(platform::Host& host, const Opzioni& opzioni);
  ~Gioco() override;

  // Opens the backdrop and the board and plays until the program ends. A picture that cannot be had
  // is told on the screen, and then in one line on stderr. The program's exit code.
  int Gioca();

  // The parts of it, for whoever looks at single screens: the backdrop and the start screen; that
  // screen left as it offers itself, which opens the board; and the form of a screen for one
  // opening, not yet shown.
  void Apri();
  void SaltaInizio();
  std::unique_ptr<platform::Form> Crea(Schermata schermata);

  platform::Screen& screen() { return screen_; }
  FormGirovia* tabellone() { return tabellone_.get(); }

 private:
  void MostraModale(Schermata schermata) override;
  void MostraNonModale(Schermata) override;
  void ApriTabellone() override;
  void PreparaSovrapposizioni(std::string_view label2, std::string_view label3) override {
    label2_ = label2;
    label3_ = label3;
  }
  void FineProgramma() override { screen_.EndProgram(); }
  void SuonoAsync(std::string_view nome) override { suoni_.PlayAsync(std::string(nome)); }
  void SuonoSync(std::string_view nome) override { suoni_.PlaySync(std::string(nome)); }
  void Pausa04() override { screen_.Wait(400); }
  double Rnd() override { return orologio_.Draw(); }

  platform::Screen screen_;
  platform::Sounds suoni_;
  platform::PictureStore archivio_;
  Immagini immagini_;
  platform::ClockRandom orologio_;
  Ambiente ambiente_;
  std::unique_ptr<FormSfondo> sfondo_;
  std::unique_ptr<FormGirovia> tabellone_;
  std::unique_ptr<platform::Form> premiazione_;  // stays loaded between its shows
  std::string label2_, label3_;                  // for the next overlap dialog
};

}  // namespace girovia
