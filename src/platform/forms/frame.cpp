#include <cmath>

#include "platform/forms/controls.h"
#include "platform/forms/shade.h"

namespace platform {
namespace {

constexpr double kCaptionLeft = 9;
constexpr double kCaptionGap = 2;  // between the border and the caption's first and last letter

}  // namespace

void Frame::Apply(const Look& look) {
  look_ = look;
  visible_ = look.visible;
}

void Frame::SetBackColor(Color color) {
  if (color == look_.back) return;
  look_.back = color;
  Invalidate();
}

bool Frame::TextFits() const {
  if (!look_.border || look_.caption.empty()) return true;
  return TextWidth(look_.font, look_.caption) <= place_.width - 2 * kCaptionLeft &&
         LineHeight(look_.font) <= place_.height;
}

void Frame::Paint(Surface& surface) {
  const Rect whole{0, 0, place_.width, place_.height};
  surface.FillRect(whole, look_.back);
  if (!look_.border) return;
  // An engraved line: dark, and beside it light.
  const double top = look_.caption.empty() ? 0 : std::floor(LineHeight(look_.font) / 2);
  const double right = place_.width - 1, bottom = place_.height - 1;
  surface.Box(1, top + 1, right, bottom, {1, Shade(look_.back, 0.7)});
  surface.Box(0, top, right - 1, bottom - 1, {1, Shade(look_.back, -0.45)});
  if (look_.caption.empty()) return;
  const double width = std::ceil(TextWidth(look_.font, look_.caption));
  surface.FillRect({kCaptionLeft - kCaptionGap, 0, width + 2 * kCaptionGap, top + 2}, look_.back);
  surface.TextOut(kCaptionLeft, 0, look_.caption, look_.font, look_.fore);
}

}  // namespace platform
