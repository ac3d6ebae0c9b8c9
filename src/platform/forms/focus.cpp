// The control of a form that keys go to.
#include <algorithm>

#include "platform/forms/screen.h"

namespace platform {

void Form::SetFocus(Control* control) {
  if (control == focus_) return;
  Control* before = focus_;
  focus_ = control;
  screen_.Rearranged();
  if (before && before->OnLostFocus) before->OnLostFocus();
  // That handler may have set the focus elsewhere, or taken the control away.
  if (control && control == focus_ && control->OnGotFocus) control->OnGotFocus();
}

void Form::FocusNext(bool backwards) {
  std::vector<Control*> stops;
  for (Control* c : controls_)
    if (c->tabStop() && c->ShownOnScreen() && c->enabled()) stops.push_back(c);
  if (stops.empty()) return;
  if (backwards) std::reverse(stops.begin(), stops.end());
  const auto at = std::find(stops.begin(), stops.end(), focus_);
  SetFocus(at == stops.end() || at + 1 == stops.end() ? stops.front() : *(at + 1));
}

}  // namespace platform
