#include "simulazione/partita.h"

#include <algorithm>
#include <array>

#include "comune/premio_cadente.h"
#include "content/quiz.h"
#include "core/eventi.h"
#include "core/imprevisti.h"
#include "core/interfacce.h"
#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/premiazione.h"
#include "core/sorprese.h"
#include "core/stato.h"
#include "effects/dadi_logica.h"
#include "screens/bonus_logica.h"
#include "simulazione/controllore.h"
#include "trials/carte2_logica.h"

namespace girovia::simulazione {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

// The pace of a game in milliseconds. First what the game itself takes...
constexpr int kPausa = 400;
constexpr int kSuonoCassa = 660;
constexpr int kSuonoVittoria = 1300;
constexpr int kRotazioneCarta = 107 * 10;
constexpr int kPassoDadi = 100, kPassiDadi = 17, kFineDadi = 500;
// ...then what two children take to read and to click: guesses, not measures.
constexpr int kClicRitratto = 1500;
constexpr int kLetturaBanconote = 2000;
constexpr int kLetturaBonus = 3000;
constexpr int kSceltaSovrapposizione = 4000;
constexpr int kLetturaGiornale = 8000;
constexpr int kLetturaSorpresa = 5000;

// Until the time is over.
constexpr int kTempoCarta2 = 40'000, kTempoCarta4 = 44'000, kTempoMappa = 28'400;
constexpr int kTempoOrdinamento = 62'000, kTempoPuzzle = 114'000;

constexpr Euro kPremioOrdinamento = Euro::Interi(10), kPremioPuzzle = Euro::Interi(20);

// A game that lasts longer than this is taken for endless: at the lowest skill allowed the chance
// of it is nil.
constexpr int kTurniMassimi = 1'000'000;

// What the prize of a card has fallen to after so many seconds.
class PremiCadenti {
 public:
  explicit PremiCadenti(int primoGradino) {
    Euro importo = GradinoIniziale(primoGradino).importo;
    for (int s = 0; s < static_cast<int>(premi_.size()); ++s) {
      if (const auto scatto = ScattoDelPremio(primoGradino, s); scatto.gradino) {
        importo = scatto.gradino->importo;
      }
      premi_[static_cast<std::size_t>(s)] = importo;
    }
  }
  Euro Dopo(int millisecondi) const {
    return premi_[static_cast<std::size_t>(millisecondi / 1000)];
  }

