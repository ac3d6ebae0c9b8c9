#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "esegui.h"
#include "leggi.h"

namespace {

using testing::HasSubstr;

class DipingiTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = testing::TempDir() + "dipingi-" +
              testing::UnitTest::GetInstance()->current_test_info()->name();
    std::filesystem::create_directories(folder_ + "/parti");
    std::filesystem::copy(PARTI "/lettere.txt", folder_ + "/parti/lettere.txt");
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void File(const std::string& name, const std::string& text) {
    std::ofstream(folder_ + "/" + name) << text;
  }
  void Drawing(const std::string& body, const std::string& box = "0 0 40 20") {
    File("a.svg",
         "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"" + box + "\">" + body + "</svg>");
  }
  Uscita Run(const std::string& arguments) const {
    return Esegui("cd '" + folder_ + "' && '" DIPINGI "' --parti parti " + arguments + " 2>&1");
  }
  std::string Bytes(const std::string& name) const {
    return dipingi::ReadText(folder_ + "/" + name);
  }
  std::string folder_;
};

TEST_F(DipingiTest, SaysInOneSentenceWhatIsWrong) {
  const std::string ask = "40x20 a.svg a.png";
  const struct {
    std::string body, arguments, said;
  } cases[] = {
      {"<g/>", "40x20 no.svg a.png", "no.svg cannot be read"},
      {"<g/>", "40x20 parti a.png", "cannot be read"},
      {"<g>", ask, "cannot be read as SVG"},
      {"<g/>", "40x30 a.svg a.png", "has not the proportions of 80 by 60"},
      {"<text x='1'>a</text>", ask, "write with <scritta>"},
      {"<parte nome=\"no\"/>", ask, "there is no part \"no\""},
      {"<parte nome=\"giro\"/>", ask, "without end"},
      {"<parte nome=\"punto\" colour=\"#fff\"/>", ask, "no parameter \"colour\""},
      {"<parte nome=\"punto\" x=\"4px\"/>", ask, "\"x\" must be a number"},
      {"<parte nome=\"punto\"><g/></parte>", ask, "must end in />"},
      {"<parte nome=\"punto/>", ask, "cannot be read"},
      {"<scritta testo=\"日\"/>", ask, "no letter shape"},
      {"<scritta testo=\"a\" ancora=\"left\"/>", ask, "\"ancora\""},
      {"<g/>", "--colori 40x20 a.svg a.png", "--colori is not known"},
      {"<g/>", "40by20 a.svg a.png", "WIDTHxHEIGHT"},
      {"<g/>", "0x20 a.svg a.png", "whole number"},
      {"<g/>", "40000000000000x20 a.svg a.png", "whole number"},
      {"<g/>", "8000x4000 a.svg a.png", "8192"},
      {"<g/>", "40x20 a.svg a.gif", ".png, .jpg or .bmp"},
      {"<g/>", "40x20 a.svg no/a.png", "cannot be written"},
      {"<g/>", "40x20 a.svg", "are needed"},
      {"<g/>", "--max-kb 1 --scala 40 40x20 noise.svg a.jpg", "does not fit"},
  };
  File("parti/giro.svg", "<parte nome=\"giro\"/>");
  File("parti/punto.svg", "<parametri colore=\"#f00\"/><circle r=\"3\" fill=\"{colore}\"/>");
  File("noise.svg",
       "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20'><filter id='f'><feTurbulence "
       "baseFrequency='.9'/></filter><rect width='40' height='20' filter='url(#f)'/></svg>");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.body + " " + c.arguments);
    Drawing(c.body);
    const Uscita outcome = Run(c.arguments);
    EXPECT_EQ(outcome.codice, 1);
    EXPECT_THAT(outcome.testo, HasSubstr(c.said));
    EXPECT_EQ(std::count(outcome.testo.begin(), outcome.testo.end(), '\n'), 1) << outcome.testo;
  }
}

TEST_F(DipingiTest, SpriteAndMaskShareOneSharpOutline) {
  // Half transparent things count as there from one half on; the rim is full colour, no fringe.
  Drawing(
      "<circle cx='12' cy='10' r='7.3' fill='#e04020'/>"
      "<rect x='24' y='2' width='6' height='16' fill='#e04020' fill-opacity='.6'/>"
      "<rect x='32' y='2' width='6' height='16' fill='#e04020' fill-opacity='.4'/>");
  ASSERT_EQ(Run("--maschera m.png 40x20 a.svg a.png").testo, "");
  const dipingi::Image picture = Leggi(folder_ + "/a.png"), mask = Leggi(folder_ + "/m.png");
  ASSERT_EQ(picture.width, 80);
  ASSERT_EQ(mask.rgba.size(), picture.rgba.size());
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 80; ++x) {
      const auto* p = picture.at(x, y);
      const auto* m = mask.at(x, y);
      if (m[0] == 0) {
        EXPECT_EQ(p[3], 255);
        EXPECT_NEAR(p[0], 0xe0, 3);
        EXPECT_NEAR(p[2], 0x20, 3);
      } else {
        EXPECT_TRUE(m[0] == 255 && m[1] == 255 && m[2] == 255);
        EXPECT_TRUE(p[0] == 255 && p[1] == 255 && p[2] == 255 && p[3] == 0);
      }
    }
  }
  EXPECT_EQ(mask.at(54, 20)[0], 0);
  EXPECT_EQ(mask.at(70, 20)[0], 255);
}

TEST_F(DipingiTest, PartsAreFilledInAndEachPictureIsTheSameEveryTime) {
  File("parti/sfera.svg",
       "<!-- <parte nome=\"no\"/> --><parametri colore=\"#f00\" altro=\"fondo\"/>"
       "<parte nome=\"{altro}\" colore=\"{colore}\"/>");
  File("parti/fondo.svg",
       "<parametri colore=\"#00f\"/><linearGradient id=\"{id}\"><stop stop-color=\"{colore}\"/>"
       "</linearGradient><rect width=\"10\" height=\"10\" fill=\"url(#{id})\"/>");
  Drawing(
      "<style>.a{fill:#0f0}</style><rect class='a' width='40' height='20'/>"
      "<parte nome=\"sfera\"/><parte nome=\"sfera\" x=\"20\" scala=\".5\" colore=\"#00f\"/>"
      "<scritta testo=\"è\" x=\"32\" y=\"14\" corpo=\"8\" colore=\"#000\"/>");
  ASSERT_EQ(Run("--dipendenze a.d 40x20 a.svg a.png").testo, "");
  const dipingi::Image picture = Leggi(folder_ + "/a.png");
  const auto colour = [&](int x, int y) {
    const auto* p = picture.at(x, y);
    return p[0] << 16 | p[1] << 8 | p[2];
  };
  EXPECT_EQ(colour(10, 10), 0xff0000);
  EXPECT_EQ(colour(45, 5), 0x0000ff);
  EXPECT_EQ(colour(55, 5), 0x00ff00);
  EXPECT_EQ(Bytes("a.d"), "a.png: a.svg parti/fondo.svg parti/lettere.txt parti/sfera.svg\n");

  for (const char* kind : {"png", "jpg", "bmp"}) {
    const std::string first = std::string("1.") + kind, second = std::string("2.") + kind;
    ASSERT_EQ(Run("40x20 a.svg " + first).testo, "");
    ASSERT_EQ(Run("40x20 a.svg " + second).testo, "");
    EXPECT_EQ(Bytes(first), Bytes(second)) << kind;
    EXPECT_EQ(Leggi(folder_ + "/" + first).height, 40) << kind;
  }
}

}  // namespace
