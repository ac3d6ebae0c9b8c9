// Plain measures that every unit of the platform layer shares.
#pragma once

#include <cstdint>

namespace platform {

// 0xBBGGRR, the order in which the game's content writes its colours.
using Color = std::uint32_t;

namespace colors {
inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kRed = 0x0000FF;
inline constexpr Color kGreen = 0x00FF00;
inline constexpr Color kBlue = 0xFF0000;
inline constexpr Color kYellow = 0x00FFFF;
inline constexpr Color kNavy = 0x800000;
inline constexpr Color kButtonFace = 0xC8D0D4;
}  // namespace colors

// Logical pixels. Half pixels are allowed: labels of odd width are centred on them.
struct Point {
  double x = 0;
  double y = 0;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double right() const { return left + width; }
  double bottom() const { return top + height; }
  bool contains(double x, double y) const {
    return x >= left && y >= top && x < right() && y < bottom();
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

// Device pixels: right and bottom are exclusive.
struct DeviceRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool empty() const { return right <= left || bottom <= top; }
  friend bool operator==(const DeviceRect&, const DeviceRect&) = default;
};

DeviceRect Intersect(const DeviceRect& a, const DeviceRect& b);
DeviceRect Union(const DeviceRect& a, const DeviceRect& b);  // an empty one counts as nothing

// The device pixels that a logical rectangle touches at scale k. Edges are rounded to the nearest
// device pixel, so that rectangles that meet in logical pixels meet on the device too.
DeviceRect ToDevice(const Rect& r, int k);

}  // namespace platform
