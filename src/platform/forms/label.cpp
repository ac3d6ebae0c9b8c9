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
  minWidth_ = look.minWidth;
  visible_ = look.visible;
  SetAnchor();
  wrapWidth_ = place_.width;
  caption_ = look.caption;
  Layout();
}

void Label::SetAnchor() {
  anchor_ = place_.left + (style_.align == Align::Left    ? 0
                           : style_.align == Align::Right ? place_.width
                                                          : place_.width / 2);
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

void Label::SetWrap(bool wrap) {
  if (wrap == style_.wrap) return;
  Invalidate();
  style_.wrap = wrap;
  Layout();
  Invalidate();
}

void Label::SetAutoSize(bool autoSize) {
  if (autoSize == autoSize_) return;
  Invalidate();
  autoSize_ = autoSize;
  Layout();
  Invalidate();
}

void Label::Move(const Rect& place) {
  const bool wider = place.width != place_.width;
  const bool resized = wider || place.height != place_.height;
  Control::Move(place);
  SetAnchor();
  if (wider) wrapWidth_ = place.width;
  if (resized && !autoSize_) Layout();
}

void SetInOneSize(Label& a, Label& b) {
  a.Layout();
  b.Layout();
  const double points = std::min(a.drawnPoints(), b.drawnPoints());
  for (Label* label : {&a, &b}) {
    label->style_.font.points = points;
    label->Invalidate();
  }
}

void Label::Layout() {
  style_.font = font_;
  constexpr double kSmallest = 5;
  if (!autoSize_) {
    while (!TextFits() && style_.font.points > kSmallest) style_.font.points -= 0.25;
    return;
  }
  // Wrapped lines fit by themselves, unless a single word does not.
  const double limit = style_.wrap ? wrapWidth_ : maxWidth_;
  const auto drawnWidth = [&] {
    return style_.wrap ? WidestWord() : TextWidth(style_.font, caption_);
  };
  while (limit > 0 && drawnWidth() > limit && style_.font.points > kSmallest)
    style_.font.points -= 0.25;
  const TextSize size = MeasureText(caption_, style_, limit);
  const double width = std::max(limit > 0 ? std::min(size.width, limit) : size.width, minWidth_);
  // The height is that of the font asked for, so that the line stays where it was.
  const double lines = caption_.empty() ? 1 : size.height / LineHeight(style_.font);
  Rect place = place_;
  place.width = width;
  place.height = std::max(1.0, lines) * LineHeight(font_);
  place.left = style_.align == Align::Left    ? anchor_
               : style_.align == Align::Right ? anchor_ - width
                                              : anchor_ - width / 2;
  place_ = place;
}

double Label::WidestWord() const {
  double widest = 0;
  for (std::size_t from = 0; from < caption_.size();) {
    const std::size_t to = std::min(caption_.find_first_of(" \r\n", from), caption_.size());
    widest = std::max(widest,
                      TextWidth(style_.font, std::string_view(caption_).substr(from, to - from)));
    from = to + 1;
  }
  return widest;
}

bool Label::TextFits() const {
  if (caption_.empty()) return true;
  // A word broken at the edge of the box would fit too, but not please.
  if (style_.wrap && WidestWord() > place_.width) return false;
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
