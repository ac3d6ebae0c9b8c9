#include "platform/forms/control.h"

#include "platform/forms/form.h"
#include "platform/forms/screen.h"

namespace platform {

Control::~Control() {
  if (form_) form_->Forget(this);
}

void Control::Attach(Form& form, std::string name, const Rect& place, Control* container) {
  form_ = &form;
  name_ = std::move(name);
  place_ = place;
  container_ = container;
  form.Adopt(this);
}

int Control::scale() const { return form_ ? form_->screen().scale() : 1; }

void Control::Move(const Rect& place) {
  if (place == place_) return;
  Invalidate();
  place_ = place;
  Invalidate();
  if (form_) form_->screen().Rearranged();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  // Invalidated while it is visible: a hidden control asks for nothing.
  if (visible_) Invalidate();
  visible_ = visible;
  if (visible_) Invalidate();
  if (!visible_) pressed_ = false;
  if (!visible_ && form_) form_->screen().LetGo(this);
  if (form_) form_->screen().Rearranged();
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  if (form_) form_->screen().Rearranged();
}

void Control::SetPointer(Pointer pointer) {
  pointer_ = std::move(pointer);
  if (form_) form_->screen().Rearranged();
}

bool Control::ShownOnScreen() const {
  for (const Control* c = this; c; c = c->container_)
    if (!c->visible_) return false;
  return form_ && form_->shown();
}

void Control::UseHand(const HandPointers* hand, bool focusOnMove) {
  hand_ = hand;
  focusOnMove_ = focusOnMove;
}

void Control::SetFocus() {
  if (form_) form_->SetFocus(this);
}

bool Control::focused() const { return form_ && form_->focus() == this; }

Rect Control::InForm(const Rect& r) const {
  Rect out = r;
  for (const Control* c = container_; c; c = c->container_) {
    out.left += c->place_.left + c->childOrigin().x;
    out.top += c->place_.top + c->childOrigin().y;
  }
  return out;
}

void Control::Refresh() {
  if (ShownOnScreen()) form_->screen().Repaint(form_->DeviceOf(InForm(PaintBounds())));
}

void Control::Invalidate() {
  if (ShownOnScreen()) form_->screen().Invalidate(form_->DeviceOf(InForm(PaintBounds())));
}

void Control::SetPressed(bool pressed) {
  if (pressed == pressed_) return;
  pressed_ = pressed;
  Invalidate();
}

void Control::MouseMove(const MouseArgs& args) {
  if (hand_) pointer_ = hand_->open;
  if (focusOnMove_) {
    const Watch there(*this);
    SetFocus();
    if (!there) return;
  }
  if (OnMouseMove) OnMouseMove(args);
}

void Control::MouseDown(const MouseArgs& args) {
  if (hand_) pointer_ = hand_->closed;
  if (OnMouseDown) OnMouseDown(args);
}

void Control::Click() {
  if (OnClick) OnClick();
}

void Control::PaintFocusMark(Surface& surface) const {
  if (!form_->screen().MarksFocus(*this)) return;
  constexpr int kInset = 3;
  const int right = int(place_.width) - 1 - kInset, bottom = int(place_.height) - 1 - kInset;
  // Both tones, so that it is seen on every picture.
  const auto dot = [&](int x, int y) {
    surface.FillRect({double(x), double(y), 1, 1}, (x + y) % 2 ? colors::kWhite : colors::kBlack);
  };
  for (int x = kInset; x <= right; ++x) {
    dot(x, kInset);
    dot(x, bottom);
  }
  for (int y = kInset + 1; y < bottom; ++y) {
    dot(kInset, y);
    dot(right, y);
  }
}

}  // namespace platform
