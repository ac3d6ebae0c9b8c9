// Where keys go, and what they do that no control does.
#include "platform/forms/screen.h"

namespace platform {

void Screen::AimKeys() {
  Form* front = top();
  Control* target = front && TakesInput(*front) ? front->focus() : nullptr;
  if (target && !(target->ShownOnScreen() && target->enabled())) target = nullptr;
  if (target == keys_) return;
  Control* before = keys_;
  keys_ = target;
  if (marksFocus_)
    for (Control* control : {before, keys_})
      if (control) control->Invalidate();
  host_.TakeText(std::nullopt);
  if (before) before->KeysCome(false);
  if (keys_) keys_->KeysCome(true);
}

void Screen::MarkFocus(bool mark) {
  if (mark == marksFocus_) return;
  marksFocus_ = mark;
  if (keys_) keys_->Invalidate();
}

void Screen::TakeText(const Control& control, const Rect& caret) {
  if (!HasKeys(control)) return;
  Rect r = control.InForm(control.place());
  const Rect f = control.form()->PlaneRect();
  host_.TakeText(WindowPixels(
      Rect{f.left + r.left + caret.left, f.top + r.top + caret.top, caret.width, caret.height}));
}

void Screen::KeyPressed(const Event& event) {
  const bool down = event.kind == EventKind::KeyDown;
  if (down) {
    HideTip();
    MarkFocus(true);
  }
  if (keys_ && keys_->TakeKey(event)) return;
  if (!down || event.ctrl || event.alt) return;
  Form* front = top();
  if (event.key == Key::Tab && front && TakesInput(*front)) front->FocusNext(event.shift);
  if (event.key == Key::Escape) Escape();
}

// The foremost form that has a way out, as far as a click would get there.
void Screen::Escape() {
  for (std::size_t i = forms_.size(); i-- > 0 && TakesInput(*forms_[i]);)
    if (Control* cancel = forms_[i]->cancel()) {
      if (CanClick(*cancel)) cancel->Click();
      return;
    }
}

}  // namespace platform
