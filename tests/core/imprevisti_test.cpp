#include "core/imprevisti.h"

#include "content/testi.h"
#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;
using namespace mod_Messaggi;

// Player 1 in turn on square 30, purses 20 and 12.35, the other player on square 50.
void Prepara(int carta) {
  Giocatore = 1;
  Pos[1] = statoTabellone.PosPrecedente[1] = 30;
  Pos[2] = 50;
  Gruzzolo[1] = Euro::Interi(20);
  Gruzzolo[2] = Euro::Centesimi(1235);
  IndiceImprevisto = carta;
}

TEST(Imprevisti, LeTrentunoCarte) {
  const char* const solidarieta = "Oggi è la giornata della solidarietà in tutta Europa.";
  const struct {
    int carta;
    std::int64_t uno, due;  // purses in ten-thousandths when all is done
    const char* sinistra;
    const char* destra;
  } casi[] = {
      {0, 250'000, 73'500, "Oggi è il compleanno di Primo.",
       "Secondo ha mandato in regalo 500 monetine da 1 centesimo di euro. "},
      {1, 150'000, 173'500, "Oggi è il compleanno di Secondo.",
       "Primo ha mandato 500 monetine da 1 centesimo di euro."},
      {2, 161'750, 161'750, "Primo ha compiuto un nobile gesto di sportività.",
       "Adesso il suo gruzzolo è uguale a quello di Secondo."},
      {3, 161'750, 161'750, "Primo ha compiuto un nobile gesto di sportività.",
       "Adesso il suo gruzzolo è uguale a quello di Secondo."},
      {4, 123'500, 200'000, nullptr, nullptr},
      {5, 210'000, 129'675, nullptr, nullptr},
      {6, 180'000, 111'150, nullptr, nullptr},
      {7, 155'000, 78'500, nullptr, nullptr},
      {8, 150'000, 173'500, solidarieta, "Primo regala 5 euro a Secondo."},
      {9, 150'000, 173'500, solidarieta, "Primo regala 5 euro a Secondo."},
      {10, 250'000, 123'500, "Primo, oggi è il tuo giorno fortunato.",
       "Girovia ti regala 5 € e tu tiri ancora il dado!"},
      {11, 250'000, 123'500, "Primo, oggi è il tuo giorno fortunato.",
       " Girovia ti regala 5 € e tu tiri ancora il dado!"},
      {12, 250'000, 123'500, nullptr, nullptr},
      {13, 250'000, 123'500, nullptr, nullptr},
      {14, 200'000, 123'500, nullptr,
       "Primo ha ricevuto un biglietto omaggio per andare a Reykyavik."},
      {19, 200'000, 123'500, nullptr,
       "Primo ha ricevuto un biglietto omaggio per andare a Reykyavik."},
      {20, 100'000, 123'500,
       "Primo ha perso la carta di credito; ne ha chiesto una nuova alla sua banca.",
       "L'operazione è costata 10 euro!"},
      {21, 200'000, 23'500,
       "Secondo ha perso la carta di credito; ne ha chiesto una nuova alla sua banca.",
       "L'operazione è costata 10 euro!"},
      {22, 290'000, 123'500, "Oggi è la festa del turismo in Francia.",
       "Primo riceve 1 euro da ogni città francese presente in Girovia."},
      {23, 280'000, 123'500, nullptr, nullptr},
      {24, 280'000, 123'500, nullptr, nullptr},
      {25, 290'000, 123'500, nullptr, nullptr},
      {26, 250'000, 123'500, nullptr, nullptr},
      {27, 250'000, 123'500, nullptr, nullptr},
      {28, 270'000, 123'500, nullptr, nullptr},
      {29, 300'000, 123'500, nullptr, "Girovia News regala 10 euro a Primo."},
      {30, 100'000, 23'500, nullptr, nullptr},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    SCOPED_TRACE(caso.carta);
    Prepara(caso.carta);
    const bool volo = caso.carta >= 14 && caso.carta <= 19;
    if (volo) mondo.Esce(1, 2);
    const PaginaImprevisto pagina = CaricaImprevisto();
    EXPECT_EQ(pagina.titolo, LoadResString(1000 + 3 * caso.carta));
    EXPECT_EQ(pagina.aereo, volo);
    if (caso.sinistra != nullptr) {
      EXPECT_EQ(pagina.sinistra, caso.sinistra);
    }
    if (caso.destra != nullptr) {
      EXPECT_EQ(pagina.destra, caso.destra);
    }
    // Only these two families take effect while the page is composed.
    const bool subito = caso.carta == 8 || caso.carta == 9;
    EXPECT_EQ(Gruzzolo[1] == Euro::Interi(20), !subito);
    EXPECT_EQ(Pos[1], volo ? 36 : 30);
    GestioneImprevisti();
    EXPECT_EQ(Gruzzolo[1].decimillesimi(), caso.uno);
    EXPECT_EQ(Gruzzolo[2].decimillesimi(), caso.due);
    EXPECT_EQ(GruzzoloPrima[1], Gruzzolo[1]);
    EXPECT_EQ(GruzzoloPrima[2], Gruzzolo[2]);
    EXPECT_EQ(mondo.Conta("Conta"), caso.carta == 4 ? 1 : 0);
    const bool ancora = caso.carta >= 10 && caso.carta <= 13;
    EXPECT_EQ(Sorpresa, ancora ? 4 : 0);
    EXPECT_EQ(Giocatore, ancora ? 0 : 1);
    EXPECT_TRUE(mondo.Da("~123").starts_with("~123 Scrivi 1 ")) << mondo.Da("~123");
  }
}

