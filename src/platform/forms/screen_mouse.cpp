// Where the pointer is, what it is over, presses, drags and confines.
#include <algorithm>
#include <cmath>

#include "platform/forms/screen.h"

namespace platform {

Point Screen::PlacePointer(const Event& event) {
  Point at{event.x / fit_, event.y / fit_};
  // Also where the host cannot hold the pointer back.
  if (const auto area = ClipArea()) {
    at.x = std::clamp(at.x, area->left, area->right());
    at.y = std::clamp(at.y, area->top, area->bottom());
  }
  return at;
}

Form* Screen::FormAt(Point at) const {
  for (std::size_t i = forms_.size(); i-- > 0;) {
    Form* form = forms_[i];
    const Point p = InForm(*form, at);
    if (!form->ContainsPoint(p.x, p.y)) continue;
    return TakesInput(*form) ? form : nullptr;
  }
  return nullptr;
}

Point Screen::InForm(const Form& form, Point at) const {
  const Rect r = form.PlaneRect();
  return {at.x - r.left, at.y - r.top};
}

MouseArgs Screen::ArgsFor(const Control& control, const Form& form, Point at,
                          MouseButton button) const {
  const Point p = InForm(form, at);
  const Rect r = control.InForm(control.place());
  return {button, p.x - r.left, p.y - r.top};
}

bool Screen::CanClick(const Control& control) const {
  const Form& form = *control.form();
  if (!control.ShownOnScreen() || !TakesInput(form)) return false;
  if (Captured() && captured_ != &control) return false;
  const Rect r = control.InForm(control.place());
  const Rect f = form.PlaneRect();
  const Point middle{r.left + r.width / 2, r.top + r.height / 2};
  return form.HitTest(middle.x, middle.y) == &control &&
         FormAt({f.left + middle.x, f.top + middle.y}) == &form;
}

void Screen::MouseMoved(Point at) {
  mouse_ = at;
  MarkFocus(false);
  if (dragged_) {
    const DeviceRect bounds = dragged_->DeviceBounds();
    // A part of the form always stays within reach.
    const int reach = 40 * scale_;
    const int left = int(std::lround(at.x * scale_ - grab_.x));
    const int top = int(std::lround(at.y * scale_ - grab_.y));
    dragged_->MoveOnPlane(std::clamp(left, reach - bounds.width(), planeSize().width - reach),
                          std::clamp(top, reach - bounds.height(), planeSize().height - reach));
    return;
  }
  Control* target = Holder();
  Form* form = target ? target->form() : FormAt(at);
  if (!target && form) {
    const Point p = InForm(*form, at);
    target = form->HitTest(p.x, p.y);
  }
  if (target != tipFor_) {
    HideTip();
    if (target && !target->toolTip().empty()) {
      tipFor_ = target;
      tipDue_ = host_.NowMicros() + 600'000;
    }
  }
  if (target) {
    const MouseArgs args = ArgsFor(*target, *form, at, MouseButton::Left);
    if (target == pressed_)
      target->SetPressed(
          Rect{0, 0, target->place().width, target->place().height}.contains(args.x, args.y));
    target->MouseMove(args);
  } else if (form) {
    const Point p = InForm(*form, at);
    form->Form_MouseMove({MouseButton::Left, p.x, p.y});
  }
  UpdatePointer();
}

void Screen::MousePressed(Point at, MouseButton button) {
  HideTip();
  MarkFocus(false);
  Control* target = Captured();
  Form* form = target ? target->form() : FormAt(at);
  if (!form) return;
  const Point p = InForm(*form, at);
  if (!target) target = form->HitTest(p.x, p.y);
  if (target) {
    const MouseArgs args = ArgsFor(*target, *form, at, button);
    const Watch there(*target);
    if (button == MouseButton::Left) {
      if (pressed_) pressed_->SetPressed(false);
      pressed_ = target;
      target->SetPressed(true);
      if (target->focusable()) target->SetFocus();
    }
    if (there) target->MouseDown(args);
  } else {
    form->Form_MouseDown({button, p.x, p.y});
  }
  UpdatePointer();
}

void Screen::MouseReleased(Point at, MouseButton button) {
  if (button != MouseButton::Left) return;
  if (dragged_) Rearranged();
  dragged_ = nullptr;
  Control* target = pressed_;
  pressed_ = nullptr;
  if (!target) return;
  target->SetPressed(false);
  const MouseArgs args = ArgsFor(*target, *target->form(), at, button);
  const bool inside =
      target == Captured() ||
      Rect{0, 0, target->place().width, target->place().height}.contains(args.x, args.y);
  if (inside && target->ShownOnScreen() && TakesInput(*target->form())) target->Click();
  UpdatePointer();
}

void Screen::UpdatePointer() {
  Pointer pointer;
  if (dragged_) {
    pointer.kind = Pointer::Kind::SizeAll;
  } else if (Form* form = Holder() ? Holder()->form() : FormAt(mouse_)) {
    const Point p = InForm(*form, mouse_);
    const Control* control = Holder() ? Holder() : form->HitTest(p.x, p.y);
    pointer = control ? control->pointer() : form->pointer();
    if (control && pointer == Pointer{}) pointer = form->pointer();
  }
  if (pointer == shownPointer_) return;
  shownPointer_ = pointer;
  host_.SetPointer(pointer, fit_);
}

void Screen::Drag(Form& form) {
  dragged_ = &form;
  grab_ = {mouse_.x * scale_ - form.deviceLeft(), mouse_.y * scale_ - form.deviceTop()};
}

void Screen::SetCapture(Control* control) { captured_ = control; }

Control* Screen::Captured() const {
  return captured_ && TakesInput(*captured_->form()) ? captured_ : nullptr;
}

void Screen::ClipCursor(Form& owner, const Rect& area) {
  clipOwner_ = &owner;
  clip_ = {area.left, area.top, std::max(0.0, area.width), std::max(0.0, area.height)};
  ApplyClip();
}

void Screen::FreeCursor() {
  clipOwner_ = nullptr;
  ApplyClip();
}

std::optional<Rect> Screen::ClipArea() const {
  if (!clipOwner_ || !TakesInput(*clipOwner_)) return std::nullopt;
  const Rect form = clipOwner_->PlaneRect();
  return Rect{form.left + clip_.left, form.top + clip_.top, clip_.width, clip_.height};
}

void Screen::ApplyClip() {
  std::optional<DeviceRect> area;
  if (const auto onPlane = ClipArea()) {
    area = WindowPixels(*onPlane);
    // The pixels of the right and lower edge are still allowed.
    ++area->right;
    ++area->bottom;
  }
  if (area == shownClip_) return;
  shownClip_ = area;
  host_.ClipPointer(area);
}

}  // namespace platform
