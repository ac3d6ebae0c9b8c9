// How the plane is measured, composed and shown.
#include <algorithm>
#include <cmath>

#include "platform/forms/screen.h"

namespace platform {
namespace {

constexpr double kRoomWidth = 800;
constexpr double kRoomHeight = 600;
constexpr int kMaxScale = 4;
// A window that is next to nothing in one direction would ask for a plane without end in the other.
constexpr double kSmallestFit = 0.05;
constexpr double kLargestPlane = 8192;
// More separate rectangles than this cost more to keep apart than to paint together.
constexpr std::size_t kMaxRects = 24;

double FitOf(PixelSize window) {
  return std::min(window.width / kRoomWidth, window.height / kRoomHeight);
}

}  // namespace

Screen::Screen(Host& host, int scale) : host_(host), fixedScale_(scale) {
  const double largest = std::max(FitOf(host.LargestWindow()), FitOf(host.WindowSize()));
  scale_ = fixedScale_ > 0 ? fixedScale_ : std::clamp(int(std::ceil(largest)), 1, kMaxScale);
  Measure();
}

void Screen::Measure() {
  window_ = host_.WindowSize();
  const double smallest =
      std::max(kSmallestFit, std::max(window_.width, window_.height) * scale_ / kLargestPlane);
  fit_ = std::max(smallest, std::min(FitOf(window_), double(scale_)));
  plane_ = Surface::OfDevicePixels(std::max(1, int(std::lround(window_.width * scale_ / fit_))),
                                   std::max(1, int(std::lround(window_.height * scale_ / fit_))),
                                   scale_, colors::kBlack);
  invalid_.assign(1, plane_.deviceBounds());
  shownPointer_ = {};
  host_.SetPointer(shownPointer_, fit_);
  Rearranged();
}

Point Screen::ToWindow(Point logical) const {
  return {(logical.x + 0.5) * fit_, (logical.y + 0.5) * fit_};
}

DeviceRect Screen::WindowPixels(const Rect& logical) const {
  return {int(std::floor(logical.left * fit_)), int(std::floor(logical.top * fit_)),
          int(std::ceil(logical.right() * fit_)), int(std::ceil(logical.bottom() * fit_))};
}

void Screen::Invalidate(const DeviceRect& area) {
  DeviceRect r = Intersect(area, plane_.deviceBounds());
  if (r.empty()) return;
  // Rectangles that touch are joined, unless that would paint much that has not changed.
  for (auto it = invalid_.begin(); it != invalid_.end();) {
    const DeviceRect both = Union(*it, r);
    const auto size = [](const DeviceRect& x) { return std::int64_t(x.width()) * x.height(); };
    if (size(both) <= size(*it) + size(r) || invalid_.size() > kMaxRects) {
      r = both;
      invalid_.erase(it);
      it = invalid_.begin();
    } else {
      ++it;
    }
  }
  invalid_.push_back(r);
}

void Screen::Compose(const DeviceRect& area) {
  // Whatever an unshaped form covers wholly need not be painted.
  std::size_t first = 0;
  bool covered = false;
  for (std::size_t i = forms_.size(); i-- > 0 && !covered;)
    if (!forms_[i]->shaped() && Intersect(forms_[i]->DeviceBounds(), area) == area) {
      first = i;
      covered = true;
    }
  if (!covered) {
    plane_.SetClip(area);
    plane_.Cls(colors::kBlack);
    plane_.SetClip(plane_.deviceBounds());
  }
  for (std::size_t i = first; i < forms_.size(); ++i) forms_[i]->Compose(plane_, area);
  PaintTip(area);
}

void Screen::Repaint(const DeviceRect& area) {
  DeviceRect r = Intersect(area, plane_.deviceBounds());
  if (r.empty()) return;
  // What is invalid here anyway is painted along, and not once more at the next wait.
  for (auto it = invalid_.begin(); it != invalid_.end();) {
    if (Intersect(*it, r).empty()) {
      ++it;
    } else {
      r = Union(r, *it);
      it = invalid_.erase(it);
    }
  }
  Compose(r);
  host_.Show(plane_, {r});
}

void Screen::Flush() {
  carried_ = false;
  if (invalid_.empty()) return;
  shownAt_ = host_.NowMicros();
  std::vector<DeviceRect> changed;
  changed.swap(invalid_);
  for (const DeviceRect& r : changed) Compose(r);
  host_.Show(plane_, changed);
}

Surface Screen::Capture(const Form& form) {
  for (const DeviceRect& r : invalid_) Compose(r);
  const DeviceRect at = form.DeviceBounds();
  Surface out(form.width(), form.height(), scale_, colors::kBlack);
  out.BitBlt(0, 0, form.width(), form.height(), plane_, at.left / double(scale_),
             at.top / double(scale_), RasterOp::SrcCopy);
  return out;
}

Surface Screen::CaptureUnder(const Form& form) {
  // The forms from this one up are left out of one composition; what they cover is invalid then.
  const auto all = forms_;
  const auto from = std::find(forms_.begin(), forms_.end(), &form);
  forms_.erase(from, forms_.end());
  const DeviceRect at = form.DeviceBounds();
  Compose(Intersect(at, plane_.deviceBounds()));
  forms_ = all;
  Surface out(form.width(), form.height(), scale_, colors::kBlack);
  out.BitBlt(0, 0, form.width(), form.height(), plane_, at.left / double(scale_),
             at.top / double(scale_), RasterOp::SrcCopy);
  Invalidate(at);
  return out;
}

}  // namespace platform
