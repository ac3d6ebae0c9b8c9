// Every table of data by its digest: a letter, a truth mark, a city of a set, a star, a label four
// pixels off would be seen by nobody before a child.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "content/atlante.h"
#include "content/catalogo.h"
#include "content/quiz.h"
#include "content/testi.h"

namespace girovia {
namespace {

std::string Testi(int da, int a) {
  std::ostringstream su;
  for (int id = da; id <= a; ++id) su << id << ' ' << LoadResString(id) << '\n';
  return su.str();
}

std::string Atlante() {
  std::ostringstream su;
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const Casella& c = casella(i);
    su << c.nome << ' ' << c.x << ' ' << c.y << ' ' << c.labelX << ' ' << c.labelY << ' '
       << c.stella << c.tratto;
    for (const MappaProva mappa : {MappaProva::Citta, MappaProva::Capitali}) {
      const PostoMappa p = PostoSuMappa(mappa, i);
      su << ' ' << p.x << ' ' << p.y << ' ' << p.visibile << p.rosso;
    }
    su << '\n';
  }
  return su.str();
}

std::string Voci() {
  std::ostringstream su;
  for (const VoceCatalogo& v : Catalogo())
    su << PercorsoFile(v) << ' ' << v.larghezza << ' ' << v.altezza << ' ' << int(v.ruolo) << ' '
       << v.socio << v.nomeSocio << ' ' << v.caldoX << ' ' << v.caldoY << '\n';
  for (const std::string_view nome : NomiSuoni()) su << PercorsoSuono(nome) << '\n';
  return su.str();
}

// FNV-1a.
std::string Impronta(const std::string& testo) {
  std::uint64_t h = 0xcbf29ce484222325;
  for (const char c : testo) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  std::ostringstream su;
  su << std::hex << std::setw(16) << std::setfill('0') << h;
  return su.str();
}

TEST(Impronte, EveryTableIsAsItWasFoundRight) {
  const struct {
    const char* tavola;
    std::string testo;
    const char* impronta;
  } kTavole[] = {
      {"affermazioni.inc", Testi(0, 399), "0080bb51ac1f7624"},
      {"didascalie.inc", Testi(400, 499), "24ddf9af45978fd9"},
      {"frammenti.inc", Testi(500, 599), "41aa3c2564b5aa80"},
      {"foto.inc", Testi(600, 829), "366da210eb8940b1"},
      {"capitali.inc", Testi(830, 899), "fabd2335d8278d86"},
      {"ordinamento.inc", Testi(900, 997), "5a2c2afd2ead3449"},
      {"segni.inc and imprevisti.inc", Testi(998, 1200), "4d76d567bdd5584f"},
      {"atlante.cpp", Atlante(), "b8b07ee3cff64eac"},
      {"catalogo.cpp", Voci(), "917826ac952899f2"},
  };
  for (const auto& t : kTavole)
    EXPECT_EQ(Impronta(t.testo), t.impronta)
        << t.tavola << " has changed. If you meant it, read the difference once more, letter by "
        << "letter, and write the new digest here.";
}

// The same fact stands in more than one table.
TEST(Impronte, TablesAgree) {
  for (int n = 0; n < 35; ++n) {
    const int citta = LeggiCapitale(n).citta;
    EXPECT_NE(LoadResString(citta).find("è la capitale"), std::string_view::npos) << n;
  }
  // Four names are spelled otherwise in the statements and captions.
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const bool altrimenti = i == 9 || i == 36 || i == 44 || i == 59;
    EXPECT_NE(LoadResString(400 + i).starts_with(NomeCasella(i)), altrimenti) << i;
    for (int id = i; id < 200 + i; id += 100)
      EXPECT_NE(LoadResString(id).starts_with(NomeCasella(i)), altrimenti) << id;
  }
}

// The maps draw a town in the middle of its button.
TEST(Impronte, TownsOfTheMapsLieUnderTheirButtons) {
  std::ifstream file(CITTA_TSV);
  int righe = 0;
  for (std::string riga; std::getline(file, riga);) {
    std::istringstream su(riga);
    std::string campo[6];
    for (std::string& c : campo) std::getline(su, c, '\t');
    if (riga[0] < '0' || riga[0] > '9') continue;
    const Casella& c = casella(std::stoi(campo[0]));
    EXPECT_EQ(campo[1], c.nome);
    EXPECT_EQ(std::stoi(campo[4]), c.x + 8) << c.nome;
    EXPECT_EQ(std::stoi(campo[5]), c.y + 8) << c.nome;
    ++righe;
  }
  EXPECT_EQ(righe, kNumeroCaselle);
}

}  // namespace
}  // namespace girovia
