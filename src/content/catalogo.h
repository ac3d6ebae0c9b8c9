// Every picture and sound that the game asks for: under which number or name, how large, and in
// which file beside the program it lies.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace girovia {

// Each kind counts its numbers by itself: bitmap 500 is a coin, jpeg 500 the map of Europe.
// Schermata is a picture that belongs to a screen and goes by a name.
enum class Tipo { Bitmap, Jpeg, Cursor, Icon, Schermata };

// A sprite is drawn on white and copied through its mask, a black silhouette on white.
enum class Ruolo { Plain, Sprite, Mask };

// The special prizes of the ceremony: number r is bitmap kPrimoPremio + 2 r, its mask the next.
inline constexpr int kPrimoPremio = 346;
inline constexpr int kNumeroPremi = 14;

struct VoceCatalogo {
  Tipo tipo = Tipo::Bitmap;
  int id = 0;               // 0 for a picture that goes by a name
  std::string_view nome{};  // empty for a picture that goes by a number
  int larghezza = 0;        // logical pixels; the file holds twice as many
  int altezza = 0;
  Ruolo ruolo = Ruolo::Plain;
  int socio = 0;                 // the sprite's mask, or the mask's sprite, by number...
  std::string_view nomeSocio{};  // ...or by name
  int caldoX = 0, caldoY = 0;    // a cursor's hot spot
  std::string_view estensione = "png";
};

std::span<const VoceCatalogo> Catalogo();

// Null if there is none.
const VoceCatalogo* TrovaVoce(Tipo tipo, int id);
const VoceCatalogo* TrovaSchermata(std::string_view nome);

// The partner of a sprite or a mask; null for a plain picture.
const VoceCatalogo* Socio(const VoceCatalogo& voce);

// Relative to the program's folder, with forward slashes.
std::string PercorsoFile(const VoceCatalogo& voce);

std::span<const std::string_view> NomiSuoni();
std::string PercorsoSuono(std::string_view nome);

}  // namespace girovia
