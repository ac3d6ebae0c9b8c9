#include "simulazione/conti.h"

#include <algorithm>

namespace girovia::simulazione {
namespace {

void Somma(std::int64_t& a, std::int64_t b) { a += b; }

void Somma(ContoCarta& a, const ContoCarta& b) {
  a.volte += b.volte;
  a.aChiPesca += b.aChiPesca;
  a.allAltro += b.allAltro;
  a.caselle += b.caselle;
  a.vinteDaChiPesca += b.vinteDaChiPesca;
}

template <class T, std::size_t N>
void Somma(std::array<T, N>& a, const std::array<T, N>& b) {
  for (std::size_t i = 0; i < N; ++i) Somma(a[i], b[i]);
}

}  // namespace

void Conti::Somma(const Conti& b) {
  using simulazione::Somma;
  for (const auto campo :
       {&Conti::partite, &Conti::turni, &Conti::millisecondi, &Conti::gruzzoloVincitore,
        &Conti::gruzzoloPerdente, &Conti::vinteDalPrimoAMuovere, &Conti::vinteDaChiArriva,
        &Conti::pareggi, &Conti::sovrapposizioniPagate, &Conti::sovrapposizioniTornate,
        &Conti::sorpreseSorteggiate, &Conti::sorpreseAnnunciate}) {
    this->*campo += b.*campo;
  }
  gruzzoloMinimo = std::min(gruzzoloMinimo, b.gruzzoloMinimo);
  gruzzoloMassimo = std::max(gruzzoloMassimo, b.gruzzoloMassimo);
  Somma(turniPerPartita.quanti, b.turniPerPartita.quanti);
  Somma(minutiPerPartita.quanti, b.minutiPerPartita.quanti);
  Somma(esiti, b.esiti);
  Somma(carte, b.carte);
  Somma(ripartenze, b.ripartenze);
  Somma(violazioni, b.violazioni);
}

std::int64_t Conti::FinaliFallite() const {
  const auto& finale = esiti[static_cast<std::size_t>(Esito::Finale)];
  return finale[0] + finale[2];
}

bool Conti::InRegola() const {
  return std::ranges::all_of(violazioni, [](std::int64_t n) { return n == 0; });
}

}  // namespace girovia::simulazione
