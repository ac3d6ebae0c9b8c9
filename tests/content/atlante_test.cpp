#include "content/atlante.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <stdexcept>

namespace girovia {
namespace {

TEST(Atlante, RouteHasItsStarsAndItsShapes) {
  int stelle = 0;
  std::map<char, int> forme;
  std::set<std::string_view> nomi;
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const Casella& c = casella(i);
    stelle += c.stella;
    ++forme[c.tratto];
    nomi.insert(c.nome);
    EXPECT_EQ(NomeCasella(i), c.nome);
    EXPECT_TRUE(c.x >= 0 && c.x <= 785 && c.y >= 0 && c.y <= 585) << i;
  }
  EXPECT_EQ(stelle, 73);
  EXPECT_EQ(nomi.size(), 100u);
  std::string scritte;
  for (const auto& [forma, quante] : forme) scritte += forma + std::to_string(quante) + ' ';
  EXPECT_EQ(scritte, "-1 A38 B36 C13 D4 E4 F2 G1 H1 ");
  EXPECT_EQ(NomeCasella(0), "La Valletta");
  EXPECT_EQ(NomeCasella(59), "Lòdz");
  EXPECT_EQ(NomeCasella(99), "Bruxelles");
  EXPECT_EQ(NomeCasella(-1), "");
  EXPECT_EQ(NomeCasella(100), "");
  EXPECT_THROW(casella(100), std::out_of_range);
  EXPECT_THROW(LineaTratto(1, 0), std::out_of_range);
  EXPECT_THROW(LineaTratto(3, 1), std::out_of_range);
}

// The shape follows from the way the segment runs, so that the two lines lie beside each other;
// only these segments were set by eye.
TEST(Atlante, ShapesFollowTheDirection) {
  const std::set<int> a_occhio = {5,  12, 21, 33, 36, 37, 38, 39, 40, 42, 47, 48, 51, 52, 54,
                                  57, 60, 61, 63, 70, 74, 78, 79, 80, 89, 93, 94, 96, 97, 99};
  ASSERT_EQ(a_occhio.size(), 30u);
  for (int i = 1; i < kNumeroCaselle; ++i) {
    if (a_occhio.count(i)) continue;
    const int dx = casella(i).x - casella(i - 1).x;
    const int dy = casella(i).y - casella(i - 1).y;
    const char attesa = dy == 0 ? 'E' : dx == 0 ? 'D' : (dx > 0) == (dy > 0) ? 'A' : 'B';
    EXPECT_EQ(casella(i).tratto, attesa) << i;
  }
}

TEST(Atlante, LinesOfEachShape) {
  const struct {
    int i;
    Tratto primo, secondo;
  } kCasi[] = {
      {1, {436, 584, 420, 532}, {444, 576, 428, 524}},   // A
      {2, {420, 524, 436, 460}, {428, 532, 444, 468}},   // B
      {38, {132, 100, 148, 148}, {124, 108, 140, 156}},  // C
      {7, {332, 360, 332, 308}, {340, 360, 340, 308}},   // D
      {16, {220, 444, 164, 444}, {220, 452, 164, 452}},  // E
      {37, {12, 4, 132, 100}, {9, 12, 129, 108}},        // F
      {36, {100, 116, 4, 12}, {108, 113, 12, 9}},        // G
      {93, {508, 316, 468, 348}, {500, 308, 460, 340}},  // H
  };
  for (const auto& caso : kCasi) {
    EXPECT_EQ(LineaTratto(1, caso.i), caso.primo) << caso.i;
    EXPECT_EQ(LineaTratto(2, caso.i), caso.secondo) << caso.i;
  }
  EXPECT_EQ(LineaBase(99), (Tratto{296, 224, 252, 232}));
}

// A label stands in one of a few places around its button. Where the place depends on the width of
// the text, it must give a width that the name can have.
TEST(Atlante, LabelsStandAroundTheirButtons) {
  const std::set<std::pair<double, double>> fissi = {
      {15, 1}, {0, -11}, {0, 13}, {12, 12}, {12, -12}};
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const Casella& c = casella(i);
    const double dx = c.labelX - c.x, dy = c.labelY - c.y;
    const auto adatta = [&](double w) {
      const double lettere = static_cast<double>(c.nome.size());
      return w == static_cast<int>(w) && w > 4 * lettere && w < 9 * lettere;
    };
    const bool centrata = dy == -12 || dy == 14;
    EXPECT_TRUE(fissi.count({dx, dy}) || (dy == 1 && adatta(-dx)) ||
                (std::abs(dy) == 12 && adatta(5 - dx)) ||
                (centrata && (adatta(2 * (8 - dx)) || adatta(15 - dx))))
        << i << ' ' << c.nome;
  }
}

TEST(Atlante, TrialMapsMoveAFewButtons) {
  std::set<int> nascoste, rosse, spostate;
  for (int i = 0; i < kNumeroCaselle; ++i) {
    const PostoMappa p = PostoSuMappa(MappaProva::Citta, i);
    if (!p.visibile) nascoste.insert(i);
    if (p.rosso) rosse.insert(i);
    if (p.x != casella(i).x || p.y != casella(i).y) spostate.insert(i);
    const PostoMappa q = PostoSuMappa(MappaProva::Capitali, i);
    EXPECT_EQ(q.x != p.x || q.y != p.y || q.visibile != p.visibile, i == 13) << i;
  }
  EXPECT_EQ(nascoste, (std::set<int>{0, 20, 36, 54, 77, 78, 79, 80}));
  EXPECT_EQ(rosse, (std::set<int>{13, 19, 27, 39, 49, 63}));
  EXPECT_EQ(spostate, (std::set<int>{26, 44, 85}));
  EXPECT_EQ(PostoSuMappa(MappaProva::Citta, 85).x, 580);
  EXPECT_EQ(PostoSuMappa(MappaProva::Citta, 85).y, 468);
  EXPECT_EQ(PostoSuMappa(MappaProva::Capitali, 13).x, 288);
}

}  // namespace
}  // namespace girovia
