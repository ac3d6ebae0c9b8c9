// What the twin map trials share: the map of Europe with its squares, the shrinking bar and the
// breathing button. One click decides.
#pragma once

#include "comune/ambiente.h"
#include "content/atlante.h"

namespace girovia {

class FormProvaMappa : public platform::Form {
 public:
  void Form_Load() override;
  void Form_Activate() override;

 protected:
  FormProvaMappa(Ambiente& ambiente, std::string nome, MappaProva mappa);

  virtual std::string Domanda() = 0;       // asked once, first of all at load
  virtual int Richiesta() const = 0;       // the square that solves the trial
  virtual void cmdcitta_MouseMove(int) {}  // over the square

  platform::ControlArray<platform::CommandButton> cmdcitta;

 private:
  void TimerCitta_Timer();
  void cmdcitta_Click(int Index);
  void cmdExit_Click();
  void Uscita(int risposta);

  Ambiente& a_;
  platform::CommandButton cmdExit;
  platform::Label LblDomanda, lblInfo, lbllista;
  platform::PictureBox Linea;
  platform::Timer TimerCitta;
  int scatti_ = 0;
};

}  // namespace girovia
