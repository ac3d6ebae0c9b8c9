#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace platform {

void OptionButton::Apply(const Look& look) {
  CommandButton::Apply({.picture = look.picture,
                        .back = look.back,
                        .caption = look.caption,
                        .font = look.font,
                        .visible = look.visible,
                        .toolTip = look.toolTip,
                        .hand = look.hand,
                        .focusOnMove = look.focusOnMove});
  value_ = look.value;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  Invalidate();
  if (!value || !form_) return;
  for (Control* control : form_->controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other && other != this && other->container_ == container_) other->SetValue(false);
  }
}

void OptionButton::Click() {
  SetValue(true);
  Control::Click();
}

void OptionButton::Paint(Surface& surface) {
  PaintButton(surface, pressed_ || value_);
  if (!value_) return;
  // The shade of an edge alone hardly shows on a bright colour: the chosen one gets a rim.
  const double w = place_.width, h = place_.height;
  for (const auto& [inset, color] : {std::pair{0, colors::kBlack}, std::pair{1, colors::kWhite}})
    surface.Box(inset, inset, w - 1 - inset, h - 1 - inset, {1, color});
}

}  // namespace platform
