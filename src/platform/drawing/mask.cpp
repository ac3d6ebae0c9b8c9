#include <algorithm>
#include <utility>

#include "platform/drawing/pixel.h"
#include "platform/drawing/scan.h"
#include "platform/drawing/surface.h"

namespace platform {

Mask::Mask(int width, int height, int scale) : scale_(scale) {
  MakeUsable(width, height, scale_);
  deviceWidth_ = width * scale_;
  deviceHeight_ = height * scale_;
  coverage_.assign(static_cast<std::size_t>(deviceWidth_) * static_cast<std::size_t>(deviceHeight_),
                   0);
}

void Mask::Fill(const Outline& outline) {
  outline.Scan(
      {0, 0, deviceWidth_, deviceHeight_}, [&](int y, int left, int right, const int* coverage) {
        std::uint8_t* to = coverage_.data() + static_cast<std::size_t>(y) * deviceWidth_ + left;
        for (int i = 0; i < right - left; ++i)
          to[i] = static_cast<std::uint8_t>((coverage[i] * 255 + 128) / 256);
      });
}

Mask Mask::RoundRect(int width, int height, int scale, const Rect& r, double ellipseWidth,
                     double ellipseHeight) {
  Mask mask(width, height, scale);
  const int k = mask.scale_;
  Outline outline;
  outline.AddRoundRect(r.left * k, r.top * k, r.right() * k, r.bottom() * k, ellipseWidth / 2 * k,
                       ellipseHeight / 2 * k);
  mask.Fill(outline);
  return mask;
}

Mask Mask::Polygon(int width, int height, int scale, const std::vector<Point>& points) {
  Mask mask(width, height, scale);
  std::vector<Point> placed;
  placed.reserve(points.size());
  for (const Point& p : points) placed.push_back({p.x * mask.scale_, p.y * mask.scale_});
  Outline outline;
  outline.AddPolygon(placed);
  mask.Fill(outline);
  return mask;
}

bool Mask::Contains(double x, double y) const {
  const double column = std::floor(ClampCoordinate(x * scale_));
  const double line = std::floor(ClampCoordinate(y * scale_));
  if (column < 0 || line < 0 || column >= deviceWidth_ || line >= deviceHeight_) return false;
  return row(static_cast<int>(line))[static_cast<int>(column)] >= 128;
}

void CompositeMasked(Surface& destination, int x, int y, const Surface& source, const Mask& mask,
                     const DeviceRect& area) {
  if (source.scale() != destination.scale()) return;
  // Far places are brought near first, so that no sum below can overflow.
  const int far = static_cast<int>(kFarAway);
  const int left = std::clamp(area.left, -far, far);
  const int top = std::clamp(area.top, -far, far);
  const int shiftX = std::clamp(x, -far, far) - left;
  const int shiftY = std::clamp(y, -far, far) - top;
  DeviceRect r = Intersect(area, source.deviceBounds());
  r = Intersect(r, {0, 0, mask.deviceWidth(), mask.deviceHeight()});
  const DeviceRect& clip = destination.clip();
  r = Intersect(r,
                {clip.left - shiftX, clip.top - shiftY, clip.right - shiftX, clip.bottom - shiftY});
  for (int line = r.top; line < r.bottom; ++line) {
    const std::uint8_t* cover = mask.row(line);
    const std::uint32_t* from = source.row(line);
    std::uint32_t* to = destination.row(line + shiftY) + shiftX;
    for (int i = r.left; i < r.right; ++i) {
      if (cover[i] == 255)
        to[i] = from[i];
      else if (cover[i] != 0)
        to[i] = Blend(to[i], from[i], Widen(cover[i]));
    }
  }
}

}  // namespace platform
