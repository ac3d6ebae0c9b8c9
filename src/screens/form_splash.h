// The start screen: the two players write their names, choose a colour and a portrait, and read the
// credits that rise along the left side.
#pragma once

#include "comune/ambiente.h"
#include "platform/forms/text_box.h"

namespace girovia {

class Splash : public platform::Form, public SchermataIniziale {
 public:
  explicit Splash(Ambiente& ambiente);
  ~Splash() override;

  void Form_Load() override;

  // --- SchermataIniziale
  bool InnoInCorso() override { return TimInno.enabled(); }
  void TornaDallaDomanda() override;

 private:
  // What each of the two players has, alike but for the names and the places.
  struct Giocatore {
    platform::Frame Frm, FrmGalleria, ombraFrm, ombraGalleria;
    platform::TextBox Txt;
    platform::PictureBox cmdRitratto;
    platform::ControlArray<platform::OptionButton> OptColore;
    platform::Label Lblcolore;
    platform::ControlArray<platform::CommandButton> picRitratto;
  };

  void RigheTitoli();
  void RigheGiocatore(int p);
  void RigheComandi();
  void StampaTitoli(bool fermi);
  void MostraComandi(bool visibili);  // the seven that a dialog hides...
  void MostraOmbre(bool visibili);    // ...and the four shadows
  void MostraRitratto(int p);
  void SuonoSeTace(std::string_view nome);  // only once the anthem is over

  void OptColore_Click(int p, int Index);
  void picRitratto_Click(int p, int Index);
  void CmdOK_Click();
  void CmdHelp_Click();
  void cmdExit_Click();
  void Timer1_Timer();
  void Timer2_Timer();

  Ambiente& a_;
  platform::PictureBox picTitoli, picTitoliOmbra;
  Giocatore giocatori_[3];  // 1 and 2
  platform::CommandButton CmdOK, CmdHelp, cmdExit;
  platform::Timer TimInno, Timer1, Timer2;
  std::int16_t TopTitoli = 0;
};

}  // namespace girovia
