#include "platform/forms/text_box.h"

#include <algorithm>
#include <cmath>

#include "platform/drawing/clusters.h"
#include "platform/forms/screen.h"
#include "platform/forms/shade.h"

namespace platform {
namespace {

constexpr double kEdge = 2;
constexpr double kMargin = 3;
constexpr double kCaretWidth = 1;
constexpr int kBlinkMs = 500;
constexpr std::int64_t kDoubleClickMicros = 500'000;
constexpr double kDoubleClickReach = 4;
constexpr Color kSelected = colors::kNavy;
constexpr Color kSelectedText = colors::kWhite;

}  // namespace

void TextBox::Apply(const Look& look) {
  font_ = look.font;
  back_ = look.back;
  fore_ = look.fore;
  visible_ = look.visible;
  text_ = OneLine(look.text);
  caret_ = anchor_ = text_.size();
  SetPointer({.kind = Pointer::Kind::IBeam, .picture = nullptr});
  blink_.OnTimer = [this] { Blink(); };
  blink_.Attach(*form_, kBlinkMs, false);
}

void TextBox::SetText(std::string_view text) {
  text_ = OneLine(text);
  clicks_ = 0;
  MoveCaret(text_.size(), false);
}

void TextBox::SelectAll() {
  anchor_ = 0;
  MoveCaret(text_.size(), true);
}

std::string_view TextBox::selected() const {
  return std::string_view(text_).substr(first(), last() - first());
}

// --- Where things are

Rect TextBox::Inner() const {
  return {kEdge + kMargin, kEdge, place_.width - 2 * (kEdge + kMargin), place_.height - 2 * kEdge};
}

double TextBox::XOf(std::size_t at) const {
  return TextWidth(font_, std::string_view(text_).substr(0, at));
}

std::size_t TextBox::At(double x) const {
  const double wanted = x - Inner().left + scroll_;
  double left = 0;
  for (std::size_t at = 0; at < text_.size();) {
    const std::size_t next = NextCluster(text_, at);
    const double right = left + TextWidth(font_, std::string_view(text_).substr(at, next - at));
    if (wanted < (left + right) / 2) return at;
    left = right;
    at = next;
  }
  return text_.size();
}

Rect TextBox::CaretRect() const {
  const Rect inner = Inner();
  const double height = LineHeight(font_);
  const double x = inner.left + XOf(caret_) + TextWidth(font_, composing_) - scroll_;
  return {std::floor(x), inner.top + std::floor((inner.height - height) / 2), kCaretWidth, height};
}

// --- Changes

void TextBox::Changed() {
  // The caret stays in view, and no room is left empty while text is hidden.
  const double width = std::max(0.0, Inner().width - kCaretWidth);
  const double composed = TextWidth(font_, composing_);
  const double at = XOf(caret_) + composed;
  const double whole = XOf(text_.size()) + composed;
  scroll_ = std::clamp(scroll_, at - width, at);
  scroll_ = std::max(0.0, std::min(scroll_, whole - width));
  if (hasKeys_) {
    caretShown_ = true;
    blink_.SetEnabled(false);  // it shows for a whole beat
    blink_.SetEnabled(true);
    form_->screen().TakeText(*this, CaretRect());
  }
  Invalidate();
}

void TextBox::Blink() {
  caretShown_ = !caretShown_;
  const Rect caret = CaretRect();
  form_->Invalidate(
      InForm({place_.left + caret.left, place_.top + caret.top, caret.width, caret.height}));
}

void TextBox::MoveCaret(std::size_t to, bool select) {
  caret_ = to;
  if (!select) anchor_ = to;
  Changed();
}

void TextBox::Insert(std::string_view typed) {
  // An accent that is typed by itself joins the letter before it.
  const std::string before = OneLine(text_.substr(0, first()).append(typed));
  text_ = before + text_.substr(last());
  // What stands behind may join it, too.
  std::size_t to = 0;
  while (to < before.size()) to = NextCluster(text_, to);
  clicks_ = 0;
  MoveCaret(to, false);
}

void TextBox::EraseTo(std::size_t end) {
  if (caret_ == anchor_) anchor_ = end;
  Insert("");
}

// --- Keys

void TextBox::KeysCome(bool come) {
  hasKeys_ = come;
  caretShown_ = come;
  composing_.clear();
  blink_.SetEnabled(come);
  Changed();
}

bool TextBox::TakeKey(const Event& event) {
  if (event.kind == EventKind::Text) {
    composing_.clear();
    Insert(event.text);
    return true;
  }
  if (event.kind == EventKind::Composing) {
    if (!event.text.empty() && caret_ != anchor_) Insert("");
    composing_ = OneLine(event.text);
    Changed();
    return true;
  }
  if (event.ctrl && !event.alt && Command(event)) return true;
  const std::string_view text = text_;
  switch (event.key) {
    case Key::Left:
      if (caret_ != anchor_ && !event.shift && !event.ctrl)
        MoveCaret(first(), false);
      else
        MoveCaret(event.ctrl ? PreviousWord(text, caret_) : PreviousCluster(text, caret_),
                  event.shift);
      return true;
    case Key::Right:
      if (caret_ != anchor_ && !event.shift && !event.ctrl)
        MoveCaret(last(), false);
      else
        MoveCaret(event.ctrl ? NextWord(text, caret_) : NextCluster(text, caret_), event.shift);
      return true;
    case Key::Home:
    case Key::Up:
      MoveCaret(0, event.shift);
      return true;
    case Key::End:
    case Key::Down:
      MoveCaret(text.size(), event.shift);
      return true;
    case Key::Backspace:
      EraseTo(event.ctrl ? PreviousWord(text, caret_) : PreviousCluster(text, caret_));
      return true;
    case Key::Delete:
      EraseTo(event.ctrl ? NextWord(text, caret_) : NextCluster(text, caret_));
      return true;
    case Key::Space:  // comes as text, too
      return true;
    default:
      return false;
  }
}

bool TextBox::Command(const Event& event) {
  Host& host = form_->screen().host();
  switch (event.key) {
    case Key::A:
      SelectAll();
      return true;
    case Key::C:
    case Key::X:
      if (caret_ == anchor_) return true;
      host.SetClipboard(std::string(selected()));
      if (event.key == Key::X) Insert("");
      return true;
    case Key::V:
      if (const std::string pasted = host.Clipboard(); !pasted.empty()) Insert(pasted);
      return true;
    default:
      return false;
  }
}

// --- Mouse

void TextBox::MouseDown(const MouseArgs& args) {
  if (args.button == MouseButton::Left) {
    const std::int64_t now = form_->screen().host().NowMicros();
    const bool again =
        now - clickedAt_ < kDoubleClickMicros && std::abs(args.x - clickedX_) < kDoubleClickReach;
    clicks_ = again ? clicks_ + 1 : 1;
    clickedAt_ = now;
    clickedX_ = args.x;
    const std::size_t at = clickedText_ = At(args.x);
    // The press that brings the focus leaves alone what was selected for that.
    const bool selectedByFocus = !hasKeys_ && !text_.empty() && selected() == text_;
    if (clicks_ > 2) {
      SelectAll();
    } else if (clicks_ == 2) {
      const auto word = WordAround(text_, at);
      anchor_ = word.first;
      MoveCaret(word.second, true);
    } else if (!selectedByFocus) {
      MoveCaret(at, false);
    }
  }
  Control::MouseDown(args);
}

void TextBox::MouseMove(const MouseArgs& args) {
  const bool drags = form_->screen().pressed() == this && clicks_ == 1 &&
                     std::abs(args.x - clickedX_) >= kDoubleClickReach;
  if (drags) {
    anchor_ = clickedText_;
    MoveCaret(At(args.x), true);
  }
  Control::MouseMove(args);
}

// --- Look

void TextBox::Paint(Surface& surface) {
  const double w = place_.width, h = place_.height;
  surface.FillRect({0, 0, w, h}, Shade(colors::kButtonFace, 0.6));
  surface.FillRect({0, 0, w - 1, h - 1}, Shade(colors::kButtonFace, -0.35));
  surface.FillRect({1, 1, w - 2, h - 2}, Shade(colors::kButtonFace, -0.6));
  surface.FillRect({kEdge, kEdge, w - 2 * kEdge, h - 2 * kEdge}, back_);

  const DeviceRect outer = surface.clip();
  const Point o = surface.origin();
  const auto clipTo = [&](const Rect& r) {
    surface.SetClip(Intersect(
        outer, ToDevice({o.x + r.left, o.y + r.top, r.width, r.height}, surface.scale())));
  };
  const Rect inner = Inner();
  const Rect caret = CaretRect();
  const double left = inner.left - scroll_;
  const Rect room{kEdge + 1, inner.top, w - 2 * (kEdge + 1), inner.height};
  clipTo(room);
  std::string shown = text_;
  shown.insert(caret_, composing_);
  surface.TextOut(left, caret.top, shown, font_, fore_);
  if (!composing_.empty()) {
    Font ruled = font_;
    ruled.underline = true;
    surface.TextOut(left + XOf(caret_), caret.top, composing_, ruled, fore_);
  }
  if (hasKeys_ && caret_ != anchor_) {
    const double from = std::max(room.left, left + XOf(first()));
    const double to = std::min(room.right(), left + XOf(last()));
    const Rect chosen{from, caret.top, to - from, caret.height};
    clipTo(chosen);
    surface.FillRect(chosen, kSelected);
    surface.TextOut(left, caret.top, shown, font_, kSelectedText);
    clipTo(room);
  }
  if (caretShown_) surface.FillRect(caret, fore_);
  surface.SetClip(outer);
}

}  // namespace platform
