#include "mondo.h"

#include <sstream>
#include <stdexcept>

#include "core/tabellone.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

template <class... Pezzi>
std::string Riga(std::string_view nome, Pezzi... pezzi) {
  std::ostringstream riga;
  riga << nome;
  ((riga << ' ' << pezzi), ...);
  return riga.str();
}

}  // namespace

std::string NomeForm(Schermata form) {
  static const char* const nomi[] = {"Dadi",
                                     "FormBanconote",
                                     "FormBonus",
                                     "FormCarte2Items",
                                     "FormCarte4Items",
                                     "FormCitta",
                                     "FormImprevisti",
                                     "FormInfo",
                                     "FormMessaggi",
                                     "FormPremiazione",
                                     "FormProvaCapitali",
                                     "FormProvaCitta",
                                     "FormProvaOrdinamento",
                                     "FormProvaPuzzle",
                                     "FormRotazioneCarta",
                                     "FormSovrapposizioni"};
  return nomi[static_cast<int>(form)];
}

Mondo::Mondo() {
  AzzeraStato();
  servizi() = Servizi();
  Servizi& s = servizi();
  s.tabellone = this;
  s.cerimonia = this;
  s.schermi = this;
  s.suoni = this;
  s.attese = this;
  s.caso = this;
  mod_Girovia::Nome[1] = "Primo";
  mod_Girovia::Nome[2] = "Secondo";
  Colore[1] = "65280";
  Colore[2] = "65535";
  NuovaPartita();
  righe.clear();
}

Mondo::~Mondo() { servizi() = Servizi(); }

void Mondo::Tira(int giocatore, int dado) {
  lancio = dado;
  tabellone::cmdRitratto_Click(giocatore);
}

std::string Mondo::Da(const std::string& inizio) const {
  auto prima = righe.end();
  while (prima != righe.begin()) {
    if ((--prima)->starts_with(inizio)) break;
  }
  std::string testo;
  for (; prima != righe.end(); ++prima) testo.append(testo.empty() ? "" : " ").append(*prima);
  return testo;
}

int Mondo::Conta(const std::string& inizio) const {
  int quante = 0;
  for (const std::string& riga : righe) quante += riga.starts_with(inizio);
  return quante;
}

void Mondo::RiduciCasella(int i) { Scrivi(Riga("Riduci", i)); }
void Mondo::IngrandisciCasella(int i) { Scrivi(Riga("Ingrandisci", i)); }
void Mondo::ColoraCasella(int i, int colore) { Scrivi(Riga("Colora", i, colore)); }
void Mondo::LiberaCasella(int i) { Scrivi(Riga("Libera", i)); }
void Mondo::MostraTratto(int p, int i) { Scrivi(Riga("Mostra", p, i)); }
void Mondo::NascondiTratto(int p, int i) { Scrivi(Riga("Nascondi", p, i)); }
void Mondo::AttivaTurno(int p) { Scrivi(Riga("AttivaTurno", p)); }

void Mondo::ContaGruzzolo(int p, Euro da, Euro a) {
  Scrivi(Riga("Conta", p, TestoImporto(da) + ".." + TestoImporto(a)));
}

void Mondo::ScriviGruzzolo(int p, Euro valore) { Scrivi(Riga("Scrivi", p, TestoImporto(valore))); }

void Mondo::ColoraGruzzoli(int colore1, int colore2) { Scrivi(Riga("Colori", colore1, colore2)); }

void Mondo::ScriviAnnuncio(std::string_view testo) { Scrivi(Riga("Annuncio", testo)); }

void Mondo::PreparaSovrapposizioni(std::string_view label2, std::string_view label3) {
  Scrivi(Riga("Scelta", label2, "|", label3));
}

void Mondo::MostraBanconota500(int p) { Scrivi(Riga("Banconota500", p)); }
void Mondo::MostraBanconota50(int p) { Scrivi(Riga("Banconota50", p)); }
void Mondo::MostraPremioSpeciale(int numero) { Scrivi(Riga("Premio", numero)); }

int Mondo::Chiedi(std::string_view titolo, std::string_view testo) {
  Scrivi(Riga("Chiede", titolo, testo));
  const int risposta = uscite.front();
  uscite.pop_front();
  return risposta;
}

void Mondo::MostraModale(Schermata form) {
  Scrivi(NomeForm(form));
  if (const auto azione = alla.find(form); azione != alla.end()) azione->second();
  if (form == Schermata::FormCitta) {
    RitornoCitta = Vero;
  } else {
    RitornoProva = form == Schermata::FormInfo ? Falso : Vero;
  }
  tabellone::Form_Activate();
}

void Mondo::MostraNonModale(Schermata form) {
  Scrivi(NomeForm(form));
  Dado = lancio;
  tabellone::Form_Activate();
}

void Mondo::FineProgramma() { throw FineDelGioco(); }

void Mondo::SuonoAsync(std::string_view nome) { Scrivi(std::string("~").append(nome)); }
void Mondo::SuonoSync(std::string_view nome) { Scrivi(std::string("=").append(nome)); }

double Mondo::Rnd() {
  if (generatore) return generatore();
  if (sorti.empty()) throw std::logic_error("a draw that the script does not foresee");
  const double u = sorti.front();
  sorti.pop_front();
  return u;
}

std::function<void()> Risponde(int risposta, Euro premio) {
  return [=] {
    Risposta = risposta;
    Premio = premio;
  };
}

}  // namespace girovia
