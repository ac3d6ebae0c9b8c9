// The files beside the program: none too many, none too few, and what happens when one is missing.
#include <gmock/gmock.h>

#include <cerrno>
#include <set>

#include "cartella.h"
#include "content/catalogo.h"
#include "platform/drawing/picture.h"
#include "registratore.h"

namespace girovia {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(Risorse, TheFolderHoldsThePicturesOfTheCatalogueAndNoOthers) {
  // The board's map as the largest screens want it, which no number or name stands for.
  std::set<std::string> attesi{"risorse/schermate/FormGirovia@4x.jpg"}, trovati;
  for (const VoceCatalogo& voce : Catalogo()) attesi.insert(PercorsoFile(voce));
  for (const auto& voce : fs::recursive_directory_iterator(fs::path(PROGRAMMA) / "risorse"))
    if (!voce.is_directory()) trovati.insert(voce.path().lexically_relative(PROGRAMMA).string());
  EXPECT_EQ(trovati, attesi);
}

TEST(Risorse, PhotographsAreWholeAtTwiceTheirSizeAndSmall) {
  for (const VoceCatalogo& voce : Catalogo()) {
    if (voce.tipo != Tipo::Jpeg) continue;
    const std::string file = std::string(PROGRAMMA) + "/" + PercorsoFile(voce);
    int errore = 0;
    const auto foto = platform::Picture::Load(file, errore);
    ASSERT_TRUE(foto) << file << ": " << errore;
    EXPECT_EQ(foto->pixelWidth(), 2 * voce.larghezza) << file;
    EXPECT_EQ(foto->pixelHeight(), 2 * voce.altezza) << file;
    EXPECT_LE(fs::file_size(file), 300u * 1024) << file;
  }
}

// Wherever a picture is asked for, at the start or deep in a turn, its failure is the program's
// last message.
TEST(Risorse, APictureThatCannotBeHadEndsTheGameWithAMessage) {
  const std::string inizio = "ritratti 124 130\n";
  const std::string turno = inizio + "clic cmdRitratto(1); dado 5 5\n";
  const std::string carta = inizio + "tira 1 5 5; esito 7; affermazione 0\n";
  const struct {
    const char* file;
    const char* contenuto;  // none: the file is missing; a bar: a pipe that nobody writes to
    int errore;
    const char* testo;
    std::string copione;
  } casi[] = {
      {"risorse/cursori/102.png", nullptr, ENOENT, "Impossibile trovare il file specificato.", ""},
      {"risorse/schermate/FormGirovia.bmp", "BM", EILSEQ,
       "Il file non contiene un'immagine valida.", inizio},
      {"risorse/bitmap/124.png", nullptr, ENOENT, "Impossibile trovare il file specificato.", ""},
      {"risorse/bitmap/204.png", "", EILSEQ, "Il file non contiene un'immagine valida.", turno},
      {"risorse/custom/410.jpg", "\xFF\xD8\xFF", EILSEQ, "Il file non contiene un'immagine valida.",
       carta},
      {"risorse/bitmap/124.png", "|", EILSEQ, "Il file non contiene un'immagine valida.", ""},
      {"risorse/custom", nullptr, ENOENT, "Impossibile trovare il file specificato.", carta},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.file);
    Cartella cartella;
    if (caso.contenuto && *caso.contenuto == '|') {
      cartella.Tubo(caso.file);
    } else if (caso.contenuto) {
      cartella.Riscrivi(caso.file, caso.contenuto);
    } else {
      cartella.Togli(caso.file);
    }
    testing::internal::CaptureStderr();
    const std::string verbale = Registra(caso.copione + "clic MsgBox.cmdOK\n", cartella.percorso());
    const std::string numero = std::to_string(caso.errore | 10000);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                HasSubstr("girovia.cLoadResPicture: errore " + numero + ": " + caso.testo));
    EXPECT_THAT(verbale, HasSubstr(std::string("LblText: ") + caso.testo + " / " +
                                   cartella.percorso() + "/" + caso.file));
    EXPECT_THAT(verbale, HasSubstr("Errore " + numero + " in girovia.cLoadResPicture"));
    EXPECT_THAT(verbale, HasSubstr("fine, codice 1\n"));
  }
}

TEST(Risorse, WithoutSoundsTheGameGoesOn) {
  Cartella cartella;
  cartella.Togli("Suoni/112.wav");
  cartella.Riscrivi("Suoni/123.wav", "RIFF");
  cartella.Tubo("Suoni/124.wav");
  cartella.Tubo("font/DejaVuSans.ttf");
  const std::string copione =
      "ritratti 124 130; tira 1 5 5; esito 7; affermazione 0; clic cmdRisposta(2)\n";
  EXPECT_THAT(Registra(copione, cartella.percorso()), HasSubstr("fine, codice 0"));
  cartella.Togli("Suoni");
  EXPECT_THAT(Registra(copione, cartella.percorso()), HasSubstr("fine, codice 0"));
}

}  // namespace
}  // namespace girovia
