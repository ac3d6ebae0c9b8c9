#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/screen.h"
#include "platform/forms/shade.h"

namespace platform {
namespace {

// Letters keep as far from the bevel as the bevel is wide.
constexpr double kCaptionInset = 4;

}  // namespace

void CommandButton::Apply(const Look& look) {
  picture_ = look.picture;
  back_ = look.back;
  caption_ = look.caption;
  font_ = look.font;
  visible_ = look.visible;
  SetToolTip(look.toolTip);
  if (look.hand) UseHand(look.hand, look.focusOnMove);
}

void CommandButton::SetPicture(SizedPicture picture) {
  if (picture.picture == picture_.picture) return;
  picture_ = std::move(picture);
  Invalidate();
}

void CommandButton::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Invalidate();
}

void CommandButton::SetBackColor(Color color) {
  if (color == back_) return;
  back_ = color;
  Invalidate();
}

Rect CommandButton::CaptionBox() const {
  const double top = picture_ ? std::min(double(picture_.height), place_.width) : 0;
  return {kCaptionInset, top, place_.width - 2 * kCaptionInset, place_.height - top - 2};
}

bool CommandButton::TextFits() const {
  if (caption_.empty()) return true;
  const Rect box = CaptionBox();
  const auto size = MeasureText(caption_, {font_, 0, Align::Center, true}, box.width);
  return size.width <= box.width && size.height <= box.height;
}

void CommandButton::PaintButton(Surface& surface, bool down) const {
  const double w = place_.width, h = place_.height;
  const bool small = h < 24;
  const double edge = small ? 1 : 2;
  surface.FillRect({0, 0, w, h}, Shade(back_, down ? -0.5 : -0.35));
  surface.FillRect({0, 0, w - edge, h - edge}, down ? Shade(back_, -0.4) : Shade(back_, 0.6));
  surface.FillRect({edge, edge, w - 2 * edge, h - 2 * edge}, back_);
  const double shift = down ? 1 : 0;

  const DeviceRect outer = surface.clip();
  const Point o = surface.origin();
  surface.SetClip(Intersect(
      outer, ToDevice({o.x + edge, o.y + edge, w - 2 * edge, h - 2 * edge}, surface.scale())));
  if (picture_) {
    const double area = caption_.empty() ? h : std::min(double(picture_.height), w);
    picture_.picture->Draw(surface,
                           {(w - picture_.width) / 2 + shift, (area - picture_.height) / 2 + shift,
                            double(picture_.width), double(picture_.height)});
  }
  if (!caption_.empty()) {
    Rect box = CaptionBox();
    const TextStyle style{font_, colors::kBlack, Align::Center, true};
    const double slack = box.height - MeasureText(caption_, style, box.width).height;
    box.top += std::max(0.0, slack / 2) + shift;
    box.left += shift;
    surface.DrawText(box, caption_, style);
  }
  surface.SetClip(outer);
  PaintFocusMark(surface);
}

bool CommandButton::TakeKey(const Event& event) {
  const bool presses = event.kind == EventKind::KeyDown && !event.ctrl && !event.alt &&
                       (event.key == Key::Space || event.key == Key::Enter);
  if (presses && form_->screen().CanClick(*this)) Click();
  return presses;
}

}  // namespace platform
