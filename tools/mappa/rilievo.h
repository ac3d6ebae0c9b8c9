// Height of the land and distance from the shore, pixel by pixel.
#pragma once

#include <vector>

#include "dati.h"
#include "proiezione.h"
#include "tela.h"

namespace mappa {

struct Field {
  Field(int w, int h, float value = 0)
      : width(w),
        height(h),
        values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), value) {}
  float& at(int x, int y) { return values[index(x, y)]; }
  float at(int x, int y) const { return values[index(x, y)]; }
  float clamped(int x, int y) const;
  float smooth(double x, double y) const;  // between the grid points

  int width, height;
  std::vector<float> values;

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
  }
};

// For every pixel the distance, in pixels, to the nearest one with value 0.
Field distanceToZero(const Field& field);

// Metres above the sea for a picture of the canvas' size; the fine shapes are made by noise.
Field heights(const World& world, const Projection& projection, const Canvas& canvas);

// Light from the north-west on that land: 0 flat, below 0 in shadow, above in the light.
Field hillshade(const Field& heights, int scale);

// Smooth noise from -1 to 1, the same in every run.
double noise(double x, double y);

}  // namespace mappa
