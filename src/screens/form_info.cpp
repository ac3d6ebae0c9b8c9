#include "screens/form_info.h"

#include "core/mod_Girovia.h"
#include "screens/giornale_logica.h"

namespace girovia {

using namespace mod_Girovia;

namespace {

constexpr platform::Color kBlu = 0x800000;
constexpr double kColonne = 232;

}  // namespace

FormInfo::FormInfo(Ambiente& ambiente) : PaginaGiornale(ambiente, "FormInfo") {
  // Other than the news, the help costs nothing.
  Row(PrBar.Load(0), "PrBar(0)", {280, 2, 90, 15},
      {.caption = "Copia omaggio",
       .font = Times(9.75, true),
       .fore = kBlu,
       .autoSize = true,
       .maxWidth = 90});
  // A long date keeps off the word beside it.
  Row(lblGiornale.Load(4), "lblGiornale(4)", {8, 136, 0, 0},
      {.font = Times(9.75, true), .fore = kBlu, .autoSize = true, .maxWidth = 232});
  RigheParola("info", 106, kBlu);
  RigheArticolo(160, kColonne, 12);
  ScriviTitolo("UN VIAGGIO ALLA SCOPERTA DELL'EUROPA");
  RigheFronte(a_.immagini.DiSchermata("Splash.CmdOK"));
  cmdRisposta.OnClick = [this] { cmdRisposta_Click(); };
  Row(Timer1, 400, true, [this] { Pulsa(); });
}

void FormInfo::Form_Load() {
  lblGiornale(4).SetCaption(DataInfo(a_.screen.host().LocalTime()));
  DisegnaBordo();
  const std::string viaggio =
      "Si parte da La Valletta (Malta) e si arriva a Bruxelles (Belgio), passando per 100 città "
      "europee.";
  if (UscitaDaSplash == Vero) {
    ScriviColonne(viaggio + kACapo +
                      "Prima di iniziare il gioco, ogni giocatore scrive il suo nome, sceglie il "
                      "colore e il ritratto preferiti.",
                  std::string("Si gioca in due.") + kACapo +
                      "Il gioco finisce quando un giocatore arriva a Strasburgo, ma non vince chi "
                      "arriva primo: alla fine vince chi ha più euro in cassa.",
                  kColonne);
  } else if (InfoDaPartita == Vero) {
    SuonoAsync("117");
    ScriviColonne(viaggio + " Ora i due giocatori sono alla partenza, a Malta." + kACapo +
                      "Ogni giocatore ha in cassa 10 €.",
                  "Per iniziare il gioco e per tirare il dado, un giocatore deve fare clic con il "
                  "mouse sulla sua foto.",
                  kColonne);
  }
}

void FormInfo::cmdRisposta_Click() {
  if (UscitaDaSplash == Vero) {
    if (!a_.iniziale->InnoInCorso()) SuonoAsync("119");
    UscitaDaSplash = Falso;
    Unload();
    a_.iniziale->TornaDallaDomanda();
    return;
  }
  SuonoAsync("119");
  Timer1.SetEnabled(false);
  RitornoProva = Falso;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