TEST(Imprevisti, GruzzoliPariNegativiEQuattroDecimali) {
  const struct {
    int carta;
    std::int64_t prima1, prima2, dopo1, dopo2;
    const char* testo;
  } casi[] = {
      {8, 100'000, 100'000, 150'000, 50'000, "Secondo regala 5 euro a Primo."},
      {9, 100'000, 100'001, 150'000, 50'001, "Secondo regala 5 euro a Primo."},
      {2, 75'000, 100'000, 87'500, 87'500, "Adesso il suo gruzzolo è uguale a quello di Primo."},
      {3, 100'001, 100'002, 100'002, 100'002, nullptr},  // halves to the even neighbour
      {3, 100'000, 100'001, 100'000, 100'000, nullptr},
      {5, 0, -100'000, 0, -105'000, nullptr},
      {6, 0, -100'000, 0, -90'000, nullptr},
      {5, 10, 30, 10, 32, nullptr},  // shares of 0.5 and 1.5 ten-thousandths
      {30, 40'000, 0, -60'000, -100'000, nullptr},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    SCOPED_TRACE(caso.carta);
    Prepara(caso.carta);
    Gruzzolo[1] = Euro::Decimillesimi(caso.prima1);
    Gruzzolo[2] = Euro::Decimillesimi(caso.prima2);
    const PaginaImprevisto pagina = CaricaImprevisto();
    GestioneImprevisti();
    EXPECT_EQ(Gruzzolo[1].decimillesimi(), caso.dopo1);
    EXPECT_EQ(Gruzzolo[2].decimillesimi(), caso.dopo2);
    if (caso.testo != nullptr) {
      EXPECT_EQ(pagina.destra, caso.testo);
    }
  }
}

TEST(Imprevisti, BigliettiAerei) {
  const struct {
    int pos, altro, d, arrivo;
    const char* dove;
  } casi[] = {
      {2, 50, 0, 8, " andare a Stoccarda."},    {7, 50, 0, 13, " andare a Nizza."},
      {7, 13, 0, 14, " andare a Marsiglia."},   {8, 50, 0, 2, " tornare a Napoli."},
      {8, 2, 0, 1, " tornare a Palermo."},      {8, 50, 1, 14, " andare a Marsiglia."},
      {91, 50, 1, 97, " andare a Norimberga."}, {91, 97, 1, 98, " andare a Colonia."},
      {91, 85, 0, 84, " tornare a Skopje."},    {92, 50, 1, 86, " tornare a Atene."},
      {98, 92, 1, 91, " tornare a Belgrado."},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    SCOPED_TRACE(caso.pos);
    Prepara(14);
    Pos[1] = statoTabellone.PosPrecedente[1] = caso.pos;
    Pos[2] = caso.altro;
    mondo.Esce(caso.d, 2);
    const std::string testo = CaricaImprevisto().destra;
    EXPECT_TRUE(testo.ends_with("per" + std::string(caso.dove))) << testo;
    GestioneImprevisti();
    EXPECT_EQ(Pos[1], caso.arrivo);
    EXPECT_EQ(statoTabellone.PosPrecedente[1], caso.arrivo);
    EXPECT_EQ(ArrivoRaggiunto, Falso);
    const int passi = std::abs(caso.arrivo - caso.pos);
    EXPECT_EQ(mondo.Conta(caso.arrivo > caso.pos ? "Mostra 1" : "Nascondi 1"), passi);
    EXPECT_EQ(mondo.Conta("Pausa"), passi);
    EXPECT_EQ(mondo.Conta("FormSovrapposizioni"), 0);
  }
}

}  // namespace
}  // namespace girovia
