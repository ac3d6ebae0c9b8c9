#include "content/catalogo.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace girovia {
namespace {

constexpr VoceCatalogo Bitmap(int id, int larghezza, int altezza) {
  return {.tipo = Tipo::Bitmap, .id = id, .larghezza = larghezza, .altezza = altezza};
}

constexpr VoceCatalogo Doppia(int id, int larghezza, int altezza, Ruolo ruolo, int socio) {
  VoceCatalogo voce = Bitmap(id, larghezza, altezza);
  voce.ruolo = ruolo;
  voce.socio = socio;
  return voce;
}

constexpr VoceCatalogo Schermo(std::string_view nome, int larghezza, int altezza,
                               std::string_view estensione = "png") {
  return {.tipo = Tipo::Schermata,
          .nome = nome,
          .larghezza = larghezza,
          .altezza = altezza,
          .estensione = estensione};
}

constexpr VoceCatalogo Doppia(std::string_view nome, int larghezza, int altezza, Ruolo ruolo,
                              std::string_view socio) {
  VoceCatalogo voce = Schermo(nome, larghezza, altezza);
  voce.ruolo = ruolo;
  voce.nomeSocio = socio;
  return voce;
}

constexpr VoceCatalogo Cursore(int id, int caldoX, int caldoY) {
  return {.tipo = Tipo::Cursor,
          .id = id,
          .larghezza = 32,
          .altezza = 32,
          .caldoX = caldoX,
          .caldoY = caldoY};
}

constexpr VoceCatalogo kSingole[] = {
    Doppia(101, 174, 63, Ruolo::Sprite, 102),  // the logo
    Doppia(102, 174, 63, Ruolo::Mask, 101),
    Bitmap(103, 229, 600),                      // the credits
    Bitmap(104, 13, 13),                        // the star
    Doppia(140, 160, 143, Ruolo::Sprite, 141),  // the wreath
    Doppia(141, 160, 143, Ruolo::Mask, 140),
    Bitmap(201, 153, 84),                       // 50 euro
    Bitmap(202, 174, 88),                       // 500 euro
    Bitmap(203, 146, 78),                       // 20 euro
    Bitmap(204, 138, 73),                       // 10 euro
    Bitmap(205, 131, 67),                       // 5 euro
    Bitmap(206, 100, 100),                      // 2 euro
    Bitmap(207, 100, 100),                      // 1 euro
    Bitmap(208, 100, 100),                      // 50 cents
    Bitmap(209, 100, 100),                      // 20 cents
    Bitmap(210, 100, 100),                      // 10 cents
    Bitmap(211, 100, 100),                      // 5 cents
    Bitmap(212, 100, 100),                      // 2 cents
    Bitmap(213, 100, 100),                      // 1 cent
    Doppia(340, 242, 246, Ruolo::Sprite, 341),  // the trophy
    Doppia(341, 242, 246, Ruolo::Mask, 340),
    Doppia(344, 381, 286, Ruolo::Sprite, 345),  // the authors' congratulations
    Doppia(345, 381, 286, Ruolo::Mask, 344),
    Bitmap(399, 50, 50),
    // The coins of the falling prize, in the ratio of the real ones.
    Bitmap(500, 100, 100),
    Bitmap(501, 92, 92),
    Bitmap(502, 95, 95),
    Bitmap(503, 88, 88),
    Bitmap(504, 78, 78),
    Bitmap(505, 84, 84),
    Bitmap(506, 74, 74),
    Bitmap(507, 64, 64),
    Cursore(101, 12, 1),
    Cursore(102, 16, 14),
    {.tipo = Tipo::Icon, .id = 1, .larghezza = 32, .altezza = 32},
    Schermo("Splash", 800, 600, "jpg"),
    Schermo("Splash.picTitoli", 229, 155),
    Schermo("Splash.CmdOK", 50, 50),
    Schermo("CmdHelp", 50, 50),
    Schermo("cmdExit", 50, 50),
    Schermo("FormGirovia", 800, 600, "bmp"),
    Schermo("FormGirovia.icon", 32, 32),
    Schermo("FormGirovia.PicGiocatore", 56, 56),
    Schermo("FormGirovia.ImgFreccia", 32, 32),
    Schermo("FormCitta.CmdSorpresa", 50, 50),
    Schermo("FormImprevisti", 370, 134),
    Schermo("FormImprevisti.ImgAereo", 32, 32),
    Schermo("FormMessaggi.cmdRisposta1", 50, 50),
    Schermo("FormMessaggi.cmdRisposta2", 50, 50),
    Schermo("FormPremiazione.cmdRisposta6", 50, 50),
    Doppia("PicLogoBianco", 174, 63, Ruolo::Sprite, "PicLogoNero"),
    Doppia("PicLogoNero", 174, 63, Ruolo::Mask, "PicLogoBianco"),
    Schermo("FormProvaCitta", 800, 600, "jpg"),
    Schermo("FormProvaOrdinamento", 800, 600, "jpg"),
    // The card turning over, from its edge to its full width. One mask serves both faces.
    Doppia("FormRotazioneCarta.Avanti0", 59, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero0"),
    Doppia("FormRotazioneCarta.Avanti1", 118, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero1"),
    Doppia("FormRotazioneCarta.Avanti2", 177, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero2"),
    Doppia("FormRotazioneCarta.Avanti3", 236, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero3"),
    Doppia("FormRotazioneCarta.Avanti4", 295, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero4"),
    Doppia("FormRotazioneCarta.Avanti5", 354, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero5"),
    Doppia("FormRotazioneCarta.Avanti6", 413, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero6"),
    Doppia("FormRotazioneCarta.Avanti7", 472, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero7"),
    Doppia("FormRotazioneCarta.Retro0", 59, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero0"),
    Doppia("FormRotazioneCarta.Retro1", 118, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero1"),
    Doppia("FormRotazioneCarta.Retro2", 177, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero2"),
    Doppia("FormRotazioneCarta.Retro3", 236, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero3"),
    Doppia("FormRotazioneCarta.Retro4", 295, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero4"),
    Doppia("FormRotazioneCarta.Retro5", 354, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero5"),
    Doppia("FormRotazioneCarta.Retro6", 413, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero6"),
    Doppia("FormRotazioneCarta.Retro7", 472, 510, Ruolo::Sprite, "FormRotazioneCarta.Nero7"),
    Doppia("FormRotazioneCarta.Nero0", 59, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti0"),
    Doppia("FormRotazioneCarta.Nero1", 118, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti1"),
    Doppia("FormRotazioneCarta.Nero2", 177, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti2"),
    Doppia("FormRotazioneCarta.Nero3", 236, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti3"),
    Doppia("FormRotazioneCarta.Nero4", 295, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti4"),
    Doppia("FormRotazioneCarta.Nero5", 354, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti5"),
    Doppia("FormRotazioneCarta.Nero6", 413, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti6"),
    Doppia("FormRotazioneCarta.Nero7", 472, 510, Ruolo::Mask, "FormRotazioneCarta.Avanti7"),
    Doppia("Dadi.DadoBianco0", 98, 120, Ruolo::Sprite, "Dadi.DadoNero0"),
    Doppia("Dadi.DadoBianco1", 98, 120, Ruolo::Sprite, "Dadi.DadoNero1"),
    Doppia("Dadi.DadoBianco2", 98, 120, Ruolo::Sprite, "Dadi.DadoNero2"),
    Doppia("Dadi.DadoBianco3", 98, 120, Ruolo::Sprite, "Dadi.DadoNero3"),
    Doppia("Dadi.DadoBianco4", 98, 120, Ruolo::Sprite, "Dadi.DadoNero4"),
    Doppia("Dadi.DadoBianco5", 98, 120, Ruolo::Sprite, "Dadi.DadoNero5"),
    Doppia("Dadi.DadoBianco6", 98, 120, Ruolo::Sprite, "Dadi.DadoNero6"),
    Doppia("Dadi.DadoBianco7", 98, 120, Ruolo::Sprite, "Dadi.DadoNero7"),
    Doppia("Dadi.DadoBianco8", 98, 120, Ruolo::Sprite, "Dadi.DadoNero8"),
    Doppia("Dadi.DadoBianco9", 98, 120, Ruolo::Sprite, "Dadi.DadoNero9"),
    Doppia("Dadi.DadoBianco10", 98, 120, Ruolo::Sprite, "Dadi.DadoNero10"),
    Doppia("Dadi.DadoBianco11", 98, 120, Ruolo::Sprite, "Dadi.DadoNero11"),
    Doppia("Dadi.DadoBianco12", 98, 120, Ruolo::Sprite, "Dadi.DadoNero12"),
    Doppia("Dadi.DadoNero0", 98, 120, Ruolo::Mask, "Dadi.DadoBianco0"),
    Doppia("Dadi.DadoNero1", 98, 120, Ruolo::Mask, "Dadi.DadoBianco1"),
    Doppia("Dadi.DadoNero2", 98, 120, Ruolo::Mask, "Dadi.DadoBianco2"),
    Doppia("Dadi.DadoNero3", 98, 120, Ruolo::Mask, "Dadi.DadoBianco3"),
    Doppia("Dadi.DadoNero4", 98, 120, Ruolo::Mask, "Dadi.DadoBianco4"),
    Doppia("Dadi.DadoNero5", 98, 120, Ruolo::Mask, "Dadi.DadoBianco5"),
    Doppia("Dadi.DadoNero6", 98, 120, Ruolo::Mask, "Dadi.DadoBianco6"),
    Doppia("Dadi.DadoNero7", 98, 120, Ruolo::Mask, "Dadi.DadoBianco7"),
    Doppia("Dadi.DadoNero8", 98, 120, Ruolo::Mask, "Dadi.DadoBianco8"),
    Doppia("Dadi.DadoNero9", 98, 120, Ruolo::Mask, "Dadi.DadoBianco9"),
    Doppia("Dadi.DadoNero10", 98, 120, Ruolo::Mask, "Dadi.DadoBianco10"),
    Doppia("Dadi.DadoNero11", 98, 120, Ruolo::Mask, "Dadi.DadoBianco11"),
    Doppia("Dadi.DadoNero12", 98, 120, Ruolo::Mask, "Dadi.DadoBianco12"),
};

constexpr int kPrimoRitratto = 124;
constexpr int kUltimoRitratto = 135;
constexpr int kUltimoPremio = kPrimoPremio + 2 * (kNumeroPremi - 1);
constexpr int kPrimaFoto = 400;
constexpr int kUltimaFoto = 500;  // the last one is the map of Europe

constexpr std::size_t kNumeroVoci = std::size(kSingole) + (kUltimoRitratto - kPrimoRitratto + 1) +
                                    (kUltimoPremio - kPrimoPremio + 2) +
                                    (kUltimaFoto - kPrimaFoto + 1);

consteval std::array<VoceCatalogo, kNumeroVoci> Componi() {
  std::array<VoceCatalogo, kNumeroVoci> voci{};
  std::size_t n = 0;
  for (const VoceCatalogo& voce : kSingole) voci.at(n++) = voce;
  for (int id = kPrimoRitratto; id <= kUltimoRitratto; ++id) voci.at(n++) = Bitmap(id, 56, 56);
  for (int id = kPrimoPremio; id <= kUltimoPremio; id += 2) {
    voci.at(n++) = Doppia(id, 150, 150, Ruolo::Sprite, id + 1);
    voci.at(n++) = Doppia(id + 1, 150, 150, Ruolo::Mask, id);
  }
  for (int id = kPrimaFoto; id <= kUltimaFoto; ++id) {
    // Two photographs are a little smaller than the others and are shown so.
    voci.at(n++) = {.tipo = Tipo::Jpeg,
                    .id = id,
                    .larghezza = id == 467 ? 479 : 480,
                    .altezza = id == 472 ? 356 : 360,
                    .estensione = "jpg"};
  }
  return voci;
}

constexpr std::array<VoceCatalogo, kNumeroVoci> kCatalogo = Componi();

constexpr std::string_view kSuoni[] = {"101", "102", "103", "104", "105", "106", "110", "112",
                                       "116", "117", "118", "119", "120", "122", "123", "124",
                                       "212", "214", "215", "230", "231", "inno"};

constexpr std::string_view Cartella(Tipo tipo) {
  switch (tipo) {
    case Tipo::Bitmap:
      return "bitmap";
    case Tipo::Jpeg:
      return "custom";
    case Tipo::Cursor:
      return "cursori";
    case Tipo::Icon:
      return "icona";
    case Tipo::Schermata:
      return "schermate";
  }
  return {};
}

const VoceCatalogo* Trova(Tipo tipo, int id, std::string_view nome) {
  const auto voce = std::find_if(kCatalogo.begin(), kCatalogo.end(), [&](const VoceCatalogo& v) {
    return v.tipo == tipo && v.id == id && v.nome == nome;
  });
  return voce == kCatalogo.end() ? nullptr : &*voce;
}

}  // namespace

std::span<const VoceCatalogo> Catalogo() { return kCatalogo; }

const VoceCatalogo* TrovaVoce(Tipo tipo, int id) { return Trova(tipo, id, {}); }

const VoceCatalogo* TrovaSchermata(std::string_view nome) {
  return Trova(Tipo::Schermata, 0, nome);
}

const VoceCatalogo* Socio(const VoceCatalogo& voce) {
  return voce.ruolo == Ruolo::Plain ? nullptr : Trova(voce.tipo, voce.socio, voce.nomeSocio);
}

std::string PercorsoFile(const VoceCatalogo& voce) {
  std::string percorso = "risorse/";
  percorso += Cartella(voce.tipo);
  percorso += '/';
  percorso += voce.tipo == Tipo::Schermata ? std::string(voce.nome) : std::to_string(voce.id);
  percorso += '.';
  percorso += voce.estensione;
  return percorso;
}

std::span<const std::string_view> NomiSuoni() { return kSuoni; }

std::string PercorsoSuono(std::string_view nome) { return "Suoni/" + std::string(nome) + ".wav"; }

}  // namespace girovia
