// What every form of the game is given: the screen it stands on and the services it asks.
#pragma once

#include <string>

#include "core/interfacce.h"
#include "core/stato.h"
#include "platform/forms/picture_store.h"
#include "platform/forms/screen.h"

namespace girovia {

// Pictures by the ids and names of the catalogue, at its logical sizes. A picture that cannot be
// had throws platform::PictureError.
class Immagini {
 public:
  // From scale 3 on, a picture that has a file of four times its logical size beside the usual one
  // ("...@4x.jpg") is taken from that.
  Immagini(platform::PictureStore& archivio, int scala) : archivio_(archivio), scala_(scala) {}
  platform::SizedPicture LoadResPicture(int id);                // bitmap
  platform::SizedPicture DiSchermata(const std::string& nome);  // stored with a screen
  platform::Pointer Puntatore(int id);
  platform::PictureStore& archivio() { return archivio_; }

 private:
  platform::PictureStore& archivio_;
  int scala_;
};

// Turns a JPEG resource into a picture; the kind is always "CUSTOM".
class cLoadResPicture {
 public:
  explicit cLoadResPicture(Immagini& immagini) : immagini_(immagini) {}
  platform::SizedPicture LoadResPicture(int id, std::string_view tipo);

 private:
  Immagini& immagini_;
};

// The dice on the board, which two other forms fill and take away.
class DadiSulTabellone {
 public:
  virtual ~DadiSulTabellone() = default;
  virtual platform::PictureBox& PicDado(int n) = 0;   // 1 or 2, 64 by 64
  virtual void MostraDadi(int n, bool visibile) = 0;  // PicDado(n) and its shadow
};

// The start screen, as the dialogs opened over it see it when they close.
class SchermataIniziale {
 public:
  virtual ~SchermataIniziale() = default;
  virtual bool InnoInCorso() = 0;  // TimInno is enabled: clicks make no sound
  // Shows the buttons, the names and the galleries again, without their shadows, and comes forward.
  virtual void TornaDallaDomanda() = 0;
};

struct Ambiente {
  platform::Screen& screen;
  Immagini& immagini;
  platform::HandPointers mani;
  DadiSulTabellone* dadi = nullptr;       // set by the board
  SchermataIniziale* iniziale = nullptr;  // set by the start screen, null when the board is up
};

inline platform::Font Verdana(double punti, bool grassetto = false) {
  return {"Verdana", punti, grassetto, false};
}

// A colour kept as decimal text, as mod_Girovia::Colore holds it.
inline platform::Color NumeroColore(const std::string& decimale) {
  return platform::Color(ValoreColore(decimale));
}

}  // namespace girovia
