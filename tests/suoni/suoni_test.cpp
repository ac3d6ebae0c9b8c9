#include <gmock/gmock.h>

#include <cmath>
#include <set>

#include "content/catalogo.h"
#include "onda.h"

namespace {

const std::filesystem::path kFolder = PROVA_SUONI;

Onda Suono(std::string_view name) { return LeggiOnda(kFolder / (std::string(name) + ".wav")); }

double Db(double amplitude) { return 20 * std::log10(amplitude + 1e-9); }

TEST(Suoni, TheFolderHoldsTheSoundsOfTheCatalogueAndNoOthers) {
  std::set<std::string> wanted;
  for (const auto name : girovia::NomiSuoni()) wanted.insert(std::string(name) + ".wav");
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder))
    found.insert(entry.path().filename().string());
  EXPECT_EQ(found, wanted);
}

TEST(Suoni, EachIsSoundInFormLevelAndEnds) {
  for (const auto name : girovia::NomiSuoni()) {
    SCOPED_TRACE(name);
    const Onda onda = Suono(name);
    EXPECT_EQ(onda.format, 1U);
    EXPECT_EQ(onda.rate, 44100U);
    EXPECT_EQ(onda.bits, 16U);
    EXPECT_THAT(onda.channels, testing::AnyOf(1U, 2U));
    ASSERT_TRUE(onda.whole);

    const double end = onda.seconds();
    EXPECT_LT(Db(onda.peak(0, end)), -1);
    EXPECT_THAT(onda.loudnessDb(), testing::AllOf(testing::Ge(-23.5), testing::Le(-16.5)));
    EXPECT_LT(std::abs(onda.mean()), 0.002);
    // A step larger than this at either end is heard as a click.
    EXPECT_LT(Db(onda.peak(0, 0.0001)), -40);
    EXPECT_LT(Db(onda.peak(end - 0.0005, end)), -60);
    // A sound is heard at once: most answer a click of the mouse.
    EXPECT_GT(Db(onda.peak(0, 0.15)), -30);
  }
}

TEST(Suoni, TheGameIsNotKeptWaiting) {
  struct Limit {
    std::string_view name;
    double least, most;
  };
  constexpr Limit kLimits[] = {
      {"106", 0.5, 1.5},    {"123", 0.3, 0.7},  {"214", 0.05, 0.25},  // waited for to their end
      {"116", 0.1, 0.4},                                              // comes every 0.4 s
      {"102", 0.03, 0.2},   {"212", 0.05, 0.3}, {"215", 0.05, 0.4},   // ticks and clicks
      {"124", 0.8, 1.3},     // the board stands still for 1.2 s
      {"103", 1.3, 2.0},     // the card turns over
      {"inno", 17.9, 18.1},  // the start screen is silent so long
  };
  for (const auto& [name, least, most] : kLimits) {
    SCOPED_TRACE(name);
    EXPECT_THAT(Suono(name).seconds(), testing::AllOf(testing::Ge(least), testing::Le(most)));
  }
}

TEST(Suoni, TheAnthemPlaysToItsEndAndThenDiesAway) {
  const Onda inno = Suono("inno");
  for (double t = 0; t < 16; t += 0.5) EXPECT_GT(Db(inno.peak(t, t + 0.5)), -20) << t;
  EXPECT_GT(Db(inno.peak(15, 16.5)), Db(inno.peak(0, 4)));
  EXPECT_LT(Db(inno.peak(17.8, 18)), -45);
}

}  // namespace
