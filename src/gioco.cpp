#include "gioco.h"

#include <cstdio>

#include "core/mod_Girovia.h"
#include "core/stato.h"
#include "effects/form_dadi.h"
#include "effects/form_rotazione_carta.h"
#include "platform/forms/msgbox.h"
#include "screens/form_banconote.h"
#include "screens/form_bonus.h"
#include "screens/form_citta.h"
#include "screens/form_imprevisti.h"
#include "screens/form_info.h"
#include "screens/form_messaggi.h"
#include "screens/form_premiazione.h"
#include "screens/form_sovrapposizioni.h"
#include "screens/form_splash.h"
#include "trials/form_carte2_items.h"
#include "trials/form_carte4_items.h"
#include "trials/form_prova_capitali.h"
#include "trials/form_prova_citta.h"
#include "trials/form_prova_ordinamento.h"
#include "trials/form_prova_puzzle.h"

namespace girovia {

Gioco::Gioco(platform::Host& host, const Opzioni& opzioni)
    : screen_(host, opzioni.scala),
      suoni_(screen_, opzioni.cartella + "/Suoni"),
      archivio_(opzioni.cartella, "girovia"),
      immagini_(archivio_, screen_.scale()),
      ambiente_{.screen = screen_, .immagini = immagini_, .mani = {}} {
  platform::SetFontFolder(opzioni.cartella + "/font");
  AzzeraStato();
  servizi() = Servizi();
  servizi().schermi = this;
  servizi().suoni = this;
  servizi().attese = this;
  servizi().caso = opzioni.caso ? opzioni.caso : this;
}

Gioco::~Gioco() {
  premiazione_.reset();
  tabellone_.reset();
  sfondo_.reset();
  servizi() = Servizi();
}

void Gioco::Apri() {
  ambiente_.mani = {immagini_.Puntatore(101), immagini_.Puntatore(102)};
  sfondo_ = std::make_unique<FormSfondo>(ambiente_);
  sfondo_->Load();
}

void Gioco::SaltaInizio() { screen_.top()->Find("CmdOK")->Click(); }

void Gioco::ApriTabellone() {
  tabellone_ = std::make_unique<FormGirovia>(ambiente_);
  servizi().tabellone = tabellone_.get();
  servizi().comandi = tabellone_.get();
  servizi().cerimonia = &tabellone_->cerimonia();
  tabellone_->Load();
}

int Gioco::Gioca() {
  int codice = 0;
  // Other faces step in for the missing ones, so that the game can be played all the same.
  if (const std::string mancanti = platform::MissingFonts(); !mancanti.empty())
    std::fprintf(stderr, "Mancano i caratteri %s.\n", mancanti.c_str());
  try {
    try {
      Apri();
      screen_.Run();
    } catch (const platform::PictureError& errore) {
      codice = 1;
      const std::string numero = std::to_string(errore.number());
      std::fprintf(stderr, "%s: errore %s: %s (%s)\n", errore.source().c_str(), numero.c_str(),
                   errore.what(), errore.path().c_str());
      platform::MsgBox(screen_, "GIROVIA GRANDETAPPA",
                       std::string(errore.what()) + "\n" + errore.path() + "\nErrore " + numero +
                           " in " + errore.source(),
                       platform::MsgButtons::Ok);
    }
  } catch (const platform::ProgramEnded&) {
  }
  return codice;
}

std::unique_ptr<platform::Form> Gioco::Crea(Schermata schermata) {
  switch (schermata) {
    case Schermata::Dadi:
      return std::make_unique<Dadi>(ambiente_);
    case Schermata::FormMessaggi:
      return std::make_unique<FormMessaggi>(ambiente_);
    case Schermata::FormSovrapposizioni: {
      auto form = std::make_unique<FormSovrapposizioni>(ambiente_);
      form->Load();
      form->Label2.SetCaption(label2_);
      form->Label3.SetCaption(label3_);
      return form;
    }
    case Schermata::FormBanconote:
      return std::make_unique<FormBanconote>(ambiente_);
    case Schermata::FormBonus:
      return std::make_unique<FormBonus>(ambiente_);
    case Schermata::FormCitta:
      return std::make_unique<FormCitta>(ambiente_);
    case Schermata::FormImprevisti:
      return std::make_unique<FormImprevisti>(ambiente_);
    case Schermata::FormInfo:
      return std::make_unique<FormInfo>(ambiente_);
    case Schermata::FormCarte2Items:
      return std::make_unique<FormCarte2Items>(ambiente_);
    case Schermata::FormCarte4Items:
      return std::make_unique<FormCarte4Items>(ambiente_);
    case Schermata::FormProvaCapitali:
      return std::make_unique<FormProvaCapitali>(ambiente_);
    case Schermata::FormProvaCitta:
      return std::make_unique<FormProvaCitta>(ambiente_);
    case Schermata::FormProvaOrdinamento:
      return std::make_unique<FormProvaOrdinamento>(ambiente_);
    case Schermata::FormProvaPuzzle:
      return std::make_unique<FormProvaPuzzle>(ambiente_);
    case Schermata::FormPremiazione:
      return std::make_unique<FormPremiazione>(ambiente_);
    case Schermata::FormRotazioneCarta:
      return std::make_unique<FormRotazioneCarta>(ambiente_);
    case Schermata::Splash:
      return std::make_unique<Splash>(ambiente_);
  }
  return nullptr;
}

void Gioco::MostraModale(Schermata schermata) {
  if (schermata != Schermata::FormPremiazione) return Crea(schermata)->ShowModal();
  if (!premiazione_) premiazione_ = Crea(schermata);
  premiazione_->ShowModal();
}

void Gioco::MostraNonModale(Schermata schermata) {
  auto form = Crea(schermata);
  form->Show();
  screen_.Own(std::move(form));
}

}  // namespace girovia
