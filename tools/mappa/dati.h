// The facts behind the maps, as read from art/mappa.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "geometria.h"

namespace mappa {

// Carries one sentence for the person who runs the tool.
struct DataError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum class ArcKind { coast, border, inner };

struct Arc {
  ArcKind kind = ArcKind::coast;
  std::vector<LonLat> points;
};

struct ArcUse {
  std::size_t arc = 0;
  bool reversed = false;
};

using Ring = std::vector<ArcUse>;

struct Country {
  std::string name;
  int tint = 0;  // 0: outside the game
  std::vector<Ring> rings;
};

struct City {
  std::string name;
  LonLat place;
  Point square;
  bool pinned = false;
};

struct River {
  int weight = 1;
  std::vector<LonLat> course;
};

struct Upland {
  bool ridge = true;  // else a smooth plateau
  double metres = 0;
  double halfWidthKm = 0;
  std::vector<LonLat> crest;
};

struct World {
  std::vector<Arc> arcs;
  std::vector<Country> countries;
  std::vector<City> cities;
  std::vector<River> rivers;
  std::vector<std::vector<LonLat>> lakes;
  std::vector<Upland> uplands;
};

// Throws DataError.
World readWorld(const std::filesystem::path& folder);

}  // namespace mappa
