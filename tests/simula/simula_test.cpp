#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "core/mod_Girovia.h"
#include "core/mod_Messaggi.h"
#include "core/stato.h"
#include "esegui.h"
#include "simulazione/controllore.h"
#include "simulazione/grafici.h"
#include "simulazione/partita.h"
#include "simulazione/relazione.h"

namespace girovia::simulazione {
namespace {

Uscita Simula(const std::string& argomenti) { return Esegui(SIMULA " " + argomenti); }

TEST(Simula, LoStessoSemeGiocaLeStessePartite) {
  const std::string base = "--partite 1000 --json --seme ";
  const Uscita uno = Simula(base + "7");
  EXPECT_EQ(uno.codice, 0);
  EXPECT_NE(uno.testo.find("\"partite\": 1000"), std::string::npos);
  EXPECT_EQ(Simula(base + "7").testo, uno.testo);
  EXPECT_EQ(Simula(base + "7 --processi 3").testo, uno.testo);
  const std::string otto = Simula(base + "8").testo;
  EXPECT_NE(otto.substr(otto.find("turni")), uno.testo.substr(uno.testo.find("turni")));
  // The figures themselves, as they were when page and charts were made of them.
  std::stringstream attese;
  attese << std::ifstream(PROVE "/mille.txt").rdbuf();
  EXPECT_EQ(Simula("--partite 1000 --seme 1").testo, attese.str());
  // More processes than games: some have nothing to do.
  EXPECT_EQ(Simula("--partite 2 --processi 5").testo, Simula("--partite 2").testo);
}

TEST(Simula, UnArgomentoSbagliatoDaUnaRiga) {
  const struct {
    const char* argomenti;
    const char* errore;
  } casi[] = {
      {"--partite", "simula: --partite vuole un valore"},
      {"--partite 0", "simula: --partite non accetta il valore \"0\""},
      {"--partite 10x", "simula: --partite non accetta il valore \"10x\""},
      {"--partite 99999999999999999999", "simula: --partite non accetta il valore \"9999"},
      {"--abilita 0", "simula: --abilita non accetta il valore \"0\""},
      {"--abilita nan", "simula: --abilita non accetta il valore \"nan\""},
      {"--abilita 1.1", "simula: --abilita non accetta il valore \"1.1\""},
      {"--rinuncia -0.1", "simula: --rinuncia non accetta il valore \"-0.1\""},
      {"--seme -1", "simula: --seme non accetta il valore \"-1\""},
      {"--processi 257", "simula: --processi non accetta il valore \"257\""},
      {"--grafici ''", "simula: --grafici non accetta il valore \"\""},
      {"''", "simula: argomento sconosciuto: "},
      {"--json partite", "simula: argomento sconosciuto: partite"},
  };
  for (const auto& caso : casi) {
    EXPECT_EQ(Simula(std::string(caso.argomenti) + " 2>/dev/null").testo, "");
    const Uscita uscita = Simula(std::string(caso.argomenti) + " 2>&1");
    EXPECT_EQ(uscita.codice, 2) << caso.argomenti;
    EXPECT_TRUE(uscita.testo.starts_with(caso.errore)) << uscita.testo;
    EXPECT_EQ(uscita.testo.find('\n'), uscita.testo.size() - 1) << uscita.testo;
  }
  EXPECT_EQ(Simula("--partite 1 --grafici /dev/null 2>/dev/null").codice, 1);
  EXPECT_EQ(Simula("--aiuto").testo, kUso);
}

// Five standard deviations around n of `prove` at chance p.
void ControllaFrequenza(std::int64_t n, std::int64_t prove, double p, const std::string& che) {
  const double attese = static_cast<double>(prove) * p;
  EXPECT_NEAR(static_cast<double>(n), attese, 5 * std::sqrt(attese * (1 - p))) << che;
}

TEST(Simula, LeFrequenzeSonoQuelleDelleRegole) {
  Argomenti argomenti;
  argomenti.partite = 20'000;
  argomenti.abilita = 0.7;
  argomenti.rinuncia = 0.4;
  const Conti c = Gioca(argomenti, 0, 1);
  EXPECT_TRUE(c.InRegola());
  EXPECT_EQ(c.partite, 20'000);
  const auto volte = [&](std::size_t e) { return c.esiti[e][0] + c.esiti[e][1] + c.esiti[e][2]; };
  const std::size_t finale = static_cast<std::size_t>(Esito::Finale);
  const std::int64_t liberi = c.turni - volte(finale);
  for (std::size_t e = 0; e < kEsiti; ++e) {
    const Esito esito = static_cast<Esito>(e);
    if (esito != Esito::Finale) {
      const bool doppio = esito == Esito::Foto || esito == Esito::VeroFalso;
      ControllaFrequenza(volte(e), liberi, doppio ? 2 / 9. : 1 / 9., kNomiEsiti[e]);
    }
    if (esito != Esito::Imprevisto && esito != Esito::Finale) {
      ControllaFrequenza(c.esiti[e][1], volte(e), 0.7, kNomiEsiti[e]);
      ControllaFrequenza(c.esiti[e][0], volte(e), 0.3 * 0.4, kNomiEsiti[e]);
    }
  }
  // Each game ends with the one final puzzle that was solved.
  EXPECT_EQ(c.esiti[finale][1], c.partite);
  ControllaFrequenza(c.FinaliFallite(), volte(finale), 0.3, "finali");
  ControllaFrequenza(c.sorpreseAnnunciate, c.sorpreseSorteggiate, 1 / 3., "sorprese");
  const std::int64_t sovrapposizioni = c.sovrapposizioniPagate + c.sovrapposizioniTornate;
  ControllaFrequenza(c.sovrapposizioniPagate, sovrapposizioni, 0.5, "sovrapposizioni");
  EXPECT_GT(sovrapposizioni, c.partite / 2);
  const std::int64_t imprevisti = volte(static_cast<std::size_t>(Esito::Imprevisto));
  for (std::size_t carta = 0; carta < kCarte; ++carta) {
    ControllaFrequenza(c.carte[carta].volte, imprevisti, 1 / 31., std::to_string(carta));
  }
  EXPECT_DOUBLE_EQ(static_cast<double>(c.carte[29].aChiPesca),
                   static_cast<double>(c.carte[29].volte) * 100'000);
}

TEST(Simula, AncheIPiuScarsiEIPiuBraviFiniscono) {
  Argomenti argomenti;
  argomenti.partite = 500;
  argomenti.abilita = 0.01;
  argomenti.rinuncia = 0;
  const Conti scarsi = Gioca(argomenti, 0, 1);
  EXPECT_TRUE(scarsi.InRegola());
  EXPECT_GT(scarsi.ripartenze[static_cast<std::size_t>(Urna::Imprevisti)], 0);
  argomenti.abilita = 1;
  const Conti bravi = Gioca(argomenti, 0, 1);
  EXPECT_TRUE(bravi.InRegola());
  EXPECT_EQ(bravi.FinaliFallite(), 0);
  EXPECT_LT(bravi.turni * 5, scarsi.turni);
}

// Each rule that the games are held to is one that can be broken.
TEST(Simula, IlControlloreVedeLeViolazioni) {
  const struct {
    Regola regola;
    void (*guasto)(Controllore&);
  } casi[] = {
      {Regola::Casella, [](Controllore&) { mod_Girovia::Pos[2] = 100; }},
      {Regola::Casella, [](Controllore&) { mod_Girovia::Pos[1] = 99; }},
      {Regola::Stato, [](Controllore&) { statoTabellone.TurnoInCorso = Vero; }},
      {Regola::Stato, [](Controllore&) { mod_Girovia::ArrivoRaggiunto = Vero; }},
      {Regola::Denaro, [](Controllore&) { mod_Girovia::Gruzzolo[2] += Euro::Decimillesimi(1); }},
      {Regola::Denaro, [](Controllore& c) { c.Vinta(Euro::Interi(7)); }},
      {Regola::Denaro,
       [](Controllore& c) { c.Dono("ti offre un buono-spesa di 6 €.", Euro::Interi(5)); }},
      {Regola::Mossa, [](Controllore&) { mod_Girovia::Pos[2] = 1; }},
      {Regola::Mossa, [](Controllore& c) { c.Sovrapposizione(false); }},
      {Regola::Mossa,
       [](Controllore& c) {  // a flight of five squares
         mod_Messaggi::IndiceImprevisto = 14;
         mod_Girovia::Gruzzolo[1] -= Euro::Interi(1);
         c.PrimaDellaCarta();
         mod_Girovia::Pos[1] += 5;
       }},
      {Regola::Alternanza, [](Controllore&) { mod_Girovia::Giocatore = 1; }},
      {Regola::Alternanza,
       [](Controllore& c) {  // a card with another throw
         mod_Messaggi::IndiceImprevisto = 10;
         mod_Girovia::Gruzzolo[1] -= Euro::Interi(1);
         c.PrimaDellaCarta();
         mod_Girovia::Gruzzolo[1] += Euro::Interi(5);
       }},
      {Regola::Indice,
       [](Controllore& c) {
         mod_Messaggi::IndiceProvaCitta = 54;
         c.Estratto(Urna::ProvaCitta);
       }},
      {Regola::Indice,
       [](Controllore& c) {
         mod_Messaggi::IndiceImprevisto = 3;
         c.Estratto(Urna::Imprevisti);
       }},
      {Regola::Denaro,
       [](Controllore& c) {
         mod_Messaggi::IndiceImprevisto = 20;
         mod_Girovia::Gruzzolo[1] -= Euro::Interi(1);
         c.PrimaDellaCarta();
         mod_Girovia::Gruzzolo[2] -= Euro::Interi(10);
       }},
      {Regola::Indice,
       [](Controllore& c) {
         mod_Messaggi::IndiceOrdinamento = 9;
         c.Estratto(Urna::Ordinamento);
       }},
      {Regola::Ripetizione,
       [](Controllore& c) {
         mod_Messaggi::IndiceCarte4 = 40;
         for (mod_Messaggi::ContaCarte4 = 1; mod_Messaggi::ContaCarte4 < 3;
              ++mod_Messaggi::ContaCarte4) {
           c.Estratto(Urna::Carte4);
         }
       }},
  };
  for (const auto& caso : casi) {
    AzzeraStato();
    NuovaPartita();
    mod_Girovia::Giocatore = 1;
    Conti conti;
    Controllore controllore(conti);
    controllore.InizioPartita();
    controllore.InizioTurno();
    mod_Girovia::Giocatore = 2;
    controllore.FineTurno(false);
    EXPECT_TRUE(conti.InRegola());
    mod_Girovia::Giocatore = 1;
    controllore.InizioTurno();
    mod_Girovia::Giocatore = 2;
    caso.guasto(controllore);
    controllore.FineTurno(false);
    EXPECT_GE(conti.violazioni[static_cast<std::size_t>(caso.regola)], 1);
    EXPECT_FALSE(conti.InRegola());
    Conti somma;
    somma.Somma(conti);
    EXPECT_EQ(somma.violazioni, conti.violazioni);
  }
}

TEST(Simula, Grafici) {
  Argomenti argomenti;
  argomenti.partite = 200;
  const Conti conti = Gioca(argomenti, 0, 1);
  const std::string dove = testing::TempDir();
  ScriviGrafici(conti, dove);
  std::ifstream file(dove + "/carte.svg");
  std::stringstream svg;
  svg << file.rdbuf();
  EXPECT_EQ(svg.str(), GraficoCarte(conti));
  EXPECT_NE(svg.str().find("FESTA EUROPEA DELLA STAMPA"), std::string::npos);
  EXPECT_TRUE(svg.str().ends_with("</svg>\n"));
  EXPECT_THROW(ScriviGrafici(conti, dove + "/manca"), std::runtime_error);
}

}  // namespace
}  // namespace girovia::simulazione
