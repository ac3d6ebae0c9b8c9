#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "screens/banconote_logica.h"
#include "screens/bonus_logica.h"
#include "screens/giornale_logica.h"
#include "trials/caso_scritto.h"

namespace girovia {
namespace {

using testing::ElementsAre;

TEST(Banconote, FewestPicturesThatMakeTheSum) {
  const std::map<int, int> valore = {{204, 10}, {205, 5}, {206, 2}, {207, 1}};
  for (int dado = 1; dado <= 12; ++dado) {
    int resto = dado;
    double prima = -1;
    for (const Banconota& b : BanconoteDelDado(dado)) {
      int atteso = 204;  // the largest that still goes in
      while (valore.at(atteso) > resto) ++atteso;
      EXPECT_EQ(b.bitmap, atteso) << dado;
      resto -= valore.at(b.bitmap);
      EXPECT_EQ(b.top, b.bitmap <= 205 ? 85 : 69) << dado;
      EXPECT_GT(b.left, prima) << dado;
      prima = b.left;
    }
    EXPECT_EQ(resto, 0) << dado;
  }
  EXPECT_THAT(BanconoteDelDado(1), ElementsAre(Banconota{207, 128, 69}));
  EXPECT_THAT(BanconoteDelDado(4), ElementsAre(Banconota{206, 80, 69}, Banconota{206, 184, 69}));
  EXPECT_THAT(BanconoteDelDado(5), ElementsAre(Banconota{205, 112.5, 85}));
  EXPECT_THAT(BanconoteDelDado(8), ElementsAre(Banconota{205, 16, 85}, Banconota{206, 136, 69},
                                               Banconota{207, 240, 69}));
  EXPECT_THAT(BanconoteDelDado(10), ElementsAre(Banconota{204, 112, 85}));
  EXPECT_THAT(BanconoteDelDado(11), ElementsAre(Banconota{204, 72, 85}, Banconota{207, 192, 69}));
  EXPECT_THAT(BanconoteDelDado(12), ElementsAre(Banconota{204, 72, 85}, Banconota{206, 200, 69}));
  for (int fuori : {-1, 0, 13}) EXPECT_TRUE(BanconoteDelDado(fuori).empty());
}

TEST(Bonus, DrawsOneNoteAndFourCoins) {
  const struct {
    std::vector<double> numeri;
    std::array<int, 5> bitmap;  // note, coins
    std::int64_t cent;
    const char* messaggio;
  } kCasi[] = {
      {{0.5, 0.99, 0.875, 0.9, 0.9999}, {205, 213, 213, 213, 213}, 504, "5,04"},
      {{0.49, 0, 0.1, 0.12, 0.1249}, {204, 206, 206, 206, 206}, 1800, "18,00"},
      {{0.9, 0.125, 0.25, 0.5, 0.25}, {205, 207, 208, 210, 208}, 710, "7,10"},
      {{0, 0.375, 0.625, 0.75, 0.875}, {204, 209, 211, 212, 213}, 1028, "10,28"},
  };
  for (const auto& c : kCasi) {
    CasoScritto caso(c.numeri);
    const Bonus bonus = EstraiBonus(caso);
    EXPECT_EQ(bonus.biglietto, c.bitmap[0]);
    for (std::size_t k = 0; k < 4; ++k) EXPECT_EQ(bonus.monete[k], c.bitmap[k + 1]);
    EXPECT_EQ(bonus.premio, Euro::Centesimi(c.cent));
    EXPECT_EQ(MessaggioBonus(bonus.premio),
              "Vinci un premio di " + std::string(c.messaggio) + " €.");
  }
}

TEST(Giornale, DateLineInItalian) {
  std::tm ora{};
  ora.tm_year = 126;
  ora.tm_mon = 4;
  ora.tm_mday = 4;
  ora.tm_wday = 1;
  ora.tm_hour = 9;
  ora.tm_min = 5;
  EXPECT_EQ(DataGiornale(ora), "Lunedì, 4 maggio 2026\r\nsono le 09,05.");
  ora.tm_hour = 0;
  ora.tm_min = 59;
  EXPECT_EQ(DataInfo(ora), "Lunedì, 4 maggio 2026. Sono le 00,59.");
  const char* giorni[] = {"Domenica", "Lunedì",  "Martedì", "Mercoledì",
                          "Giovedì",  "Venerdì", "Sabato"};
  const char* mesi[] = {"gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
                        "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};
  for (int giorno = 1; giorno <= 365; ++giorno) {
    std::tm data{};
    data.tm_year = 2026 - 1900;
    data.tm_mday = giorno;
    data.tm_hour = 12;
    std::mktime(&data);  // 1 January 2026 is a Thursday
    EXPECT_EQ(data.tm_wday, (giorno + 3) % 7);
    EXPECT_EQ(DataInfo(data), std::string(giorni[data.tm_wday]) + ", " +
                                  std::to_string(data.tm_mday) + " " + mesi[data.tm_mon] +
                                  " 2026. Sono le 12,00.");
  }
}

}  // namespace
}  // namespace girovia
