#include "perspective.h"

#include <algorithm>
#include <cmath>

namespace dipingi {
namespace {

// Where a point of the result lies in the drawing, both from 0 to 1, and how much light it gets.
struct Source {
  double u = 0, v = 0, light = 1;
};

struct Premultiplied {
  double channel[4] = {};
};

Premultiplied Sample(const Image& image, double u, double v) {
  Premultiplied sum;
  if (u < 0 || u > 1 || v < 0 || v > 1) return sum;
  const double x = std::clamp(u * image.width - 0.5, 0.0, image.width - 1.0);
  const double y = std::clamp(v * image.height - 0.5, 0.0, image.height - 1.0);
  const int x0 = static_cast<int>(x), y0 = static_cast<int>(y);
  for (int corner = 0; corner < 4; ++corner) {
    const int dx = corner & 1, dy = corner >> 1;
    const double weight = (dx ? x - x0 : 1 - (x - x0)) * (dy ? y - y0 : 1 - (y - y0));
    if (weight == 0) continue;
    const std::uint8_t* pixel = image.at(x0 + dx, y0 + dy);
    const double alpha = weight * pixel[3] / 255.0;
    for (int i = 0; i < 3; ++i) sum.channel[i] += pixel[i] * alpha;
    sum.channel[3] += alpha;
  }
  return sum;
}

// Each pixel is the mean of a grid of samples, the finer the more the drawing is narrowed, so that
// nothing sparkles.
template <typename Place>
Image Warp(const Image& image, int width, int height, const Place& source) {
  const int columns = image.width / width + 2, rows = image.height / height + 2;
  Image out(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      Premultiplied sum;
      for (int i = 0; i < columns * rows; ++i) {
        const Source from = source((x + (i % columns + 0.5) / columns) / width,
                                   (y + (i / columns + 0.5) / rows) / height);
        const Premultiplied sample = Sample(image, from.u, from.v);
        for (int c = 0; c < 3; ++c) sum.channel[c] += sample.channel[c] * from.light;
        sum.channel[3] += sample.channel[3];
      }
      if (sum.channel[3] == 0) continue;
      std::uint8_t* pixel = out.at(x, y);
      for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>(
            std::clamp(std::lround(sum.channel[c] / sum.channel[3]), 0l, 255l));
      pixel[3] = static_cast<std::uint8_t>(std::lround(sum.channel[3] / (columns * rows) * 255));
    }
  }
  return out;
}

}  // namespace

Image TurnCard(const Image& flat, int width) {
  if (width >= flat.width) return flat;
  constexpr double kEye = 5;  // distance of the eye, in half widths of the card
  // x of the card's point u (-1 to 1) after a turn by `angle`, the near edge being at its true
  // size.
  const auto place = [](double u, double angle) {
    return u * std::cos(angle) * (kEye - std::sin(angle)) / (kEye - u * std::sin(angle));
  };
  double flat_angle = 0, steep_angle = 1.57;
  for (int i = 0; i < 50; ++i) {
    const double angle = (flat_angle + steep_angle) / 2;
    const double seen = (place(1, angle) - place(-1, angle)) / 2;
    (seen * flat.width > width ? flat_angle : steep_angle) = angle;
  }
  const double angle = flat_angle;
  const double left = place(-1, angle), right = place(1, angle);
  const double light = 1 - 0.3 * (1 - std::cos(angle));
  return Warp(flat, width, flat.height, [&](double x, double y) {
    const double seen = left + x * (right - left);
    const double u =
        seen * kEye / (std::cos(angle) * (kEye - std::sin(angle)) + seen * std::sin(angle));
    const double size = (kEye - std::sin(angle)) / (kEye - u * std::sin(angle));
    return Source{(u + 1) / 2, 0.5 + (y - 0.5) / size, light};
  });
}

Image TiltDie(const Image& faces, int width, int height) {
  constexpr double kFarSize = 98.0 / 120;  // of the outer edges, against the near one
  constexpr double kDepth = 1 / kFarSize - 1;
  return Warp(faces, width, height, [](double x, double y) {
    const double side = 2 * x - 1, out = std::abs(side);
    const double along = out / (1 + kDepth * (1 - out));
    const double size = kFarSize + (1 - kFarSize) * (1 - std::pow(out, 1.8));
    const double ridge = std::exp(-std::pow(out / 0.09, 2));
    const double light =
        (side < 0 ? 1.0 : 0.84) + ridge * (side < 0 ? 0.05 : 0.16) - 0.10 * std::pow(out, 3);
    return Source{(1 + (side < 0 ? -along : along)) / 2, 0.5 + (y - 0.5) / size, light};
  });
}

}  // namespace dipingi
