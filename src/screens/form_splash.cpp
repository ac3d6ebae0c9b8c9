#include "screens/form_splash.h"

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/nomi.h"
#include "screens/titoli_logica.h"

namespace girovia {

using namespace mod_Girovia;
using platform::Color;
using platform::Rect;

namespace {

constexpr int kColori = 5;
constexpr int kRitratti = 6;
constexpr int kPrimoRitratto[] = {0, 124, 130};
constexpr int kLatoRitratto = 54;
constexpr std::int16_t kAltoTitoli = 456;
constexpr double kPrimaRiga = 155;  // of the credits, below the ornament

constexpr Color kColore[3][kColori] = {{},
                                       {0x00FF00, 0xFF00FF, 0x0040C0, 0xFFFFFF, 0x00C0C0},
                                       {0x00FFFF, 0xFFFF00, 0x0080FF, 0x00C000, 0xFF00FF}};
const platform::Font kCarattereTitoli{"MS Sans Serif", 9.75, true, false};

// The same control has another name for each player.
struct Nomi {
  const char *Frm, *FrmGalleria, *ombraFrm, *ombraGalleria, *Txt, *cmdRitratto, *OptColore,
      *Lblcolore, *picRitratto, *nome;
  double top;
};

constexpr Nomi kNomi[3] = {
    {},
    {"FrmPrimo", "FrmGalleria1", "Frame1", "PicGalleria1", "TxtPrimo", "cmdRitrattoP",
     "OptColorePrimo", "Lblcolore1", "picRitrattoPrimo", "Primo", 288},
    {"FrmSecondo", "frmGalleria2", "Frame3", "PicGalleria2", "TxtSecondo", "cmdRitrattoS",
     "OptColoreSecondo", "Lblcolore2", "picRitrattoSecondo", "Secondo", 440}};

// At rest, in its gallery.
Rect PostoRitratto(int i) {
  return {8.0 + 56 * (i % 3), 24.0 + 56 * (i / 3), kLatoRitratto, kLatoRitratto};
}

}  // namespace

Splash::Splash(Ambiente& ambiente)
    : Form(ambiente.screen, "Splash", 800, 600, 0x000000), a_(ambiente) {
  a_.iniziale = this;
  RigheTitoli();
  for (int p : {1, 2}) RigheGiocatore(p);
  RigheComandi();
}

Splash::~Splash() {
  if (a_.iniziale == this) a_.iniziale = nullptr;
}

void Splash::RigheTitoli() {
  Row(picTitoliOmbra, "picTitoliOmbra", {36, 360, 229, 800}, {.back = 0x000000});
  Row(picTitoli, "picTitoli", {32, kAltoTitoli, 229, 800},
      {.back = 0x800000, .picture = a_.immagini.DiSchermata("Splash.picTitoli")});
}

void Splash::RigheGiocatore(int p) {
  const Nomi& nomi = kNomi[p];
  Giocatore& g = giocatori_[p];
  const Color colore = kColore[p][0];
  Row(g.ombraFrm, nomi.ombraFrm, {544, nomi.top + 8, 251, 86}, {.back = 0, .border = false});
  Row(g.ombraGalleria, nomi.ombraGalleria, {352, nomi.top + 8, 179, 134},
      {.back = 0, .border = false});
  Row(g.Frm, nomi.Frm, {540, nomi.top, 252, 89},
      {.caption = "Nome:", .font = Verdana(9.75), .back = colore});
  Row(g.Txt, nomi.Txt, {82, 16, 161, 26}, {.text = nomi.nome, .font = Verdana(12, true)}, &g.Frm);
  g.Txt.OnGotFocus = [&g] { g.Txt.SelectAll(); };
  // A child clicks on the name that is offered and types his own.
  g.Txt.OnMouseDown = [&g, &nomi](const platform::MouseArgs&) {
    if (g.Txt.text() == nomi.nome) g.Txt.SelectAll();
  };
  Row(g.cmdRitratto, nomi.cmdRitratto, {16, 24, kLatoRitratto, kLatoRitratto},
      {.back = colore, .border = true}, &g.Frm);
  Row(g.Lblcolore, nomi.Lblcolore, {80, 72, 172, 13},
      {.caption = "scrivi il nome e scegli il colore", .font = Verdana(8.25)}, &g.Frm);
  for (int i = 0; i < kColori; ++i) {
    Row(g.OptColore.Load(i), Indexed(nomi.OptColore, i), {88.0 + 32 * i, 48, 28, 24},
        {.back = kColore[p][i], .value = i == 0, .hand = &a_.mani}, &g.Frm);
    g.OptColore(i).OnClick = [this, p, i] { OptColore_Click(p, i); };
  }
  Row(g.FrmGalleria, nomi.FrmGalleria, {348, nomi.top, 180, 137},
      {.caption = "Clicca una foto", .font = Verdana(9.75), .back = colore});
  for (int i = 0; i < kRitratti; ++i) {
    Row(g.picRitratto.Load(i), Indexed(nomi.picRitratto, i), PostoRitratto(i),
        {.hand = &a_.mani, .focusOnMove = true}, &g.FrmGalleria);
    g.picRitratto(i).OnClick = [this, p, i] { picRitratto_Click(p, i); };
  }
}

void Splash::RigheComandi() {
  Row(CmdHelp, "CmdHelp", {688, 545, 54, 54},
      {.picture = a_.immagini.DiSchermata("CmdHelp"),
       .back = 0x808080,
       .toolTip = "INFORMAZIONI",
       .hand = &a_.mani});
  Row(CmdOK, "CmdOK", {744, 545, 54, 54},
      {.picture = a_.immagini.DiSchermata("Splash.CmdOK"),
       .back = 0x808080,
       .toolTip = "INIZIA IL GIOCO",
       .hand = &a_.mani});
  Row(cmdExit, "cmdExit", {744, 2, 54, 54},
      {.picture = a_.immagini.DiSchermata("cmdExit"),
       .back = 0x808080,
       .toolTip = "ESCI DAL GIOCO",
       .hand = &a_.mani});
  SetCancel(cmdExit);
  CmdOK.OnClick = [this] { CmdOK_Click(); };
  CmdHelp.OnClick = [this] { CmdHelp_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };
  Row(TimInno, 18000, true, [this] { TimInno.SetEnabled(false); });
  Row(Timer1, 20, true, [this] { Timer1_Timer(); });
  Row(Timer2, 200, true, [this] { Timer2_Timer(); });
}

void Splash::Form_Load() {
  SetPicture(a_.immagini.DiSchermata("Splash"));
  for (int p : {1, 2}) {
    for (int i = 0; i < kRitratti; ++i)
      giocatori_[p].picRitratto(i).SetPicture(a_.immagini.LoadResPicture(kPrimoRitratto[p] + i));
    Colore[p] = std::to_string(kColore[p][0]);
  }
  TopTitoli = kAltoTitoli;
  StampaTitoli(false);
  Show();
  giocatori_[1].Txt.SetFocus();
  giocatori_[1].Txt.SelectAll();
  for (int p : {1, 2}) {
    Ritratto[p] = kPrimoRitratto[p] + Estrai(kRitratti);
    MostraRitratto(p);
  }
}

void Splash::StampaTitoli(bool fermi) {
  picTitoli.SetPrintFont(kCarattereTitoli);
  picTitoli.SetForeColor(fermi ? 0x000000 : 0x00FFFF);
  picTitoli.SetPrintAt(0, kPrimaRiga);
  for (const std::string& riga : girovia::RigheTitoli(fermi)) picTitoli.Print(riga);
}

void Splash::Timer1_Timer() {
  --TopTitoli;
  picTitoli.Move({32, double(TopTitoli), 229, 800});
  picTitoliOmbra.Move({36, TopTitoli + 8.0, 229, 800});
  if (TopTitoli >= 1) return;
  Timer1.SetEnabled(false);
  picTitoli.SetPicture(a_.immagini.LoadResPicture(103));
  picTitoliOmbra.SetVisible(false);
  StampaTitoli(true);
  picTitoli.Refresh();
}

// One portrait of each gallery steps out of its row; the two draws know nothing of each other.
void Splash::Timer2_Timer() {
  for (int p : {1, 2}) {
    auto& galleria = giocatori_[p].picRitratto;
    const int i = Estrai(kRitratti);
    for (int altro = 0; altro < kRitratti; ++altro)
      if (altro != i) galleria(altro).Move(PostoRitratto(altro));
    const Rect posto = PostoRitratto(i);
    galleria(i).Move({posto.left - 2, posto.top - 2, 58, 58});
  }
}

void Splash::MostraRitratto(int p) {
  platform::PictureBox& riquadro = giocatori_[p].cmdRitratto;
  const auto ritratto = a_.immagini.LoadResPicture(Ritratto[p]);
  // In the middle of the box, which is a little smaller.
  const double scarto = (riquadro.innerWidth() - ritratto.width) / 2.0;
  ritratto.picture->Draw(riquadro.surface(),
                         {scarto, scarto, double(ritratto.width), double(ritratto.height)});
  riquadro.Invalidate();
}

void Splash::SuonoSeTace(std::string_view nome) {
  if (!TimInno.enabled()) SuonoAsync(nome);
}

void Splash::OptColore_Click(int p, int Index) {
  SuonoSeTace("102");
  const Color colore = kColore[p][Index];
  Colore[p] = std::to_string(colore);
  giocatori_[p].cmdRitratto.SetBackColor(colore);
  MostraRitratto(p);
  giocatori_[p].FrmGalleria.SetBackColor(colore);
  giocatori_[p].Frm.SetBackColor(colore);
}

void Splash::picRitratto_Click(int p, int Index) {
  SuonoSeTace("102");
  Ritratto[p] = kPrimoRitratto[p] + Index;
  MostraRitratto(p);
}

void Splash::CmdOK_Click() {
  SuonoSeTace("117");
  for (int p : {1, 2}) Nome[p] = TroncaNome(std::string_view(giocatori_[p].Txt.text()));
  servizi().schermi->ApriTabellone();
  Unload();
}

void Splash::CmdHelp_Click() {
  SuonoSeTace("117");
  MostraComandi(false);
  MostraOmbre(false);
  UscitaDaSplash = Vero;
  servizi().schermi->MostraModale(Schermata::FormInfo);
}

void Splash::cmdExit_Click() {
  TimInno.SetEnabled(false);
  MostraComandi(false);
  MostraOmbre(false);
  mod_Messaggi::Messaggio = "Vuoi uscire dal gioco?";
  UscitaDaSplash = Vero;
  servizi().schermi->MostraModale(Schermata::FormMessaggi);
  MostraComandi(true);
  MostraOmbre(true);
  if (mod_Messaggi::Risposta == 1) servizi().schermi->FineProgramma();
}

void Splash::TornaDallaDomanda() {
  MostraComandi(true);
  MostraOmbre(false);
}

void Splash::MostraComandi(bool visibili) {
  for (platform::Control* c :
       {static_cast<platform::Control*>(&cmdExit), static_cast<platform::Control*>(&CmdHelp),
        static_cast<platform::Control*>(&CmdOK)})
    c->SetVisible(visibili);
  for (int p : {1, 2}) {
    giocatori_[p].Frm.SetVisible(visibili);
    giocatori_[p].FrmGalleria.SetVisible(visibili);
  }
}

void Splash::MostraOmbre(bool visibili) {
  for (int p : {1, 2}) {
    giocatori_[p].ombraFrm.SetVisible(visibili);
    giocatori_[p].ombraGalleria.SetVisible(visibili);
  }
}

}  // namespace girovia
