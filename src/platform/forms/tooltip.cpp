// Tool tips: a small label over all forms, a moment after the pointer has come to rest on a
// control.
#include <algorithm>

#include "platform/forms/screen.h"

namespace platform {
namespace {

const TextStyle kTipStyle{{"Verdana", 8.25, false, false}, colors::kBlack, Align::Left, false};
constexpr Color kTipBack = 0xE1FFFF;
constexpr double kPadX = 5;
constexpr double kPadY = 3;

}  // namespace

void Screen::ShowTip() {
  const Control& control = *tipFor_;
  const TextSize size = MeasureText(control.toolTip(), kTipStyle, 1e6);
  const double width = size.width + 2 * kPadX;
  const double height = size.height + 2 * kPadY;
  const double k = scale_;
  Rect place{mouse_.x - width / 2, mouse_.y + 20, width, height};
  // Above the pointer where there is no room below it.
  if (place.bottom() > planeSize().height / k) place.top = mouse_.y - 6 - height;
  place.left = std::clamp(place.left, 0.0, std::max(0.0, planeSize().width / k - width));
  tipArea_ = ToDevice(place, scale_);
  Invalidate(tipArea_);
}

void Screen::HideTip() {
  tipFor_ = nullptr;
  if (tipArea_.empty()) return;
  Invalidate(tipArea_);
  tipArea_ = {};
}

void Screen::PaintTip(const DeviceRect& area) {
  const DeviceRect part = Intersect(area, tipArea_);
  if (part.empty() || !tipFor_) return;
  plane_.SetClip(part);
  const double k = scale_;
  const Rect place{tipArea_.left / k, tipArea_.top / k, tipArea_.width() / k,
                   tipArea_.height() / k};
  plane_.FillRect(place, colors::kBlack);
  plane_.FillRect({place.left + 1, place.top + 1, place.width - 2, place.height - 2}, kTipBack);
  plane_.DrawText({place.left + kPadX, place.top + kPadY, place.width - kPadX, place.height},
                  tipFor_->toolTip(), kTipStyle);
  plane_.SetClip(plane_.deviceBounds());
}

}  // namespace platform
