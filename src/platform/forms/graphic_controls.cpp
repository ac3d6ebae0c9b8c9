// Image, Shape and Line: drawn on their container, without a window of their own.
#include <algorithm>

#include "platform/forms/controls.h"

namespace platform {

void Image::Apply(const Look& look) {
  picture_ = look.picture;
  visible_ = look.visible;
}

void Image::SetPicture(SizedPicture picture) {
  picture_ = std::move(picture);
  Invalidate();
}

void Image::Paint(Surface& surface) {
  if (picture_) picture_.picture->Draw(surface, {0, 0, place_.width, place_.height});
}

void Shape::Apply(const Look& look) {
  look_ = look;
  visible_ = look.visible;
}

void Shape::SetBorderWidth(double width) {
  if (width == look_.borderWidth) return;
  look_.borderWidth = width;
  Invalidate();
}

void Shape::SetFill(Color color) {
  look_.filled = true;
  look_.fill = color;
  Invalidate();
}

void Shape::Paint(Surface& surface) {
  const Rect whole{0, 0, place_.width, place_.height};
  const double b = look_.borderWidth;
  const Rect inner{b, b, whole.width - 2 * b, whole.height - 2 * b};
  switch (look_.kind) {
    case Kind::Rectangle:
      if (look_.filled) {
        surface.FillRect(whole, look_.border);
        surface.FillRect(inner, look_.fill);
      } else {
        surface.FillRect({0, 0, whole.width, b}, look_.border);
        surface.FillRect({0, whole.height - b, whole.width, b}, look_.border);
        surface.FillRect({0, b, b, inner.height}, look_.border);
        surface.FillRect({whole.width - b, b, b, inner.height}, look_.border);
      }
      break;
    case Kind::RoundedRectangle: {
      // A quarter of the shorter side is the corner's ellipse.
      const double e = std::min(whole.width, whole.height) / 4;
      if (look_.filled) {
        surface.FillRoundRect(whole, e, e, look_.border);
        const double ie = std::max(0.0, e - 2 * b);
        surface.FillRoundRect(inner, ie, ie, look_.fill);
      } else {
        surface.RoundRect({b / 2, b / 2, whole.width - b, whole.height - b}, e, e,
                          {b, look_.border});
      }
      break;
    }
    case Kind::Oval:
      if (look_.filled) surface.FillOval(whole, look_.fill);
      surface.Oval(whole, {b, look_.border});
      break;
  }
}

void Line::Apply(const Look& look) {
  look_ = look;
  visible_ = look.visible;
  place_ = {std::min(look.x1, look.x2), std::min(look.y1, look.y2), std::abs(look.x1 - look.x2),
            std::abs(look.y1 - look.y2)};
}

void Line::SetColor(Color color) {
  look_.color = color;
  Invalidate();
}

Rect Line::PaintBounds() const {
  const double reach = look_.width / 2 + 1;
  return {place_.left - reach, place_.top - reach, place_.width + 2 * reach,
          place_.height + 2 * reach};
}

void Line::Paint(Surface& surface) {
  surface.Line(look_.x1 - place_.left, look_.y1 - place_.top, look_.x2 - place_.left,
               look_.y2 - place_.top, {look_.width, look_.color});
}

}  // namespace platform
