// The board: the map of Europe with the hundred squares, the two portraits, purses and status
// lines. The rules of the game live in core and ask this form, as a Tabellone, to show what they
// do.
#pragma once

#include "comune/ambiente.h"
#include "core/interfacce.h"
#include "screens/form_girovia_cerimonia.h"

namespace girovia {

class FormGirovia : public platform::Form,
                    public Tabellone,
                    public Comandi,
                    public DadiSulTabellone {
 public:
  explicit FormGirovia(Ambiente& ambiente);

  void Form_Load() override;
  void Form_Activate() override;

  // --- Tabellone
  void RiduciCasella(int i) override;
  void IngrandisciCasella(int i) override;
  void ColoraCasella(int i, int colore) override;
  void LiberaCasella(int i) override;
  void MostraTratto(int p, int i) override;
  void NascondiTratto(int p, int i) override;
  void AttivaTurno(int p) override;
  void RefreshPrBar() override;
  void Ridisegna() override { Refresh(); }
  void ContaGruzzolo(int p, Euro da, Euro a) override;
  void ScriviGruzzolo(int p, Euro valore) override;
  void SvuotaGruzzolo(int p) override;
  void ColoraGruzzoli(int colore1, int colore2) override;
  void ScriviAnnuncio(std::string_view testo) override;
  void AvviaLampeggio() override { TimerSorpresa.SetEnabled(true); }
  void FermaLampeggio() override { TimerSorpresa.SetEnabled(false); }
  void ScambiaAnnuncio() override;

  // --- Comandi
  void EseguiEventi() override;
  void SpegniTimer() override;
  void NascondiAiuto() override { CmdHelp.SetVisible(false); }
  void NascondiUscita() override { cmdExit.SetVisible(false); }
  void MostraUscita() override { cmdExit.SetVisible(true); }
  void RiposaRitratti() override;
  void NascondiRitratti() override;
  void NascondiAnnuncio() override;

  // --- DadiSulTabellone
  platform::PictureBox& PicDado(int n) override { return n == 1 ? PicDado1 : PicDado2; }
  void MostraDadi(int n, bool visibile) override;

  Cerimonia& cerimonia() { return cerimonia_; }

 private:
  friend class CerimoniaSulTabellone;

  void RigheCaselle();
  void RigheGiocatori();
  void RigheComandi();
  void TracciaPercorso();  // the red base route, on the form's own background

  void cmdRitratto_Click(int Index);
  void cmdcitta_Click(int Index);
  void cmdcitta_MouseMove(int Index);
  void CmdHelp_Click();
  void cmdExit_Click();
  void TimerCitta_Timer();
  void TimerPrimo_Timer(int Index);
  void TimerSorpresa_Timer();

  Ambiente& a_;
  platform::ControlArray<platform::CommandButton> cmdcitta, cmdRitratto;
  platform::ControlArray<platform::Label> Label1, LblClicca, lblGruzzolo, PrBar;
  platform::ControlArray<platform::Line> Line1, Line2;
  platform::ControlArray<platform::PictureBox> PicGiocatore;
  platform::ControlArray<platform::Image> ImgFreccia;
  platform::Shape Picture1, Picture2, ShpOvale;
  platform::Label LblSorpresa;
  platform::CommandButton cmdExit, CmdHelp;
  platform::PictureBox PicDado1, PicDado2, PicDadoOmbra1, PicDadoOmbra2;
  platform::Timer TimerCitta, TimerPrimo[3], TimerSorpresa;
  platform::SizedPicture stella_;
  CerimoniaSulTabellone cerimonia_;
};

}  // namespace girovia
