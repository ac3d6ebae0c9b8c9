#include "simulazione/relazione.h"

#include <cstdarg>
#include <cstdio>

#include "content/testi.h"

namespace girovia::simulazione {
namespace {

[[gnu::format(printf, 2, 3)]] void Scrivi(std::string& testo, const char* formato, ...) {
  char riga[512];
  va_list argomenti;
  va_start(argomenti, formato);
  std::vsnprintf(riga, sizeof riga, formato, argomenti);
  va_end(argomenti);
  testo += riga;
}

double Media(std::int64_t somma, std::int64_t quanti) {
  return quanti == 0 ? 0 : static_cast<double>(somma) / static_cast<double>(quanti);
}

double Percento(std::int64_t parte, std::int64_t tutto) { return 100 * Media(parte, tutto); }

double EuroMedi(std::int64_t decimillesimi, std::int64_t quanti) {
  return Media(decimillesimi, quanti) / 10'000;
}

long long Lungo(std::int64_t n) { return n; }

std::string Titolo(std::size_t carta) {
  std::string titolo(LoadResString(1000 + 3 * static_cast<int>(carta)));
  for (std::size_t i = 0; i < titolo.size(); ++i) {
    if (titolo[i] == '"' || titolo[i] == '\\') titolo.insert(i++, 1, '\\');
  }
  return titolo;
}

}  // namespace

double VantaggioDellaCarta(const ContoCarta& carta) {
  return carta.volte == 0 ? 0 : Percento(carta.vinteDaChiPesca, carta.volte) - 50;
}

std::string RelazioneTesto(const Argomenti& a, const Conti& c) {
  std::string t;
  Scrivi(t, "%lld partite, seme %llu, abilità %g, rinuncia %g\n\n", Lungo(c.partite),
         static_cast<unsigned long long>(a.seme), a.abilita, a.rinuncia);
  Scrivi(t, "turni per partita     %.1f (metà tra %d e %d)\n", Media(c.turni, c.partite),
         Percentile(c.turniPerPartita, c.partite, 25),
         Percentile(c.turniPerPartita, c.partite, 75));
  Scrivi(t, "minuti per partita    %.1f (metà tra %d e %d)\n",
         Media(c.millisecondi, c.partite) / 60'000, Percentile(c.minutiPerPartita, c.partite, 25),
         Percentile(c.minutiPerPartita, c.partite, 75));
  Scrivi(t, "gruzzolo di chi vince %.2f €\n", EuroMedi(c.gruzzoloVincitore, c.partite));
  Scrivi(t, "gruzzolo di chi perde %.2f € (tutti tra %.2f e %.2f €)\n",
         EuroMedi(c.gruzzoloPerdente, c.partite), EuroMedi(c.gruzzoloMinimo, 1),
         EuroMedi(c.gruzzoloMassimo, 1));
  Scrivi(t, "vince chi ha mosso per primo %.2f%%, chi arriva %.2f%%; gruzzoli pari %.3f%%\n\n",
         Percento(c.vinteDalPrimoAMuovere, c.partite), Percento(c.vinteDaChiArriva, c.partite),
         Percento(c.pareggi, c.partite));

  Scrivi(t, "esito         volte      %%   superate  fallite  rinunce\n");
  for (std::size_t e = 0; e < kEsiti; ++e) {
    const auto& [rinunce, giuste, sbagliate] = c.esiti[e];
    const std::int64_t volte = rinunce + giuste + sbagliate;
    Scrivi(t, "%-12s %8lld %6.2f", kNomiEsiti[e], Lungo(volte), Percento(volte, c.turni));
    if (static_cast<Esito>(e) != Esito::Imprevisto) {
      Scrivi(t, " %9.1f%% %7.1f%% %7.1f%%", Percento(giuste, volte), Percento(sbagliate, volte),
             Percento(rinunce, volte));
    }
    t += '\n';
  }
  Scrivi(t,
         "\nper partita: %.3f sovrapposizioni (pagata %.1f%%), %.2f sorprese su %.2f sorteggi, "
         "%.3f finali falliti\n",
         Media(c.sovrapposizioniPagate + c.sovrapposizioniTornate, c.partite),
         Percento(c.sovrapposizioniPagate, c.sovrapposizioniPagate + c.sovrapposizioniTornate),
         Media(c.sorpreseAnnunciate, c.partite), Media(c.sorpreseSorteggiate, c.partite),
         Media(c.FinaliFallite(), c.partite));
  Scrivi(t, "urne ricominciate:");
  for (std::size_t u = 0; u < kUrne; ++u) {
    Scrivi(t, " %s %lld", kNomiUrne[u], Lungo(c.ripartenze[u]));
  }
  Scrivi(t, "\n\ncarta   volte   a chi pesca  all'altro  caselle  vittorie\n");
  for (std::size_t i = 0; i < kCarte; ++i) {
    const ContoCarta& k = c.carte[i];
    Scrivi(t, "%5zu %7lld %9.2f € %8.2f € %8.2f %+8.1f%%  %s\n", i, Lungo(k.volte),
           EuroMedi(k.aChiPesca, k.volte), EuroMedi(k.allAltro, k.volte), Media(k.caselle, k.volte),
           VantaggioDellaCarta(k),
           std::string(LoadResString(1000 + 3 * static_cast<int>(i))).c_str());
  }
  for (std::size_t r = 0; r < kRegole; ++r) {
    if (c.violazioni[r] > 0) {
      Scrivi(t, "\nREGOLA VIOLATA %lld volte: %s\n", Lungo(c.violazioni[r]), kNomiRegole[r]);
    }
  }
  return t;
}

std::string RelazioneJson(const Argomenti& a, const Conti& c) {
  std::string t;
  Scrivi(t, "{\n  \"partite\": %lld, \"seme\": %llu, \"abilita\": %g, \"rinuncia\": %g,\n",
         Lungo(c.partite), static_cast<unsigned long long>(a.seme), a.abilita, a.rinuncia);
  Scrivi(t, "  \"turni\": {\"media\": %.4f, \"p5\": %d, \"p50\": %d, \"p95\": %d},\n",
         Media(c.turni, c.partite), Percentile(c.turniPerPartita, c.partite, 5),
         Percentile(c.turniPerPartita, c.partite, 50),
         Percentile(c.turniPerPartita, c.partite, 95));
  Scrivi(t, "  \"minuti\": {\"media\": %.4f, \"p5\": %d, \"p50\": %d, \"p95\": %d},\n",
         Media(c.millisecondi, c.partite) / 60'000, Percentile(c.minutiPerPartita, c.partite, 5),
         Percentile(c.minutiPerPartita, c.partite, 50),
         Percentile(c.minutiPerPartita, c.partite, 95));
  Scrivi(t,
         "  \"gruzzoli\": {\"vincitore\": %.4f, \"perdente\": %.4f, \"minimo\": %.4f, "
         "\"massimo\": %.4f},\n",
         EuroMedi(c.gruzzoloVincitore, c.partite), EuroMedi(c.gruzzoloPerdente, c.partite),
         EuroMedi(c.gruzzoloMinimo, 1), EuroMedi(c.gruzzoloMassimo, 1));
  Scrivi(t, "  \"vittorie\": {\"primo_a_muovere\": %lld, \"chi_arriva\": %lld, \"pari\": %lld},\n",
         Lungo(c.vinteDalPrimoAMuovere), Lungo(c.vinteDaChiArriva), Lungo(c.pareggi));
  Scrivi(t, "  \"esiti\": {");
  for (std::size_t e = 0; e < kEsiti; ++e) {
    const auto& [rinunce, giuste, sbagliate] = c.esiti[e];
    Scrivi(t, "%s\n    \"%s\": ", e == 0 ? "" : ",", kNomiEsiti[e]);
    if (static_cast<Esito>(e) == Esito::Imprevisto) {
      Scrivi(t, "{\"volte\": %lld}", Lungo(giuste));
    } else {
      Scrivi(t, "{\"volte\": %lld, \"superate\": %lld, \"fallite\": %lld, \"rinunce\": %lld}",
             Lungo(rinunce + giuste + sbagliate), Lungo(giuste), Lungo(sbagliate), Lungo(rinunce));
    }
  }
  Scrivi(t, "\n  },\n  \"sovrapposizioni\": {\"pagate\": %lld, \"tornate\": %lld},\n",
         Lungo(c.sovrapposizioniPagate), Lungo(c.sovrapposizioniTornate));
  Scrivi(t, "  \"sorprese\": {\"sorteggi\": %lld, \"annunciate\": %lld},\n",
         Lungo(c.sorpreseSorteggiate), Lungo(c.sorpreseAnnunciate));
  Scrivi(t, "  \"finali_falliti\": %lld,\n  \"urne_ricominciate\": {", Lungo(c.FinaliFallite()));
  for (std::size_t u = 0; u < kUrne; ++u) {
    Scrivi(t, "%s\"%s\": %lld", u == 0 ? "" : ", ", kNomiUrne[u], Lungo(c.ripartenze[u]));
  }
  Scrivi(t, "},\n  \"carte\": [");
  for (std::size_t i = 0; i < kCarte; ++i) {
    const ContoCarta& k = c.carte[i];
    Scrivi(t,
           "%s\n    {\"carta\": %zu, \"titolo\": \"%s\", \"volte\": %lld, \"a_chi_pesca\": %.4f, "
           "\"all_altro\": %.4f, \"caselle\": %.4f, \"vinte\": %lld}",
           i == 0 ? "" : ",", i, Titolo(i).c_str(), Lungo(k.volte), EuroMedi(k.aChiPesca, k.volte),
           EuroMedi(k.allAltro, k.volte), Media(k.caselle, k.volte), Lungo(k.vinteDaChiPesca));
  }
  Scrivi(t, "\n  ],\n  \"violazioni\": {");
  for (std::size_t r = 0; r < kRegole; ++r) {
    Scrivi(t, "%s\"%s\": %lld", r == 0 ? "" : ", ", kNomiRegole[r], Lungo(c.violazioni[r]));
  }
  return t + "}\n}\n";
}

}  // namespace girovia::simulazione
