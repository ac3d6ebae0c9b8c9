// What is counted over the games. All of it adds up in any order, so that the sum does not depend
// on how the games were shared out among processes.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

namespace girovia::simulazione {

enum class Esito { Ordinamento, Puzzle, Citta, Capitale, Foto, VeroFalso, Finale, Imprevisto };
inline constexpr int kEsiti = 8;
inline constexpr std::array<const char*, kEsiti> kNomiEsiti = {
    "ordinamento", "puzzle", "citta", "capitale", "foto", "vero_falso", "finale", "imprevisto"};

enum class Urna { Imprevisti, Ordinamento, Carte4, ProvaCitta, ProvaCapitali };
inline constexpr int kUrne = 5;
inline constexpr std::array<const char*, kUrne> kNomiUrne = {"imprevisti", "ordinamento", "carte4",
                                                             "prova_citta", "prova_capitali"};

enum class Regola { Casella, Mossa, Alternanza, Stato, Denaro, Indice, Ripetizione, Fine };
inline constexpr int kRegole = 8;
inline constexpr std::array<const char*, kRegole> kNomiRegole = {
    "casella fuori dal percorso", "mossa che non torna",  "turno di un altro",
    "stato a fine turno",         "denaro che non torna", "indice che non si estrae",
    "ripetizione nell'urna",      "partita senza fine"};

inline constexpr int kCarte = 31;

// Counts by value; the last place also holds all that is beyond it.
template <int N>
struct Istogramma {
  std::array<std::int64_t, N> quanti{};
  void Aggiungi(std::int64_t valore) {
    ++quanti[static_cast<std::size_t>(valore < N ? valore : N - 1)];
  }
};

struct ContoCarta {
  std::int64_t volte = 0;
  std::int64_t aChiPesca = 0, allAltro = 0;  // ten-thousandths of a euro, without the paper's price
  std::int64_t caselle = 0;
  std::int64_t vinteDaChiPesca = 0;
};

struct Conti {
  std::int64_t partite = 0, turni = 0, millisecondi = 0;
  Istogramma<3000> turniPerPartita;
  Istogramma<3000> minutiPerPartita;

  std::int64_t gruzzoloVincitore = 0, gruzzoloPerdente = 0;  // ten-thousandths
  std::int64_t gruzzoloMinimo = INT64_MAX, gruzzoloMassimo = INT64_MIN;
  std::int64_t vinteDalPrimoAMuovere = 0, vinteDaChiArriva = 0, pareggi = 0;

  std::array<std::array<std::int64_t, 3>, kEsiti> esiti{};  // given up, right, wrong
  std::array<ContoCarta, kCarte> carte{};
  std::array<std::int64_t, kUrne> ripartenze{};
  std::int64_t sovrapposizioniPagate = 0, sovrapposizioniTornate = 0;
  std::int64_t sorpreseSorteggiate = 0, sorpreseAnnunciate = 0;
  std::array<std::int64_t, kRegole> violazioni{};

  void Somma(const Conti& altri);
  std::int64_t FinaliFallite() const;
  bool InRegola() const;
};

// They travel from process to process as they are.
static_assert(std::is_trivially_copyable_v<Conti>);

}  // namespace girovia::simulazione
