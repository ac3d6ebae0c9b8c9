#include "screens/form_bonus.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "screens/bonus_logica.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Align;

namespace {

const std::vector<platform::Point> kStella = {
    {318, 0},   {277, 28},  {220, 8},   {198, 41},  {131, 30},  {131, 65},  {61, 66},
    {82, 99},   {16, 110},  {56, 138},  {0, 159},   {56, 180},  {16, 208},  {82, 219},
    {61, 252},  {131, 253}, {131, 288}, {198, 277}, {220, 310}, {277, 290}, {318, 318},
    {359, 290}, {416, 310}, {438, 277}, {505, 288}, {505, 253}, {575, 252}, {554, 219},
    {620, 208}, {580, 180}, {636, 159}, {580, 138}, {620, 110}, {554, 99},  {575, 66},
    {505, 65},  {505, 30},  {438, 41},  {416, 8},   {359, 28},  {318, 0}};

}  // namespace

FormBonus::FormBonus(Ambiente& ambiente)
    : Form(ambiente.screen, "FormBonus", 640, 400, 0xFF0000), a_(ambiente) {
  Row(LblMessaggio, "LblMessaggio", {272, 224, 154, 23},
      {.font = Verdana(14.25), .align = Align::Right, .autoSize = true, .maxWidth = 330});
  Row(Label1, "Label1", {272, 248, 154, 23},
      {.caption = "passa alla cassa", .font = Verdana(14.25), .align = Align::Right});
  // The coins lie half over the note, or it would cover what they are worth.
  Row(PicBanconota.Load(4), "PicBanconota(4)", {232, 136, 140, 75},
      {.back = 0xFF0000, .border = true, .autoSize = true});
  const platform::Rect posti[] = {
      {424, 104, 100, 100}, {324, 64, 100, 100}, {224, 48, 100, 100}, {124, 120, 100, 100}};
  for (int i = 0; i < 4; ++i)
    Row(PicBanconota.Load(i), Indexed("PicBanconota", i), posti[i],
        {.autoSize = true, .clear = true});
  Row(cmdRisposta, "cmdRisposta", {440, 216, 54, 54}, {.back = 0xC0FFC0, .hand = &a_.mani});
  cmdRisposta.OnClick = [this] { cmdRisposta_Click(); };
  Row(Timer1, 400, false, [this] { Timer1_Timer(); });
}

void FormBonus::Form_Load() {
  const Bonus bonus = EstraiBonus(*servizi().caso);
  PicBanconota(4).SetPicture(a_.immagini.LoadResPicture(bonus.biglietto));
  for (int i = 0; i < 4; ++i)
    PicBanconota(i).SetPicture(a_.immagini.LoadResPicture(bonus.monete[std::size_t(i)]));
  Premio = bonus.premio;
  SuonoAsync("106");
  mod_Messaggi::Messaggio = MessaggioBonus(Premio);
  LblMessaggio.SetCaption(mod_Messaggi::Messaggio);
  cmdRisposta.SetPicture(a_.immagini.LoadResPicture(Ritratto[Giocatore]));
  surface().Line(24, 312, 624, 312, {180, NumeroColore(Colore[Giocatore])});
  Timer1.SetEnabled(true);
  RitagliaForm();
}

void FormBonus::RitagliaForm() {
  ShapePolygon(kStella);
  surface().Polyline(kStella, true, {20, 0x0000FF});
}

void FormBonus::Timer1_Timer() {
  cmdRisposta.Move(cmdRisposta.place().width == 58 ? platform::Rect{440, 216, 54, 54}
                                                   : platform::Rect{438, 214, 58, 58});
}

void FormBonus::cmdRisposta_Click() {
  RitornoProva = Vero;
  Unload();
  servizi().comandi->MostraUscita();
}

}  // namespace girovia
