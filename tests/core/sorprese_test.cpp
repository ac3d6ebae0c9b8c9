#include "core/sorprese.h"

#include "content/testi.h"
#include "core/eventi.h"
#include "core/frasi.h"
#include "mondo.h"

namespace girovia {
namespace {

using namespace mod_Girovia;

TEST(Sorprese, AOppureAd) {
  const struct {
    int casella;
    const char* annuncio;
    const char* riga;
  } casi[] = {
      {43, "ad Amburgo", "ad Amburgo"},   {41, "ad Amsterdam", "ad Amsterdam"},
      {86, "ad Atene", "ad Atene"},       {81, "ad Istanbul", "ad Istanbul"},
      {73, "ad Odessa", "ad Odessa"},     {46, "ad Oslo", "ad Oslo"},
      {37, "a Edimburgo", "a Edimburgo"}, {3, "a Roma", "a Roma"},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    Giocatore = 2;
    Pos[2] = caso.casella;
    mondo.Esce(1, 3);
    ProceduraSorpresa();
    EXPECT_EQ(mondo.Da("~231"),
              "~231 AvviaLampeggio Annuncio Secondo,\r\nc'è una sorpresa per te " +
                  std::string(caso.annuncio));
    EXPECT_EQ(TestoPrBar(2), "Secondo è " + std::string(caso.riga));
  }
  EXPECT_EQ(TestoPrBar(0), " è a La Valletta");
}

TEST(Sorprese, SoloUnoSuTreAspettaELampeggiaTrentaVolte) {
  for (const int k : {0, 2}) {
    Mondo mondo;
    Giocatore = 1;
    mondo.Esce(k, 3);
    ProceduraSorpresa();
    EXPECT_EQ(Sorpresa, k);
    EXPECT_TRUE(mondo.righe.empty());
  }
  Mondo mondo;
  Giocatore = 1;
  statoTabellone.ContaLampeggi = 30;
  mondo.Esce(1, 3);
  ProceduraSorpresa();
  for (int i = 0; i < 30; ++i) TimerSorpresa_Timer();
  EXPECT_EQ(mondo.Conta("ScambiaAnnuncio"), 29);
  EXPECT_TRUE(mondo.Da("FermaLampeggio").ends_with("FermaLampeggio NascondiAnnuncio"));
  EXPECT_EQ(Sorpresa, 1);  // still to be claimed
}

// From the roll to the board's new figure, flag by flag.
TEST(Sorprese, UnaSorpresaReclamata) {
  const struct {
    int r;
    int euro;
    const char* testo;
  } casi[] = {
      {0, 5, "Ti è arrivata una ricarica telefonica dall'Italia: 5 €."},
      {1, 10, "Ti è arrivato un bonifico dall'Italia, con MoneyGram: 10 €."},
      {2, 6, "L'hotel dove alloggi ti offre un buono-spesa di 6 €."},
      {3, -5, "La visita guidata della città con un bus turistico ti costa 5 €."},
      {4, -4, "Hai inviato qualche cartolina ai parenti. Spesa: 4 €."},
      {5, -3, "Visita al museo della città: il biglietto ti costa 3 €."},
      {6, 10, "Ti è arrivata una ricarica telefonica dall'Italia: 10 €."},
      {7, -2, "Una telefonata alla famiglia in Italia ti costa 2 €."},
      {8, 12, "L'hotel dove alloggi ti offre un buono-spesa di 12 €."},
  };
  for (const auto& caso : casi) {
    Mondo mondo;
    Giocatore = 2;
    Pos[2] = 5;
    Gruzzolo[2] = Euro::Interi(1);
    Sorpresa = 1;
    mondo.Esce(caso.r, 9);
    mondo.alla[Schermata::FormCitta] = [&] {
      const PaginaCitta pagina = CaricaCitta();
      EXPECT_TRUE(pagina.pacco);
      EXPECT_EQ(pagina.testo, "Per vedere la sorpresa clicca il pacco regalo.");
      EXPECT_EQ(Sorpresa, 0);
      EXPECT_EQ(ApriSorpresa(), caso.testo);
      EXPECT_EQ(SorpresaAperta, Vero);
    };
    eventi::cmdcitta_Click(5);
    EXPECT_EQ(statoTabellone.ContaLampeggi, 30);
    EXPECT_EQ(SorpresaAperta, Falso);
    EXPECT_EQ(RitornoCitta, Falso);
    const std::string cifra = TestoImporto(Euro::Interi(1 + caso.euro));
    EXPECT_NE(mondo.Da("~117").find("Scrivi 2 " + cifra + " Colori"), std::string::npos);
    EXPECT_TRUE(mondo.Da("~117").ends_with("=123 AttivaTurno 2"));
    EXPECT_EQ(mondo.Conta("FormBanconote"), 0);  // no turn was resolved
  }
}

TEST(Sorprese, UnaSorpresaPersa) {
  Mondo mondo;
  Giocatore = 2;
  Pos[2] = 5;
  Sorpresa = 1;
  CittaCliccata = 6;
  const PaginaCitta altra = CaricaCitta();
  EXPECT_FALSE(altra.pacco);
  EXPECT_EQ(altra.testo, LoadResString(406));
  EXPECT_EQ(Sorpresa, 0);
  CittaCliccata = 5;
  EXPECT_FALSE(CaricaCitta().pacco);

  // Left over from the other player, it waits even on the start, where nothing was drawn.
  Sorpresa = 1;
  Giocatore = 1;
  CittaCliccata = 0;
  EXPECT_TRUE(CaricaCitta().pacco);
}

}  // namespace
}  // namespace girovia
