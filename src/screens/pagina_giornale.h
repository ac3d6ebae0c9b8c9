// The page of a small newspaper, on which two screens are printed: the head with its picture, a
// headline, two columns and a portrait that is clicked to lay the page down.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class PaginaGiornale : public platform::Form {
 public:
  PaginaGiornale(Ambiente& ambiente, std::string name);

 protected:
  static platform::Font Times(double punti, bool grassetto = false) {
    return {"Times New Roman", punti, grassetto, false};
  }

  // Rows of the table, from back to front; what stands over the columns comes between the last two.
  void RigheParola(const char* parola, double top, platform::Color colore);
  void RigheArticolo(double titolo, double colonne, double punti);
  void RigheFronte(const platform::SizedPicture& bottone);

  void DisegnaBordo();
  void ScriviTitolo(const std::string& titolo);
  // Both in one size, the largest in which the last line of the right one, whose top is to be at
  // `alto`, stands above the button.
  void ScriviColonne(const std::string& sinistra, const std::string& destra, double alto);
  void Pulsa();

  Ambiente& a_;
  platform::ControlArray<platform::Label> lblGiornale;
  platform::CommandButton cmdRisposta;

 private:
  platform::Label Label1, Label2;  // the word over the picture, and its shadow
  platform::Shape Shape1;
  platform::Line Line1;
  double punti_ = 0;
};

}  // namespace girovia
