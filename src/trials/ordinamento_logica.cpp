#include "trials/ordinamento_logica.h"

#include <cmath>
#include <cstddef>
#include <utility>

#include "core/nomi.h"

namespace girovia {
namespace {

constexpr std::size_t kCaratteriPrimaRiga = 29;

int Arrotonda(double v) { return static_cast<int>(std::lrint(v)); }

// Every line on this screen stands off the edge by a blank.
std::string Riga(std::string_view testo, std::string_view coda) {
  std::string riga(1, ' ');
  riga += testo;
  riga += coda;
  return riga;
}

// How many bytes the first `n` characters take.
std::size_t Byte(std::string_view testo, std::size_t n) {
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const bool inizio = (static_cast<unsigned char>(testo[i]) & 0xC0) != 0x80;
    if (inizio && n-- == 0) return i;
  }
  return testo.size();
}

}  // namespace

std::array<int, 9> ProvaOrdinamento::Distribuisci(Caso& caso) {
  std::array<int, 9> tasselli{};
  std::array<bool, 9> usato{};
  usato[kCellaRiferimento] = true;
  tasselli[kCellaRiferimento] = kCellaRiferimento;
  for (std::size_t c = 0; c < tasselli.size(); ++c) {
    if (c == kCellaRiferimento) continue;
    std::size_t r;
    do {
      r = static_cast<std::size_t>(9 * caso.Rnd());
    } while (usato[r]);
    usato[r] = true;
    tasselli[c] = static_cast<int>(r);
  }
  return tasselli;
}

bool ProvaOrdinamento::Solleva(int cella, double x, double y) {
  if (cella == kCellaRiferimento || in_mano()) return false;
  presa_x_ = Arrotonda(x);
  presa_y_ = Arrotonda(y);
  const int riga = cella / 3;
  const int colonna = cella % 3;
  // The tile jumps off its cell; the first move of the pointer brings it back under the grip.
  x_ = Arrotonda(Arrotonda(240 * colonna + x) - presa_x_ / 2.0);
  y_ = Arrotonda(Arrotonda(180 * riga + y) - presa_y_ / 2.0);
  griglia_.Prendi(cella);
  return true;
}

void ProvaOrdinamento::Trascina(double x, double y) {
  x_ = Arrotonda(x_ + x - presa_x_);
  y_ = Arrotonda(y_ + y - presa_y_);
}

Recinto ProvaOrdinamento::recinto() const {
  return {static_cast<double>(presa_x_), static_cast<double>(presa_y_),
          static_cast<double>(presa_x_ + kLarghezza - kLarghezzaTassello),
          static_cast<double>(presa_y_ + kAltezza - kAltezzaTassello)};
}

int ProvaOrdinamento::CellaSotto() const {
  const int cx = x_ + kLarghezzaTassello / 2;
  const int cy = y_ + kAltezzaTassello / 2;
  // On a line between two columns the left one wins, on the upper line between two rows the lower.
  const int riga = cy < 180 ? 0 : cy > 360 ? 2 : 1;
  const int colonna = cx > 480 ? 2 : cx > 240 ? 1 : 0;
  return 3 * riga + colonna;
}

ScattoOrdinamento ScattoDellAnello(int n) {
  // The gaps are where the arms of the compass rose cross the ring.
  static constexpr std::pair<int, int> kTratti[] = {{1, 28}, {32, 60}, {63, 89}, {96, 122}};
  constexpr double kRaggioX = ProvaOrdinamento::kLarghezza / 2.0;
  constexpr double kRaggioY = ProvaOrdinamento::kAltezza / 2.0;
  constexpr std::uint32_t kGiallo = 0x00FFFF;
  constexpr std::uint32_t kRosso = 0x0000FF;

  ScattoOrdinamento scatto{.segno = std::nullopt, .scaduto = n == 124};
  for (const auto& [primo, ultimo] : kTratti) {
    if (n < primo || n > ultimo) continue;
    const double a = 0.05 * n - 1.5;
    const double dx = kRaggioX * std::cos(a);
    const double dy = kRaggioY * std::sin(a);
    scatto.segno = {kRaggioX + dx * 0.96, kRaggioY + dy * 0.96, kRaggioX + dx * 0.97,
                    kRaggioY + dy * 0.97, n > 95 ? kRosso : kGiallo};
  }
  return scatto;
}

PostoBottone BottoneOrdinamento(int scatti) { return BottoneDopo(736, 512, scatti); }

std::array<std::string, 10> IstruzioniOrdinamento(std::string_view riferimento,
                                                  std::string_view messaggio) {
  const std::size_t taglio = Byte(messaggio, kCaratteriPrimaRiga);
  return {" Metti in ordine queste 8 città",
          " da nord a sud, da ovest a est.",
          " Il punto di riferimento",
          " (qui al centro) è la città di",
          Riga(Maiuscole(riferimento), "."),
          " Usa il clic del mouse per",
          " spostare le altre città.",
          " Se ci riesci vinci 10 euro.",
          Riga(messaggio.substr(0, taglio), ""),
          Riga(messaggio.substr(taglio), ".")};
}

std::string ScrittaTassello(std::string_view citta) { return Riga(citta, std::string(27, ' ')); }

}  // namespace girovia
