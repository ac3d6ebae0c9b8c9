#include "mondo.h"

#include <stdexcept>
#include <utility>

#include "core/eventi.h"

namespace girovia {

using namespace mod_Girovia;
using namespace mod_Messaggi;

namespace {

std::string NomeForm(Schermata form) {
  std::istringstream nomi(
      "Dadi FormBanconote FormBonus FormCarte2Items FormCarte4Items FormCitta FormImprevisti "
      "FormInfo FormMessaggi FormPremiazione FormProvaCapitali FormProvaCitta FormProvaOrdinamento "
      "FormProvaPuzzle FormRotazioneCarta FormSovrapposizioni Splash");
  std::string nome;
  for (int i = 0; i <= static_cast<int>(form); ++i) nomi >> nome;
  return nome;
}

}  // namespace

Mondo::Mondo() {
  AzzeraStato();
  servizi() = Servizi();
  Servizi& s = servizi();
  s.tabellone = this;
  s.comandi = this;
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
  eventi::cmdRitratto_Click(giocatore);
}

std::string Mondo::Verbale() {
  std::ostringstream su;
  for (const std::string& riga : righe) {
    for (const char c : riga) {
      if (c == '\n') su << "/ ";
      if (c != '\n' && c != '\r') su << c;
    }
    su << '\n';
  }
  su << "= tocca a " << Giocatore;
  for (int p : {1, 2})
    su << "; " << Pos[p] << " (da " << statoTabellone.PosPrecedente[p] << ") con "
       << Gruzzolo[p].decimillesimi() << " contati da " << GruzzoloPrima[p].decimillesimi();
  const std::pair<const char*, int> segni[] = {{"Sorpresa", Sorpresa},
                                               {"ArrivoRaggiunto", ArrivoRaggiunto},
                                               {"TurnoInCorso", statoTabellone.TurnoInCorso},
                                               {"RitornoProva", RitornoProva},
                                               {"RitornoCitta", RitornoCitta},
                                               {"SorpresaAperta", SorpresaAperta},
                                               {"InfoDaPartita", InfoDaPartita},
                                               {"ContaLampeggi", statoTabellone.ContaLampeggi}};
  for (const auto& [nome, valore] : segni)
    if (valore != 0) su << "; " << nome << ' ' << valore;
  su << (sorti.empty() ? "\n" : "; numeri avanzati\n");
  righe.clear();
  sorti.clear();
  return su.str();
}

int Mondo::Chiedi(std::string_view titolo, std::string_view testo) {
  Scrivi("Chiede", titolo, testo);
  const int risposta = uscite.front();
  uscite.pop_front();
  return risposta;
}

void Mondo::MostraModale(Schermata form) {
  Scrivi(NomeForm(form), Messaggio);
  if (const auto azione = alla.find(form); azione != alla.end()) azione->second();
  if (form == Schermata::FormCitta) {
    RitornoCitta = Vero;
  } else {
    RitornoProva = form == Schermata::FormInfo ? Falso : Vero;
  }
  eventi::Form_Activate();
}

void Mondo::MostraNonModale(Schermata form) {
  Scrivi(NomeForm(form));
  Dado = lancio;
  eventi::Form_Activate();
}

void Mondo::FineProgramma() {
  Scrivi("Fine");
  throw FineDelGioco();
}

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
