#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/screen.h"

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

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : form_->controls())
    if (control->container() == container_)
      if (auto* option = dynamic_cast<OptionButton*>(control)) group.push_back(option);
  return group;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  Invalidate();
  if (value)
    for (OptionButton* other : Group())
      if (other != this) other->SetValue(false);
}

bool OptionButton::tabStop() const {
  const auto group = Group();
  return value_ ||
         std::none_of(group.begin(), group.end(), [](const auto* o) { return o->value_; });
}

bool OptionButton::TakeKey(const Event& event) {
  const bool forth = event.key == Key::Right || event.key == Key::Down;
  const bool back = event.key == Key::Left || event.key == Key::Up;
  if (event.kind != EventKind::KeyDown || !(forth || back)) return CommandButton::TakeKey(event);
  auto group = Group();
  std::erase_if(group,
                [this](OptionButton* o) { return o != this && !form_->screen().CanClick(*o); });
  if (back) std::reverse(group.begin(), group.end());
  const auto at = std::find(group.begin(), group.end(), this);
  OptionButton& next = at + 1 == group.end() ? *group.front() : **(at + 1);
  const Watch there(next);
  next.SetFocus();
  if (there && form_->screen().CanClick(next)) next.Click();
  return true;
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
