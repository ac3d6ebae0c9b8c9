#include "platform/drawing/surface.h"

#include <algorithm>
#include <cstring>

#include "platform/drawing/pages.h"
#include "platform/drawing/pixel.h"
#include "platform/drawing/resample.h"

namespace platform {
namespace {

constexpr int kLargestStretch = 16384;

// Copies one row; the rows may overlap.
void CopyRow(std::uint32_t* to, const std::uint32_t* from, int count, RasterOp op) {
  switch (op) {
    case RasterOp::SrcCopy:
      std::memmove(to, from, static_cast<std::size_t>(count) * sizeof *to);
      break;
    case RasterOp::SrcAnd:
      for (int i = 0; i < count; ++i) to[i] &= from[i];
      break;
    case RasterOp::MergePaint:
      for (int i = 0; i < count; ++i) to[i] |= ~from[i] & 0xFFFFFF;
      break;
  }
}

}  // namespace

Surface::Surface(int width, int height, int scale, Color back)
    : width_(width), height_(height), scale_(scale) {
  MakeUsable(width_, height_, scale_);
  deviceWidth_ = width_ * scale_;
  deviceHeight_ = height_ * scale_;
  clip_ = deviceBounds();
  const auto count =
      static_cast<std::size_t>(deviceWidth()) * static_cast<std::size_t>(deviceHeight());
  ReservePixels(pixels_, count);
  pixels_.assign(count, SwapRedBlue(back));
}

Surface::Surface(int width, int height, int scale, std::vector<std::uint32_t> pixels)
    : Surface(0, 0, scale) {
  if (width <= 0 || height <= 0 ||
      pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                           static_cast<std::size_t>(scale_) * static_cast<std::size_t>(scale_))
    return;
  width_ = width;
  height_ = height;
  deviceWidth_ = width_ * scale_;
  deviceHeight_ = height_ * scale_;
  clip_ = deviceBounds();
  pixels_ = std::move(pixels);
}

Surface Surface::OfDevicePixels(int deviceWidth, int deviceHeight, int scale, Color back) {
  Surface out((deviceWidth + scale - 1) / scale, (deviceHeight + scale - 1) / scale, scale, back);
  out.deviceWidth_ = std::min(deviceWidth, out.deviceWidth_);
  out.deviceHeight_ = std::min(deviceHeight, out.deviceHeight_);
  out.clip_ = out.deviceBounds();
  return out;
}

Color Surface::PixelAt(double x, double y) const {
  const double column = std::floor((std::floor(ClampCoordinate(x)) + 0.5) * scale_);
  const double line = std::floor((std::floor(ClampCoordinate(y)) + 0.5) * scale_);
  if (column < 0 || line < 0 || column >= deviceWidth() || line >= deviceHeight()) return 0;
  return SwapRedBlue(row(static_cast<int>(line))[static_cast<int>(column)]);
}

void Surface::SetClip(const DeviceRect& clip) { clip_ = Intersect(clip, deviceBounds()); }

void Surface::Cls(Color color) { FillDevice(clip_, SwapRedBlue(color)); }

void Surface::FillDevice(const DeviceRect& area, std::uint32_t pixel) {
  const DeviceRect r = Intersect(area, clip_);
  for (int y = r.top; y < r.bottom; ++y) std::fill(row(y) + r.left, row(y) + r.right, pixel);
}

void Surface::BitBlt(double x, double y, double width, double height, const Surface& source,
                     double sourceX, double sourceY, RasterOp op) {
  if (source.scale_ != scale_) return;
  const int k = scale_;
  const int left = RoundToPixel((origin_.x + x) * k);
  const int top = RoundToPixel((origin_.y + y) * k);
  const int shiftX = RoundToPixel(sourceX * k) - left;
  const int shiftY = RoundToPixel(sourceY * k) - top;
  const DeviceRect wanted{left, top, left + RoundToPixel(width * k),
                          top + RoundToPixel(height * k)};
  const DeviceRect there{-shiftX, -shiftY, source.deviceWidth() - shiftX,
                         source.deviceHeight() - shiftY};
  const DeviceRect r = Intersect(Intersect(wanted, there), clip_);
  if (r.empty()) return;
  const int count = r.width();
  if (&source != this) {
    for (int line = r.top; line < r.bottom; ++line)
      CopyRow(row(line) + r.left, source.row(line + shiftY) + r.left + shiftX, count, op);
    return;
  }
  // Within one surface each row is taken aside, in the order that reads it before it is changed.
  std::vector<std::uint32_t> aside(static_cast<std::size_t>(count));
  for (int i = 0; i < r.height(); ++i) {
    const int line = shiftY < 0 ? r.bottom - 1 - i : r.top + i;
    CopyRow(aside.data(), row(line + shiftY) + r.left + shiftX, count, RasterOp::SrcCopy);
    CopyRow(row(line) + r.left, aside.data(), count, op);
  }
}

void Surface::StretchBlt(const Rect& destination, const Surface& source, const Rect& from) {
  const DeviceRect wanted = ToDevice({destination.left + origin_.x, destination.top + origin_.y,
                                      destination.width, destination.height},
                                     scale_);
  const DeviceRect whole = ToDevice(from, source.scale_);
  const DeviceRect part = Intersect(whole, source.deviceBounds());
  if (wanted.empty() || part.empty()) return;
  // What of the source rectangle lies outside its surface takes its share of the destination along.
  const double across = double(wanted.width()) / whole.width();
  const double down = double(wanted.height()) / whole.height();
  const DeviceRect to{RoundToPixel(wanted.left + (part.left - whole.left) * across),
                      RoundToPixel(wanted.top + (part.top - whole.top) * down),
                      RoundToPixel(wanted.right - (whole.right - part.right) * across),
                      RoundToPixel(wanted.bottom - (whole.bottom - part.bottom) * down)};
  const DeviceRect visible = Intersect(to, clip_);
  if (visible.empty() || to.width() > kLargestStretch || to.height() > kLargestStretch) return;
  const std::vector<std::uint32_t> pixels = Resample(
      {source.row(part.top) + part.left, source.deviceWidth(), part.width(), part.height()},
      to.width(), to.height(), false);
  if (pixels.empty()) return;
  for (int y = visible.top; y < visible.bottom; ++y)
    CopyRow(row(y) + visible.left,
            pixels.data() + static_cast<std::size_t>(y - to.top) * to.width() +
                (visible.left - to.left),
            visible.width(), RasterOp::SrcCopy);
}

}  // namespace platform
