#include "content/atlante.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>

namespace girovia {
namespace {

// clang-format off
constexpr std::array<Casella, kNumeroCaselle> kCaselle{{
    {"La Valletta", 432, 572, 388, 586, true, '-'},  // 0
    {"Palermo", 416, 520, 403.5, 508, true, 'A'},  // 1
    {"Napoli", 432, 456, 447, 457, true, 'B'},  // 2
    {"Roma", 392, 432, 363, 433, true, 'A'},  // 3
    {"Firenze", 376, 400, 391, 401, true, 'A'},  // 4
    {"Bologna", 364, 368, 379, 369, true, 'A'},  // 5
    {"Milano", 328, 348, 343, 349, true, 'A'},  // 6
    {"Zurigo", 328, 304, 343, 305, false, 'D'},  // 7
    {"Stoccarda", 328, 264, 291, 252, true, 'D'},  // 8
    {"Strasburgo", 296, 272, 244, 273, true, 'B'},  // 9
    {"Berna", 296, 316, 266, 317, false, 'D'},  // 10
    {"Lione", 256, 344, 228, 345, true, 'B'},  // 11
    {"Torino", 304, 360, 316, 372, true, 'A'},  // 12
    {"Nizza", 296, 388, 311, 389, true, 'B'},  // 13
    {"Marsiglia", 264, 392, 264, 405, true, 'B'},  // 14
    {"Barcellona", 208, 440, 223, 441, true, 'B'},  // 15
    {"Saragozza", 160, 440, 142, 428, true, 'E'},  // 16
    {"Madrid", 112, 464, 78, 465, true, 'B'},  // 17
    {"Valencia", 168, 480, 183, 481, true, 'A'},  // 18
    {"Murcia", 144, 520, 159, 521, true, 'B'},  // 19
    {"Màlaga", 96, 552, 65, 564, true, 'B'},  // 20
    {"Siviglia", 64, 528, 33, 540, true, 'A'},  // 21
    {"Lisbona", 8, 504, 23, 505, true, 'A'},  // 22
    {"Porto", 16, 448, 31, 449, true, 'B'},  // 23
    {"Bilbao", 128, 400, 96, 401, true, 'B'},  // 24
    {"Tolosa", 192, 384, 207, 385, true, 'B'},  // 25
    {"Bordeaux", 152, 352, 104, 353, true, 'A'},  // 26
    {"Nantes", 136, 304, 102, 305, true, 'A'},  // 27
    {"Parigi", 200, 272, 172, 273, true, 'B'},  // 28
    {"Lilla", 216, 232, 192, 233, true, 'B'},  // 29
    {"Londra", 176, 200, 191, 201, true, 'A'},  // 30
    {"Birmingham", 136, 196, 80, 197, true, 'A'},  // 31
    {"Manchester", 125, 160, 104, 174, true, 'A'},  // 32
    {"Dublino", 64, 160, 26, 161, true, 'A'},  // 33
    {"Belfast", 72, 128, 38, 129, true, 'B'},  // 34
    {"Glasgow", 96, 104, 52, 105, true, 'B'},  // 35
    {"Reykyavik", 0, 0, 15, 1, false, 'G'},  // 36
    {"Edimburgo", 120, 96, 135, 97, true, 'F'},  // 37
    {"Leeds", 136, 144, 148, 132, true, 'C'},  // 38
    {"Sheffield", 152, 160, 164, 148, true, 'C'},  // 39
    {"Rotterdam", 238, 196, 253, 197, true, 'C'},  // 40
    {"Amsterdam", 264, 174, 225, 162, true, 'B'},  // 41
    {"Brema", 304, 176, 304, 189, true, 'F'},  // 42
    {"Amburgo", 328, 160, 299, 148, true, 'B'},  // 43
    {"Copenaghen", 364, 112, 379, 113, true, 'B'},  // 44
    {"Goteborg", 360, 72, 375, 73, true, 'A'},  // 45
    {"Oslo", 328, 12, 304, 13, false, 'A'},  // 46
    {"Stoccolma", 448, 32, 463, 33, true, 'C'},  // 47
    {"Kaliningrad", 512, 128, 458, 129, false, 'C'},  // 48
    {"Kaunas", 560, 120, 550, 108, true, 'B'},  // 49
    {"Riga", 560, 80, 575, 81, true, 'D'},  // 50
    {"Tallinn", 544, 36, 559, 37, true, 'A'},  // 51
    {"Helsinki", 552, 8, 512, 9, true, 'B'},  // 52
    {"S.Pietroburgo", 640, 8, 655, 9, false, 'E'},  // 53
    {"Mosca", 752, 80, 718, 81, false, 'C'},  // 54
    {"Smolensk", 688, 120, 703, 121, false, 'B'},  // 55
    {"Minsk", 600, 160, 593, 174, false, 'B'},  // 56
    {"Vilnius", 576, 136, 591, 137, true, 'C'},  // 57
    {"Varsavia", 520, 176, 520, 189, true, 'B'},  // 58
    {"Lòdz", 488, 184, 484.5, 172, true, 'B'},  // 59
    {"Breslavia", 456, 208, 441.5, 222, true, 'B'},  // 60
    {"Poznàn", 448, 176, 437.5, 164, true, 'C'},  // 61
    {"Berlino", 384, 176, 375, 164, true, 'E'},  // 62
    {"Lipsia", 368, 200, 337, 201, true, 'B'},  // 63
    {"Dresda", 400, 208, 371, 220, true, 'A'},  // 64
    {"Praga", 416, 240, 431, 241, true, 'A'},  // 65
    {"Bratislava", 472, 276, 487, 277, true, 'A'},  // 66
    {"Cracovia", 512, 240, 498, 228, true, 'B'},  // 67
    {"Leopoli", 592, 232, 582, 220, false, 'B'},  // 68
    {"Kiev", 688, 232, 684, 220, false, 'E'},  // 69
    {"Kharkov", 784, 248, 757, 236, false, 'C'},  // 70
    {"Dniepropetrovsk", 752, 272, 672, 273, false, 'B'},  // 71
    {"Zaporizhia", 768, 296, 716, 297, false, 'A'},  // 72
    {"Odessa", 700, 328, 700, 341, false, 'B'},  // 73
    {"Chisinau", 672, 312, 630, 313, false, 'C'},  // 74
    {"Bucarest", 632, 360, 588, 361, true, 'B'},  // 75
    {"Costanza", 672, 368, 628, 380, true, 'A'},  // 76
    {"Tbilisi", 784, 384, 753, 385, false, 'A'},  // 77
    {"Jerevan", 784, 416, 742, 417, false, 'C'},  // 78
    {"Baku", 784, 448, 756, 449, false, 'C'},  // 79
    {"Nicosìa", 784, 584, 747, 585, true, 'C'},  // 80
    {"Istanbul", 680, 448, 668, 462, false, 'A'},  // 81
    {"Filippopoli", 624, 424, 639, 425, true, 'A'},  // 82
    {"Sofia", 592, 408, 587, 396, true, 'A'},  // 83
    {"Skopje", 560, 432, 575, 433, false, 'B'},  // 84
    {"Salonicco", 576, 464, 591, 465, true, 'A'},  // 85
    {"Atene", 592, 524, 607, 525, true, 'A'},  // 86
    {"Tirana", 520, 448, 488, 449, false, 'A'},  // 87
    {"Pristina", 544, 416, 534, 404, false, 'B'},  // 88
    {"Podgorica", 512, 416, 462, 417, false, 'A'},  // 89
    {"Sarajevo", 488, 384, 444, 385, false, 'A'},  // 90
    {"Belgrado", 528, 360, 514, 348, false, 'B'},  // 91
    {"Budapest", 496, 304, 511, 305, true, 'A'},  // 92
    {"Zagabria", 456, 336, 442, 350, false, 'H'},  // 93
    {"Lubiana", 424, 336, 384, 337, true, 'A'},  // 94
    {"Vienna", 448, 280, 414, 292, true, 'B'},  // 95
    {"Monaco", 376, 280, 376, 269, true, 'A'},  // 96
    {"Norimberga", 360, 248, 340, 236, true, 'A'},  // 97
    {"Colonia", 288, 216, 303, 217, true, 'A'},  // 98
    {"Bruxelles", 244, 224, 244, 237, true, 'A'},  // 99
}};
// clang-format on

struct Scarto {
  int x, y;
};

// How far the ends of a segment's two lines stand from the corners of their squares, by letter.
struct Forma {
  Scarto inizio[2], fine[2];  // for player 1 and player 2
};

constexpr Forma kForme[] = {
    {{{4, 12}, {12, 4}}, {{4, 12}, {12, 4}}},  // A
    {{{4, 4}, {12, 12}}, {{4, 4}, {12, 12}}},  // B
    {{{12, 4}, {4, 12}}, {{12, 4}, {4, 12}}},  // C
    {{{4, 12}, {12, 12}}, {{4, 4}, {12, 4}}},  // D
    {{{12, 4}, {12, 12}}, {{4, 4}, {4, 12}}},  // E
    {{{12, 4}, {9, 12}}, {{12, 4}, {9, 12}}},  // F
    {{{4, 12}, {12, 9}}, {{4, 12}, {12, 9}}},  // G
    {{{12, 12}, {4, 4}}, {{12, 12}, {4, 4}}},  // H
};

// The dark corners and the dark band of the trial map leave these squares without a button.
constexpr int kSenzaBottone[] = {0, 20, 36, 54, 77, 78, 79, 80};
constexpr int kRosse[] = {13, 19, 27, 39, 49, 63};

template <std::size_t N>
bool Contiene(const int (&lista)[N], int i) {
  return std::find(std::begin(lista), std::end(lista), i) != std::end(lista);
}

}  // namespace

const Casella& casella(int i) { return kCaselle.at(static_cast<std::size_t>(i)); }

std::string_view NomeCasella(int i) {
  if (i < 0 || i >= kNumeroCaselle) return {};
  return casella(i).nome;
}

Tratto LineaTratto(int giocatore, int i) {
  if (giocatore < 1 || giocatore > 2 || i < 1) throw std::out_of_range("no such segment");
  const Casella& da = casella(i - 1);
  const Casella& a = casella(i);
  const Forma& forma = kForme[a.tratto - 'A'];
  const Scarto& inizio = forma.inizio[giocatore - 1];
  const Scarto& fine = forma.fine[giocatore - 1];
  return {da.x + inizio.x, da.y + inizio.y, a.x + fine.x, a.y + fine.y};
}

Tratto LineaBase(int i) {
  const Casella& da = casella(i - 1);
  const Casella& a = casella(i);
  return {da.x + 8, da.y + 8, a.x + 8, a.y + 8};
}

PostoMappa PostoSuMappa(MappaProva mappa, int i) {
  const Casella& c = casella(i);
  PostoMappa posto{c.x, c.y, !Contiene(kSenzaBottone, i), Contiene(kRosse, i)};
  switch (i) {
    case 13:
      if (mappa == MappaProva::Capitali) posto.x = 288;
      break;
    case 26:
      posto.y = 344;
      break;
    case 44:
      posto.x = 368;
      break;
    case 85:
      posto.x = 580;
      posto.y = 468;
      break;
    default:
      break;
  }
  return posto;
}

}  // namespace girovia
