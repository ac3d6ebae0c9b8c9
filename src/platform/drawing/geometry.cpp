#include "platform/drawing/geometry.h"

#include <algorithm>

#include "platform/drawing/pixel.h"

namespace platform {

DeviceRect Intersect(const DeviceRect& a, const DeviceRect& b) {
  DeviceRect r{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
               std::min(a.bottom, b.bottom)};
  return r.empty() ? DeviceRect{} : r;
}

DeviceRect Union(const DeviceRect& a, const DeviceRect& b) {
  if (a.empty()) return b.empty() ? DeviceRect{} : b;
  if (b.empty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

DeviceRect ToDevice(const Rect& r, int k) {
  return {RoundToPixel(r.left * k), RoundToPixel(r.top * k), RoundToPixel(r.right() * k),
          RoundToPixel(r.bottom() * k)};
}

}  // namespace platform
