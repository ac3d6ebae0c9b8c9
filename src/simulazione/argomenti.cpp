#include "simulazione/argomenti.h"

#include <charconv>

namespace girovia::simulazione {

const std::string_view kUso =
    "simula - gioca intere partite di Girovia senza schermo e ne fa un riassunto\n"
    "\n"
    "  --partite N     quante partite, da 1 a 1000000000 (10000)\n"
    "  --seme S        numero da cui nascono tutti i sorteggi (1)\n"
    "  --abilita P     probabilità di superare una prova, da 0.01 a 1 (0.6)\n"
    "  --rinuncia P    di rinunciare invece che sbagliare, se non la si supera, da 0 a 1 (0.2)\n"
    "  --processi N    quanti processi insieme, da 1 a 256 (1); il risultato non cambia\n"
    "  --json          il riassunto in JSON\n"
    "  --grafici DIR   scrive anche i grafici durata.svg e carte.svg in DIR\n";

namespace {

template <class Numero>
bool Leggi(std::string_view testo, Numero minimo, Numero massimo, Numero& valore) {
  Numero letto{};
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), letto);
  if (errore != std::errc() || fine != testo.data() + testo.size()) return false;
  // Also false for what is no number at all.
  if (!(letto >= minimo && letto <= massimo)) return false;
  valore = letto;
  return true;
}

bool LeggiValore(std::string_view nome, std::string_view testo, Argomenti& a) {
  if (nome == "--partite") return Leggi<std::int64_t>(testo, 1, 1'000'000'000, a.partite);
  if (nome == "--seme") return Leggi<std::uint64_t>(testo, 0, UINT64_MAX, a.seme);
  // With no skill at all nobody passes the final puzzle and no game ends.
  if (nome == "--abilita") return Leggi(testo, 0.01, 1.0, a.abilita);
  if (nome == "--rinuncia") return Leggi(testo, 0.0, 1.0, a.rinuncia);
  if (nome == "--processi") return Leggi(testo, 1, 256, a.processi);
  a.grafici = testo;
  return !testo.empty();
}

bool VuoleValore(std::string_view nome) {
  for (const char* noto :
       {"--partite", "--seme", "--abilita", "--rinuncia", "--processi", "--grafici"}) {
    if (nome == noto) return true;
  }
  return false;
}

}  // namespace

std::optional<Argomenti> LeggiArgomenti(std::span<char* const> parole, std::string& errore) {
  Argomenti a;
  for (std::size_t i = 0; i < parole.size(); ++i) {
    const std::string nome = parole[i];
    if (nome == "--json") {
      a.json = true;
    } else if (nome == "--aiuto" || nome == "--help") {
      a.aiuto = true;
    } else if (!VuoleValore(nome)) {
      errore = "argomento sconosciuto: " + nome;
      return std::nullopt;
    } else if (i + 1 == parole.size()) {
      errore = nome + " vuole un valore";
      return std::nullopt;
    } else if (!LeggiValore(nome, parole[++i], a)) {
      errore = nome + " non accetta il valore \"" + parole[i] + "\"";
      return std::nullopt;
    }
  }
  return a;
}

}  // namespace girovia::simulazione
