#include <gmock/gmock.h>

#include <complex>
#include <fstream>
#include <numbers>

#include "esegui.h"
#include "onda.h"

namespace {

class Suona : public testing::Test {
 protected:
  Suona()
      : folder_(testing::TempDir() +
                testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directory(folder_);
  }
  ~Suona() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path file(const char* name) const { return folder_ / name; }

  // The exit code; what the tool said is in `said_`.
  int play(const std::string& score, const char* out = "a.wav") {
    std::ofstream(file("a.suono")) << score;
    const Uscita uscita =
        Esegui("cd '" + folder_.string() + "' && '" PROVA_SUONA "' a.suono '" + out + "' 2>&1");
    said_ = uscita.testo;
    return uscita.codice;
  }

  std::filesystem::path folder_;
  std::string said_;
};

double Crossings(const Onda& onda, double from, double to) {
  int count = 0;
  for (auto i = static_cast<std::size_t>(from * 44100) + 1;
       i < static_cast<std::size_t>(to * 44100); ++i)
    count += onda.samples[i - 1] < 0 && onda.samples[i] >= 0;
  return count / (to - from);
}

TEST_F(Suona, NotesHaveTheirPitchAndTheirTime) {
  // A beat of 60 a minute, then one that doubles within a beat: 0.5 s + ln 2 s.
  const std::string score =
      "length 4 # seconds\ntempo 0 60\ntempo 1 60\ntempo 2 120\n"
      "instrument pipe\nwave sine\nenv 0.001 1 1 0.005\n"
      "part pipe gate 1\nA4:0.5 -:0.5 | -:1 Bb3+Bb3:1 *0 C4:1 *1 F#5:1\n";
  ASSERT_EQ(play("bar 1\n" + score), 0) << said_;
  const Onda onda = LeggiOnda(file("a.wav"));
  EXPECT_NEAR(onda.seconds(), 4, 1e-3);
  EXPECT_NEAR(Crossings(onda, 0.1, 0.4), 440, 4);
  EXPECT_LT(onda.peak(0.52, 1.68), 0.01);
  EXPECT_NEAR(Crossings(onda, 1.75, 2.15), 233.08, 3);
  EXPECT_LT(onda.peak(2.22, 2.68), 0.01);
  EXPECT_NEAR(Crossings(onda, 2.75, 3.15), 739.99, 4);
  const std::string first = LeggiByte(file("a.wav"));
  ASSERT_EQ(play("bar 1\n" + score), 0);
  EXPECT_EQ(LeggiByte(file("a.wav")), first);
}

// The level of one frequency within the middle of a mono sound.
double Level(const Onda& onda, double hz) {
  std::complex<double> sum = 0;
  for (std::size_t i = 4410; i < 39690; ++i) {
    const double way = static_cast<double>(i - 4410) / 35280;
    const double window = 1 - std::cos(2 * std::numbers::pi * way);
    sum += window *
           std::polar(onda.samples[i], 2 * std::numbers::pi * hz / 44100 * static_cast<double>(i));
  }
  return std::abs(sum);
}

TEST_F(Suona, NothingFoldsBackFromAboveTheBand) {
  ASSERT_EQ(play("length 1\ninstrument saw\nwave saw\nenv 0.01 1 1 0.01\npart saw\n3000:1\n"), 0)
      << said_;
  const Onda onda = LeggiOnda(file("a.wav"));
  const double tone = Level(onda, 3000);
  EXPECT_GT(Level(onda, 15000), 0.1 * tone);
  for (int k = 8; k <= 14; ++k) EXPECT_LT(Level(onda, 44100 - 3000 * k), 3e-4 * tone) << k;
}

TEST_F(Suona, ABrokenScoreIsToldInOneSentenceWithItsLine) {
  const std::string head = "length 1\ninstrument pipe\nwave sine\npart pipe\n";
  const std::pair<std::string, std::string> kCases[] = {
      {"lenght 1\n", "a.suono:1: unknown word 'lenght'\n"},
      {"length -3\n", "a.suono:1: '-3' is no length in seconds (0.02 to 60)\n"},
      {"length nan\n", "a.suono:1: 'nan' is no length in seconds (0.02 to 60)\n"},
      {"length\n", "a.suono:1: there is no length in seconds here\n"},
      {"length 1 2\n", "a.suono:1: '2' is too much here\n"},
      {"tempo 0 60\n\ntempo 0 70\n",
       "a.suono:3: the tempo must go from beat 0 on, each point after the one before\n"},
      {"length 1\ninstrument a\nwave round\n", "a.suono:3: unknown wave 'round'\n"},
      {"length 1\ninstrument a\npartials 1:2\n",
       "a.suono:3: '1:2' is no partial ratio:level:decay\n"},
      {"length 1\npart drum\n", "a.suono:2: there is no instrument 'drum'\n"},
      {head + "C4:0.2\nH4:0.2\n", "a.suono:6: 'H4' is no pitch\n"},
      {head + "C4:0\n", "a.suono:5: '0' is no length in beats (0.001 to 1000)\n"},
      {head + "C4\n", "a.suono:5: 'C4' is no note\n"},
      {head + ":1\n", "a.suono:5: ':1' is no note\n"},
      {head + "C4:0.3 |\n", "a.suono:5: this bar line is not at the end of a bar\n"},
      {head + "C4:1 C4:1\n", "a.suono:5: a note starts after the end of the sound\n"},
      {head + "scatter 3 0.5 C4\n", "a.suono:5: there is no pitch here\n"},
      {head, "a.suono:4: the score has no note\n"},
      {"", "a.suono:0: the score does not say its length\n"},
  };
  for (const auto& [score, sentence] : kCases) {
    EXPECT_EQ(play(score), 1) << score;
    EXPECT_EQ(said_, sentence);
    EXPECT_FALSE(std::filesystem::exists(file("a.wav")));
  }
  EXPECT_EQ(play(head + "C4:0.2\n", "nowhere/a.wav"), 1);
  EXPECT_EQ(said_, "nowhere/a.wav: cannot be written\n");
}

}  // namespace
