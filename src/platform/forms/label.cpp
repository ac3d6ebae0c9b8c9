#include <algorithm>
#include <cmath>

#include "platform/forms/controls.h"

namespace platform {

void Label::Apply(const Look& look) {
  font_ = look.font;
  style_ = {look.font, look.fore, look.align, look.wrap && !look.autoSize};
  back_ = look.back;
  transparent_ = look.transparent;
  autoSize_ = look.autoSize;
  maxWidth_ = look.maxWidth;
  visible_ = look.visible;
  anchor_ = place_.left + (look.align == Align::Left    ? 0
                           : look.align == Align::Right ? place_.width
                                                        : place_.width / 2);
  caption_ = look.caption;
  Layout();
}

void Label::SetCaption(std::string caption) {
  if (caption == caption_) return;
  Invalidate();
  caption_ = std::move(caption);
  Layout();
  Invalidate();
}

void Label::SetForeColor(Color color) {
  if (color == style_.color) return;
  style_.color = color;
  Invalidate();
}

void Label::SetFont(const Font& font) {
  font_ = font;
  Layout();
  Invalidate();
}

void Label::Move(const Rect& place) {
  anchor_ += place.left - place_.left;
  Control::Move(place);
}

void Label::Layout() {
  style_.font = font_;
  constexpr double kSmallest = 5;
  if (!autoSize_) {
    while (!TextFits() && style_.font.points > kSmallest) style_.font.points -= 0.25;
    return;
  }
  double width = TextWidth(style_.font, caption_);
  while (maxWidth_ > 0 && width > maxWidth_ && style_.font.points > kSmallest) {
    style_.font.points -= 0.25;
    width = TextWidth(style_.font, caption_);
  }
  width = std::ceil(width);
  if (maxWidth_ > 0) width = std::min(width, maxWidth_);
  // The height is that of the font asked for, so that the line stays where it was.
  const double lines =
      caption_.empty() ? 1 : MeasureText(caption_, style_, width).height / LineHeight(style_.font);
  Rect place = place_;
  place.width = width;
  place.height = std::max(1.0, lines) * LineHeight(font_);
  place.left = style_.align == Align::Left    ? anchor_
               : style_.align == Align::Right ? anchor_ - width
                                              : anchor_ - width / 2;
  place_ = place;
}

bool Label::TextFits() const {
  if (caption_.empty()) return true;
  // A word broken at the edge of the box would fit too, but not please.
  for (std::size_t from = 0; style_.wrap && from < caption_.size();) {
    const std::size_t to = std::min(caption_.find_first_of(" \r\n", from), caption_.size());
    if (TextWidth(style_.font, std::string_view(caption_).substr(from, to - from)) > place_.width)
      return false;
    from = to + 1;
  }
  const auto size = MeasureText(caption_, style_, place_.width);
  return size.width <= place_.width && size.height <= place_.height;
}

void Label::Paint(Surface& surface) {
  const Rect box{0, 0, place_.width, place_.height};
  if (!transparent_) surface.FillRect(box, back_);
  if (caption_.empty()) return;
  // A text set smaller keeps the base line of the size asked for.
  const double drop = autoSize_ ? std::round(Ascent(font_) - Ascent(style_.font)) : 0;
  surface.DrawText({0, drop, box.width, box.height - drop}, caption_, style_);
}

}  // namespace platform
