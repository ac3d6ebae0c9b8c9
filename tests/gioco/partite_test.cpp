// Whole games through the real forms: partite/<name>.txt is played and its record compared with
// partite/<name>.atteso. With GIROVIA_RINNOVA=1 in the environment the record is written there
// instead: look over the difference before it is committed.
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cartella.h"
#include "registratore.h"

namespace girovia {
namespace {

namespace fs = std::filesystem;

std::string LeggiFile(const fs::path& file) {
  std::ostringstream testo;
  testo << std::ifstream(file).rdbuf();
  return testo.str();
}

std::vector<std::string> Partite() {
  std::vector<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(fs::path(PROVE) / "partite"))
    if (voce.path().extension() == ".txt") nomi.push_back(voce.path().stem().string());
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

std::string RegistraLeggera(const std::string& copione, bool impaziente = false) {
  Cartella cartella;
  cartella.Alleggerisci();
  return Registra(copione, cartella.percorso(), impaziente);
}

// The first line that differs says more than two whole games.
void Confronta(const std::string& avuto, const fs::path& atteso) {
  std::istringstream a(LeggiFile(atteso)), b(avuto);
  std::string attesa, avuta;
  for (int riga = 1; std::getline(a, attesa); ++riga) {
    std::getline(b, avuta);
    ASSERT_EQ(avuta, attesa) << atteso.filename() << " line " << riga;
  }
  EXPECT_FALSE(std::getline(b, avuta)) << "more than recorded: " << avuta;
}

class Partita : public testing::TestWithParam<std::string> {};

TEST_P(Partita, GoesAsRecorded) {
  const fs::path atteso = fs::path(PROVE) / "partite" / (GetParam() + ".atteso");
  fs::path copione = atteso;
  copione.replace_extension(".txt");
  std::string verbale;
  try {
    verbale = RegistraLeggera(LeggiFile(copione));
  } catch (const ErroreCopione& errore) {
    FAIL() << copione.filename() << ", " << errore.what();
  }
  if (std::getenv("GIROVIA_RINNOVA")) {
    std::ofstream(atteso) << verbale;
    return;
  }
  Confronta(verbale, atteso);
}

INSTANTIATE_TEST_SUITE_P(Tutte, Partita, testing::ValuesIn(Partite()),
                         [](const auto& partita) { return partita.param; });

// Clicks made while the dice roll, a card turns, money is counted and the route grows are lost, and
// the game is the same without them.
TEST(Partite, ImpatientClicksDoNothing) {
  for (const char* nome : {"sorpasso", "sorpresa"}) {
    const fs::path copione = fs::path(PROVE) / "partite" / (std::string(nome) + ".txt");
    Confronta(RegistraLeggera(LeggiFile(copione), true),
              fs::path(copione).replace_extension(".atteso"));
  }
}

// A script that does not fit its game is told, and where.
TEST(Registratore, SaysWhereScriptAndGamePart) {
  const auto errore = [&](const std::string& copione) -> std::string {
    try {
      RegistraLeggera(copione);
    } catch (const ErroreCopione& e) {
      return e.what();
    }
    return "none";
  };
  using testing::HasSubstr;
  EXPECT_THAT(errore("ritratti 124 130\nclic cmdRitratto(1)\ndado 3 4\nclic cmdRisposta\n"),
              HasSubstr("run out of numbers"));
  EXPECT_THAT(errore("ritratti 124 130\nclic cmdRitratto(1)\nclic cmdRisposta\n"),
              HasSubstr("line 3 (clic cmdRisposta): the game draws a number here, with Dadi"));
  EXPECT_THAT(errore("ritratti 124 130\ndado 1 1\n"),
              HasSubstr("line 2 (dado 1 1): the game waits"));
  EXPECT_THAT(errore("ritratti 124 130\nclic cmdRitratto(3)\n"), HasSubstr("no such control"));
  EXPECT_THAT(errore("ritratti 124 130\nclic PicDado1\n"), HasSubstr("would not reach it"));
  EXPECT_THAT(errore("ritratti 124 130\nclic FormCitta.cmdExit\n"), HasSubstr("FormGirovia is in"));
  EXPECT_THAT(errore("ritratti 124 136\n"), HasSubstr("out of range"));
  EXPECT_THAT(errore("dadi 1 2\n"), HasSubstr("unknown statement"));
  EXPECT_THAT(errore("ritratti 124 130\nclic cmdExit\nclic cmdRisposta(1)\nclic cmdExit\n"),
              HasSubstr("line 4 (clic cmdExit): the game had ended"));
}

}  // namespace
}  // namespace girovia
