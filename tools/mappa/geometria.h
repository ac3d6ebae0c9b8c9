#pragma once

#include <vector>

namespace mappa {

struct LonLat {
  double lon = 0;
  double lat = 0;
};

struct Point {
  double x = 0;
  double y = 0;
};

struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

using Line = std::vector<Point>;

}  // namespace mappa