 private:
  std::array<Euro, 45> premi_;
};

std::uint64_t Mescola(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
  return z ^ (z >> 31);
}

enum { kRinuncia, kGiusta, kSbagliata };

// The players, and all that the rules ask of the world.
class Tavolo : public Tabellone,
               public Cerimonia,
               public Schermi,
               public Suoni,
               public Attese,
               public Caso {
 public:
  Tavolo(const Argomenti& argomenti, Conti& conti)
      : argomenti_(argomenti), conti_(conti), controllore_(conti) {
    Servizi& s = servizi();
    s.tabellone = this;
    s.cerimonia = this;
    s.schermi = this;
    s.suoni = this;
    s.attese = this;
    s.caso = this;
  }
  ~Tavolo() override { servizi() = Servizi(); }
  Tavolo(const Tavolo&) = delete;
  Tavolo& operator=(const Tavolo&) = delete;

  void Partita(std::int64_t numero);

 private:
  void Turno(int giocatore);
  void ChiudiPartita(int turni, int primoAMuovere);

  double Rnd() override {
    seme_ += 0x9E3779B97F4A7C15U;
    return static_cast<double>(Mescola(seme_) >> 11) * 0x1.0p-53;
  }
  bool Capita(double probabilita) { return Rnd() < probabilita; }
  int Entro(int limite) { return static_cast<int>(Rnd() * limite); }

  void Pausa04() override { millisecondi_ += kPausa; }
  void SuonoSync(std::string_view) override { millisecondi_ += kSuonoCassa; }
  void ContaGruzzolo(int, Euro da, Euro a) override {
    // A cent takes a millisecond.
    if (a > da) millisecondi_ += (a - da).decimillesimi() / 100;
  }
  void AvviaLampeggio() override { ++conti_.sorpreseAnnunciate; }
  void FineProgramma() override { finita_ = true; }

  void MostraNonModale(Schermata) override { TiraDadi(); }
  void MostraModale(Schermata form) override;
  void Apri(Schermata form);

  void TiraDadi();
  void Sovrapposizione();
  void Imprevisto();
  void Cartolina();
  void VeroFalso();
  void Foto();
  void Bonus();

  // Plays a trial that the rules pay for by the player's answer. `perso` is how long a failure
  // takes, 0 if it may come at any moment. Returns how long the player took.
  int Prova(Esito esito, int limite, int perso);

  const Argomenti& argomenti_;
  Conti& conti_;
  Controllore controllore_;
  const PremiCadenti carta2_{kPrimoGradinoCarte2};
  const PremiCadenti carta4_{kPrimoGradinoCarte4};

  std::uint64_t seme_ = 0;
  std::int64_t millisecondi_ = 0;
  bool finita_ = false;
  int arrivato_ = 0;
  std::array<std::array<int, 3>, kCarte> pescate_{};

  // The card of the turn under way, and the purses and the square before it.
  int carta_ = -1, pesca_ = 0, casellaPrima_ = 0;
  Euro gruzzoliPrima_[3];
};

void Tavolo::Partita(std::int64_t numero) {
  AzzeraStato();
  Nome[1] = "Primo";
  Nome[2] = "Secondo";
  Colore[1] = "65280";
  Colore[2] = "65535";
  NuovaPartita();
  seme_ = Mescola(argomenti_.seme + Mescola(static_cast<std::uint64_t>(numero) + 1));
  millisecondi_ = 0;
  finita_ = false;
  pescate_ = {};
  controllore_.InizioPartita();

  const int primo = 1 + Estrai(2);
  int turni = 0;
  for (int chi = primo; !finita_; chi = Giocatore) {
    Turno(chi);
    if (++turni == kTurniMassimi) return controllore_.SenzaFine();
  }
  ChiudiPartita(turni, primo);
}

void Tavolo::Turno(int giocatore) {
  const std::int64_t annunciate = conti_.sorpreseAnnunciate;
  Giocatore = giocatore;
  controllore_.InizioTurno();
  carta_ = -1;
  arrivato_ = giocatore;
  millisecondi_ += kClicRitratto;
  eventi::cmdRitratto_Click(giocatore);
  controllore_.FineTurno(finita_);
  if (carta_ >= 0) {
    ContoCarta& conto = conti_.carte[static_cast<std::size_t>(carta_)];
    const int altro = 3 - pesca_;
    conto.aChiPesca += (Gruzzolo[pesca_] - gruzzoliPrima_[pesca_]).decimillesimi();
    conto.allAltro += (Gruzzolo[altro] - gruzzoliPrima_[altro]).decimillesimi();
    conto.caselle += Pos[pesca_] - casellaPrima_;
  }
  const bool ancoraDado = carta_ >= 10 && carta_ <= 13;
  conti_.sorpreseSorteggiate += !finita_ && !ancoraDado && Pos[Giocatore] > 0;
  // Every announced surprise is claimed; one left over from the other player shows nothing.
  if (conti_.sorpreseAnnunciate > annunciate) eventi::cmdcitta_Click(Pos[Giocatore]);
}

void Tavolo::ChiudiPartita(int turni, int primoAMuovere) {
  const int vincitore = Giocatore;
  ++conti_.partite;
  conti_.turni += turni;
  conti_.millisecondi += millisecondi_;
  conti_.turniPerPartita.Aggiungi(turni);
  conti_.minutiPerPartita.Aggiungi(millisecondi_ / 60'000);
  conti_.gruzzoloVincitore += Gruzzolo[vincitore].decimillesimi();
  conti_.gruzzoloPerdente += Gruzzolo[3 - vincitore].decimillesimi();
  for (int p = 1; p <= 2; ++p) {
    const std::int64_t n = Gruzzolo[p].decimillesimi();
    conti_.gruzzoloMinimo = std::min(conti_.gruzzoloMinimo, n);
    conti_.gruzzoloMassimo = std::max(conti_.gruzzoloMassimo, n);
  }
  conti_.vinteDalPrimoAMuovere += vincitore == primoAMuovere;
  conti_.vinteDaChiArriva += vincitore == arrivato_;
  conti_.pareggi += Gruzzolo[1] == Gruzzolo[2];
  for (std::size_t c = 0; c < kCarte; ++c) {
    conti_.carte[c].vinteDaChiPesca += pescate_[c][static_cast<std::size_t>(vincitore)];
  }
}

void Tavolo::MostraModale(Schermata form) {
  Apri(form);
  if (form == Schermata::FormCitta) {
    RitornoCitta = Vero;
  } else {
    RitornoProva = Vero;
  }
  eventi::Form_Activate();
}

void Tavolo::Apri(Schermata form) {
  switch (form) {
    case Schermata::FormBanconote:
      millisecondi_ += kLetturaBanconote;
      break;
    case Schermata::FormSovrapposizioni:
      Sovrapposizione();
      break;
    case Schermata::FormProvaOrdinamento:
      controllore_.Estratto(Urna::Ordinamento);
      Premio = kPremioOrdinamento;
      Prova(Esito::Ordinamento, kTempoOrdinamento, kTempoOrdinamento);
      if (Risposta == kGiusta) millisecondi_ += kSuonoVittoria;
      break;
    case Schermata::FormProvaPuzzle:
      Premio = kPremioPuzzle;
      Prova(ArrivoRaggiunto == Vero ? Esito::Finale : Esito::Puzzle, kTempoPuzzle, kTempoPuzzle);
      if (Risposta == kGiusta) millisecondi_ += kSuonoVittoria;
      break;
    case Schermata::FormProvaCitta:
      controllore_.Estratto(Urna::ProvaCitta);
      Premio = Euro();
      Prova(Esito::Citta, kTempoMappa, 0);
      break;
    case Schermata::FormProvaCapitali:
      controllore_.Estratto(Urna::ProvaCapitali);
      IndiceProvaCapitali = LeggiCapitale(IndiceProvaCapitali).citta;
      Premio = Euro();
      Prova(Esito::Capitale, kTempoMappa, 0);
      break;
    case Schermata::FormBonus:
      Bonus();
      break;
    case Schermata::FormRotazioneCarta:
      millisecondi_ += kRotazioneCarta;
      break;
    case Schermata::FormCarte4Items:
      Foto();
      break;
    case Schermata::FormCarte2Items:
      VeroFalso();
      break;
    case Schermata::FormImprevisti:
      Imprevisto();
      break;
    case Schermata::FormCitta:
      Cartolina();
      break;
    case Schermata::FormPremiazione:
      Risposta = 6;
      break;  // leaves at once
    case Schermata::Dadi:
    case Schermata::FormInfo:
    case Schermata::FormMessaggi:
    case Schermata::Splash:
      break;
  }
}

void Tavolo::TiraDadi() {
  const int d1 = TiraDado(*this), d2 = TiraDado(*this);
  Dado = d1 + d2;
  controllore_.Dadi();
  millisecondi_ += kPassoDadi * (kPassiDadi + 2 * std::max(d1, d2)) + kFineDadi;
  eventi::Form_Activate();
}

void Tavolo::Sovrapposizione() {
  millisecondi_ += kSceltaSovrapposizione;
  const bool paga = Capita(0.5);
  controllore_.Sovrapposizione(paga);
  if (paga) {
    Risposta = 1;
    ++conti_.sovrapposizioniPagate;
  } else {
    Risposta = 2;
    ++conti_.sovrapposizioniTornate;
  }
}

int Tavolo::Prova(Esito esito, int limite, int perso) {
  int tempo = Entro(limite);
  if (Capita(argomenti_.abilita)) {
    Risposta = kGiusta;
    controllore_.Vinta(Premio);
  } else if (Capita(argomenti_.rinuncia)) {
    Risposta = kRinuncia;
    if (esito == Esito::Finale) controllore_.Persa();
  } else {
    Risposta = kSbagliata;
    controllore_.Persa();
    if (perso > 0) tempo = perso;
  }
  ++conti_.esiti[static_cast<std::size_t>(esito)][static_cast<std::size_t>(Risposta)];
  millisecondi_ += tempo;
  return tempo;
}

void Tavolo::Bonus() {
  Premio = EstraiBonus(*this).premio;
  controllore_.Vinta(Premio);
  millisecondi_ += kLetturaBonus;
}

void Tavolo::Foto() {
  controllore_.Estratto(Urna::Carte4);
  Premio = Euro();
  Premio = carta4_.Dopo(Prova(Esito::Foto, kTempoCarta4, 0));
  if (Risposta != kGiusta) return;
  controllore_.Vinta(Premio);
  millisecondi_ += kSuonoVittoria;
}

void Tavolo::VeroFalso() {
  RispostaEsatta = EstraiAffermazione(Rnd(), IndiceCarte2).esatta;
  Premio = Euro();
  Premio = carta2_.Dopo(Prova(Esito::VeroFalso, kTempoCarta2, 0));
  if (Risposta == kGiusta) {
    controllore_.Vinta(Premio);
    Risposta = RispostaEsatta;
  } else if (Risposta == kSbagliata) {
    Risposta = 3 - RispostaEsatta;
  }
}

void Tavolo::Imprevisto() {
  controllore_.Estratto(Urna::Imprevisti);
  controllore_.PrimaDellaCarta();
  ++conti_.esiti[static_cast<std::size_t>(Esito::Imprevisto)][kGiusta];
  carta_ = IndiceImprevisto;
  pesca_ = Giocatore;
  casellaPrima_ = Pos[pesca_];
  for (int p = 1; p <= 2; ++p) gruzzoliPrima_[p] = Gruzzolo[p];
  ++conti_.carte[static_cast<std::size_t>(carta_)].volte;
  ++pescate_[static_cast<std::size_t>(carta_)][static_cast<std::size_t>(pesca_)];
  CaricaImprevisto();
  millisecondi_ += kLetturaGiornale;
}

void Tavolo::Cartolina() {
  if (!CaricaCitta().pacco) return;
  const Euro prima = Gruzzolo[Giocatore];
  controllore_.Dono(ApriSorpresa(), prima);
  millisecondi_ += kLetturaSorpresa;
}

}  // namespace

Conti Gioca(const Argomenti& argomenti, std::int64_t primo, std::int64_t passo) {
  Conti conti;
  Tavolo tavolo(argomenti, conti);
  for (std::int64_t i = primo; i < argomenti.partite; i += passo) tavolo.Partita(i);
  return conti;
}

}  // namespace girovia::simulazione
