// What the award ceremony shows on the board.
#pragma once

#include "comune/ambiente.h"

namespace girovia {

class FormGirovia;

// Its controls belong to the board, in front of the others.
class CerimoniaSulTabellone : public Cerimonia {
 public:
  CerimoniaSulTabellone(Ambiente& ambiente, FormGirovia& tabellone)
      : a_(ambiente), tabellone_(tabellone) {}
  void Righe();  // of the board's table

  void SgombraTabellone() override;
  void NascondiPercorso() override;
  void TingiTabellone() override;
  void MostraCorona() override;
  void MostraVincitore(int ritratto) override;
  void SalvaSfondoPremio() override;
  void MostraTrofeo() override;
  void MostraBanconota500(int p) override;
  void MostraBanconota50(int p) override;
  void TogliPremioSpeciale() override;
  void MostraPremioSpeciale(int numero) override;
  void MostraCongratulazioni() override;
  int Chiedi(std::string_view titolo, std::string_view testo) override;

 private:
  void Posa(int bitmap, double x, double y);           // with its mask, the next bitmap
  void PosaBanconota(int bitmap, double x, double y);  // a whole rectangle
  void RidisegnaDove(const platform::PictureBox& pic, double x, double y);

  Ambiente& a_;
  FormGirovia& tabellone_;
  platform::PictureBox PicVincitore, PicPremiazione, PicPremiazioneNera, PicSfondoPremiazione;
};

}  // namespace girovia
