#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>

#include "mappa/dati.h"
#include "mappa/proiezione.h"
#include "mappa/tavole.h"

namespace mappa {
namespace {

namespace fs = std::filesystem;

const World& world() {
  static const World data = readWorld(DATI);
  return data;
}

std::string contents(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class Mappa : public testing::Test {
 protected:
  Mappa() { fs::create_directories(folder_); }
  ~Mappa() override { fs::remove_all(folder_); }

  int run(const std::string& options) const {
    const std::string command = std::string(MAPPA) + " " + options + " 2> " + errors().string();
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  fs::path errors() const { return folder_ / "errors"; }

  const fs::path folder_ =
      fs::path(testing::TempDir()) /
      ("mappa_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST(BoardProjection, BringsTheCitiesUnderTheirSquares) {
  const BoardProjection projection(world().cities);
  std::vector<double> residuals;
  for (const City& city : world().cities) {
    if (!city.pinned) continue;
    const Point p = projection(city.place);
    residuals.push_back(std::hypot(p.x - city.square.x, p.y - city.square.y));
  }
  std::sort(residuals.begin(), residuals.end());
  ASSERT_EQ(residuals.size(), 95U);
  EXPECT_LT(residuals[residuals.size() / 2], 1.5);
  EXPECT_LT(residuals.back(), 6);
}

TEST(BoardProjection, NowhereFoldsTheMap) {
  const BoardProjection projection(world().cities);
  for (double lon = -30; lon < 60; lon += 0.5) {
    for (double lat = 28; lat < 70; lat += 0.5) {
      const Point p = projection({lon, lat}), e = projection({lon + 0.1, lat}),
                  n = projection({lon, lat + 0.1});
      const double turn = (e.x - p.x) * (n.y - p.y) - (e.y - p.y) * (n.x - p.x);
      ASSERT_LT(turn, 0) << "at " << lon << ", " << lat;
    }
  }
}

// A square whose city is a port may stand with its middle on the water, but close to the shore.
TEST(BoardProjection, PutsTheSquaresOnLand) {
  const BoardProjection projection(world().cities);
  std::vector<Line> lines;
  for (const Arc& arc : world().arcs) lines.push_back(project(projection, arc.points));
  for (const City& city : world().cities) {
    if (!city.pinned) continue;
    const Point p = city.square;
    bool land = false;
    double shore = 1e9;
    for (const Country& country : world().countries) {
      bool inside = false;
      for (const Ring& ring : country.rings) {
        for (const ArcUse& use : ring) {
          const Line& line = lines[use.arc];
          for (std::size_t i = 1; i < line.size(); ++i) {
            const Point a = line[i - 1], b = line[i];
            shore = std::min(shore, std::hypot(a.x - p.x, a.y - p.y));
            if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) {
              inside = !inside;
            }
          }
        }
      }
      land = land || inside;
    }
    EXPECT_TRUE(land || shore < 5) << city.name << " is " << shore << " px off the shore";
  }
}

double luminance(const std::uint8_t* rgb) {
  const auto linear = [](double v) {
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(rgb[0] / 255.0) + 0.7152 * linear(rgb[1] / 255.0) +
         0.0722 * linear(rgb[2] / 255.0);
}

// The least contrast between the text colour and any pixel of the box behind it.
double leastContrast(const Canvas& picture, const Box& box, std::array<std::uint8_t, 3> text) {
  const auto bytes = picture.rgbBytes();
  const double ink = luminance(text.data());
  double least = 21;
  for (int y = static_cast<int>(box.y); y < box.y + box.height; ++y) {
    for (int x = static_cast<int>(box.x); x < box.x + box.width; ++x) {
      const auto at = (static_cast<std::size_t>(y) * picture.pixelWidth() + x) * 3;
      const double paper = luminance(&bytes[at]);
      least = std::min(least, (std::max(ink, paper) + 0.05) / (std::min(ink, paper) + 0.05));
    }
  }
  return least;
}

constexpr std::array<std::uint8_t, 3> kYellow{255, 255, 0}, kWhite{255, 255, 255}, kNavy{0, 0, 128},
    kRed{255, 0, 0};

TEST(Pictures, KeepTheTextsOfTheScreensLegible) {
  const Canvas board = boardPicture(world(), 1), trial = trialPicture(world(), 1);
  EXPECT_GT(leastContrast(board, {152, 546, 165, 52}, kYellow), 10);  // purse, status, player 1
  EXPECT_GT(leastContrast(board, {516, 548, 228, 52}, kYellow), 10);  // player 2
  EXPECT_GT(leastContrast(board, {184, 72, 108, 79}, kNavy), 5);      // the note in the North Sea
  EXPECT_GT(leastContrast(trial, {72, 548, 569, 52}, kWhite), 10);    // question, bar and message
  EXPECT_GT(leastContrast(trial, {0, 0, 150, 18}, kWhite), 10);       // name under the pointer

  const Canvas ordering = orderingPicture(world(), 1);
  for (int n = 1; n <= 122; ++n) {
    if ((n >= 29 && n <= 31) || n == 61 || n == 62 || (n >= 90 && n <= 95)) continue;
    const double a = 0.05 * n - 1.5;
    const Box mark{400 + 400 * 0.965 * std::cos(a) - 2, 300 + 300 * 0.965 * std::sin(a) - 2, 4, 4};
    EXPECT_GT(leastContrast(ordering, mark, n > 95 ? kRed : kYellow), 4) << "mark " << n;
  }
}

TEST_F(Mappa, WritesPicturesOfTheSizesAsked) {
  const auto number = [](const std::string& bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes.at(at + i)); };
    return byte(0) | byte(1) << 8 | byte(2) << 16;
  };
  for (const auto& [kind, width, height] :
       {std::tuple{"tabellone", 1600, 1200}, {"prova", 1600, 1200}, {"europa", 960, 720}}) {
    const fs::path picture = folder_ / "picture.bmp";
    ASSERT_EQ(run(std::string("--dati " DATI " --scala 2 --tipo ") + kind + " --uscita " +
                  picture.string()),
              0);
    const std::string bytes = contents(picture);
    EXPECT_EQ(number(bytes, 18), width);
    EXPECT_EQ(number(bytes, 22), height);
    EXPECT_EQ(number(bytes, 28) & 0xffff, 24);
    EXPECT_EQ(bytes.size(), 54U + static_cast<std::size_t>(width * height * 3));
  }
  const fs::path jpeg = folder_ / "500.jpg";
  ASSERT_EQ(run("--dati " DATI " --scala 2 --tipo europa --uscita " + jpeg.string()), 0);
  EXPECT_LT(fs::file_size(jpeg), 300'000U);
  EXPECT_EQ(contents(jpeg).substr(0, 2), "\xff\xd8");
}

TEST_F(Mappa, TellsInOneSentenceWhatIsWrong) {
  const struct {
    const char* file;
    const char* text;
    const char* complaint;
  } cases[] = {
      {"europa.txt", "quanto 0.005\narco C 1 2 3 x\n", "europa.txt, line 2: \"x\" is not a number"},
      {"europa.txt", "quanto 0.005\narco C 1 2 3\n", "line 2: something is missing"},
      {"europa.txt", "quanto 0.005\narco C 1 2 3 4\npaese A\nanello 7\n", "there is no arc 7"},
      {"europa.txt", "quanto 0.005\narco C 1 2 99999 4\n", "outside the globe"},
      {"europa.txt", "", "holds no country"},
      {"paesi.tsv", "Atlantis\t1\n", "no such country"},
      {"citta.tsv", "titles\n0\tLa Valletta\t35.9\t14.5\t440\t580\t1\n", "a hundred cities"},
      {"acque.txt", "fiume 1 Po\n", "the course is missing"},
      {"rilievi.txt", "catena 0 10 Alpi\n7 45\n", "must be above 0"},
      {"rilievi.txt", nullptr, "Cannot open"},
  };
  for (const auto& broken : cases) {
    const fs::path data = folder_ / "dati";
    fs::remove_all(data);
    fs::copy(DATI, data);
    fs::remove(data / broken.file);
    if (broken.text != nullptr) std::ofstream(data / broken.file) << broken.text;
    EXPECT_EQ(
        run("--tipo europa --uscita " + (folder_ / "x.bmp").string() + " --dati " + data.string()),
        1);
    const std::string said = contents(errors());
    EXPECT_NE(said.find(broken.complaint), std::string::npos) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  }
  for (const char* options : {"--dati " DATI " --tipo carta --uscita x.bmp", "--scala", "--dati x",
                              "--dati " DATI " --tipo europa --scala 99 --uscita x.bmp",
                              "--dati " DATI " --tipo europa --uscita x.gif",
                              "--dati " DATI " --tipo citta --casella 1 --uscita x.bmp"}) {
    EXPECT_EQ(run(options), 1) << options;
  }
  for (const char* square : {"100", "-1", "Roma"}) {
    EXPECT_EQ(run(std::string("--dati " DATI " --parti " PARTI " --tipo citta --uscita x.bmp") +
                  " --casella " + square),
              1);
    EXPECT_EQ(contents(errors()), "mappa: --casella takes a number from 0 to 99.\n");
  }
}

}  // namespace
}  // namespace mappa
