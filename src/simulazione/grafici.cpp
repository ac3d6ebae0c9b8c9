#include "simulazione/grafici.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <numeric>
#include <sstream>
#include <stdexcept>

#include "content/testi.h"
#include "simulazione/relazione.h"

namespace girovia::simulazione {
namespace {

constexpr const char* kBlu = "#1f4e9c";
constexpr const char* kRosso = "#b5382a";

class Disegno {
 public:
  Disegno(int larghezza, int altezza) {
    svg_ << std::fixed << std::setprecision(1)
         << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << larghezza << ' '
         << altezza << "\" font-family=\"sans-serif\" font-size=\"12\">\n<rect width=\""
         << larghezza << "\" height=\"" << altezza << "\" fill=\"#fff\"/>\n";
  }
  void Barra(double x, double y, double larghezza, double altezza, const char* colore) {
    svg_ << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << larghezza << "\" height=\""
         << altezza << "\" fill=\"" << colore << "\"/>\n";
  }
  void Testo(double x, double y, const char* ancora, std::string_view testo) {
    svg_ << "<text x=\"" << x << "\" y=\"" << y << "\" text-anchor=\"" << ancora << "\">";
    for (const char c : testo) svg_ << (c == '&' ? "&amp;" : std::string(1, c));
    svg_ << "</text>\n";
  }
  std::string Chiudi() { return svg_.str() + "</svg>\n"; }

 private:
  std::ostringstream svg_;
};

std::string ConSegno(double valore, int decimali) {
  std::ostringstream testo;
  testo << std::showpos << std::fixed << std::setprecision(decimali) << valore;
  return testo.str();
}

}  // namespace

std::string GraficoDurata(const Conti& c) {
  const auto& quanti = c.minutiPerPartita.quanti;
  const std::int64_t piu = std::ranges::max(quanti);
  const int ultimo = Percentile(c.minutiPerPartita, c.partite, 99) + 1;
  constexpr double kBase = 270, kAlto = 220, kSinistra = 40, kLargo = 640;
  const double passo = kLargo / (ultimo + 1);
  Disegno d(720, 320);
  d.Testo(360, 24, "middle", "Games by their length in minutes");
  for (int m = 0; m <= ultimo; ++m) {
    const double altezza =
        kAlto * static_cast<double>(quanti[static_cast<std::size_t>(m)]) / static_cast<double>(piu);
    d.Barra(kSinistra + m * passo, kBase - altezza, passo * 0.85, altezza, kBlu);
    if (m % 5 == 0) {
      d.Testo(kSinistra + (m + 0.43) * passo, kBase + 18, "middle", std::to_string(m));
    }
  }
  d.Barra(kSinistra, kBase, kLargo, 1, "#000");
  d.Testo(360, kBase + 40, "middle", "minutes; the longest hundredth of the games is left out");
  return d.Chiudi();
}

std::string GraficoCarte(const Conti& c) {
  std::array<std::size_t, kCarte> ordine;
  std::iota(ordine.begin(), ordine.end(), 0U);
  std::ranges::sort(ordine, [&](std::size_t a, std::size_t b) {
    const double va = VantaggioDellaCarta(c.carte[a]), vb = VantaggioDellaCarta(c.carte[b]);
    return va != vb ? va > vb : a < b;
  });
  double massimo = 1;
  for (const ContoCarta& k : c.carte) massimo = std::max(massimo, std::abs(VantaggioDellaCarta(k)));
  constexpr double kMezzo = 520, kLargo = 150, kRiga = 18, kPrima = 60;
  Disegno d(760, static_cast<int>(kPrima + kRiga * kCarte + 20));
  d.Testo(380, 24, "middle", "Share of games won by the player who drew the card, against 50%");
  for (std::size_t i = 0; i < ordine.size(); ++i) {
    const ContoCarta& k = c.carte[ordine[i]];
    const double vantaggio = VantaggioDellaCarta(k);
    const double lungo = kLargo * std::abs(vantaggio) / massimo;
    const double y = kPrima + kRiga * static_cast<double>(i);
    std::string nome = std::to_string(ordine[i]) + "  ";
    nome += LoadResString(1000 + 3 * static_cast<int>(ordine[i]));
    d.Testo(350, y, "end", nome);
    d.Barra(vantaggio < 0 ? kMezzo - lungo : kMezzo, y - 11, lungo, kRiga - 4,
            vantaggio < 0 ? kRosso : kBlu);
    d.Testo(vantaggio < 0 ? kMezzo - lungo - 4 : kMezzo + lungo + 4, y,
            vantaggio < 0 ? "end" : "start", ConSegno(vantaggio, 1));
  }
  d.Barra(kMezzo, kPrima - 14, 1, kRiga * kCarte + 4, "#000");
  return d.Chiudi();
}

void ScriviGrafici(const Conti& conti, const std::string& cartella) {
  const std::array<std::pair<const char*, std::string>, 2> grafici = {
      std::pair{"/durata.svg", GraficoDurata(conti)}, std::pair{"/carte.svg", GraficoCarte(conti)}};
  for (const auto& [nome, svg] : grafici) {
    std::ofstream file(cartella + nome, std::ios::binary);
    file << svg;
    file.close();
    if (!file) throw std::runtime_error("non si può scrivere " + cartella + nome);
  }
}

}  // namespace girovia::simulazione
