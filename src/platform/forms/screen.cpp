#include "platform/forms/screen.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

constexpr double kRoomWidth = 800;
constexpr double kRoomHeight = 600;
constexpr int kMaxScale = 4;
// More separate rectangles than this cost more to keep apart than to paint together.
constexpr std::size_t kMaxRects = 24;

double FitOf(PixelSize window) {
  return std::min(window.width / kRoomWidth, window.height / kRoomHeight);
}

}  // namespace

Screen::Screen(Host& host, int scale) : host_(host), fixedScale_(scale) {
  const double largest = std::max(FitOf(host.LargestWindow()), FitOf(host.WindowSize()));
  scale_ = fixedScale_ > 0 ? fixedScale_ : std::clamp(int(std::ceil(largest)), 1, kMaxScale);
  Measure();
}

Screen::~Screen() { owned_.clear(); }

void Screen::Measure() {
  window_ = host_.WindowSize();
  fit_ = std::clamp(FitOf(window_), 0.05, double(scale_));
  planeSize_ = {int(std::lround(window_.width * scale_ / fit_)),
                int(std::lround(window_.height * scale_ / fit_))};
  plane_ = Surface((planeSize_.width + scale_ - 1) / scale_,
                   (planeSize_.height + scale_ - 1) / scale_, scale_, colors::kBlack);
  invalid_.assign(1, {0, 0, planeSize_.width, planeSize_.height});
}

Point Screen::ToWindow(Point logical) const {
  return {(logical.x + 0.5) * fit_, (logical.y + 0.5) * fit_};
}

// --- Painting

void Screen::Invalidate(const DeviceRect& area) {
  DeviceRect r = Intersect(area, {0, 0, planeSize_.width, planeSize_.height});
  if (r.empty()) return;
  // Rectangles that touch are joined, unless that would paint much that has not changed.
  for (auto it = invalid_.begin(); it != invalid_.end();) {
    const DeviceRect both = Union(*it, r);
    const auto size = [](const DeviceRect& x) { return std::int64_t(x.width()) * x.height(); };
    if (size(both) <= size(*it) + size(r) || invalid_.size() > kMaxRects) {
      r = both;
      invalid_.erase(it);
      it = invalid_.begin();
    } else {
      ++it;
    }
  }
  invalid_.push_back(r);
}

void Screen::Compose(const DeviceRect& area) {
  // Whatever an unshaped form covers wholly need not be painted.
  std::size_t first = 0;
  bool covered = false;
  for (std::size_t i = forms_.size(); i-- > 0 && !covered;)
    if (!forms_[i]->shaped() && Intersect(forms_[i]->DeviceBounds(), area) == area) {
      first = i;
      covered = true;
    }
  if (!covered) {
    plane_.SetClip(area);
    plane_.Cls(colors::kBlack);
    plane_.SetClip(plane_.deviceBounds());
  }
  for (std::size_t i = first; i < forms_.size(); ++i) forms_[i]->Compose(plane_, area);
  PaintTip(area);
}

void Screen::Repaint(const DeviceRect& area) {
  DeviceRect r = Intersect(area, {0, 0, planeSize_.width, planeSize_.height});
  if (r.empty()) return;
  // What is invalid here anyway is painted along, and not once more at the next wait.
  for (auto it = invalid_.begin(); it != invalid_.end();) {
    if (Intersect(*it, r).empty()) {
      ++it;
    } else {
      r = Union(r, *it);
      it = invalid_.erase(it);
    }
  }
  Compose(r);
  host_.Show(plane_, planeSize_, {r});
}

void Screen::Flush() {
  if (invalid_.empty()) return;
  std::vector<DeviceRect> changed;
  changed.swap(invalid_);
  for (const DeviceRect& r : changed) Compose(r);
  host_.Show(plane_, planeSize_, changed);
}

Surface Screen::Capture(const Form& form) {
  Flush();
  const DeviceRect at = form.DeviceBounds();
  Surface out(form.width(), form.height(), scale_, colors::kBlack);
  out.BitBlt(0, 0, form.width(), form.height(), plane_, at.left / double(scale_),
             at.top / double(scale_), RasterOp::SrcCopy);
  return out;
}

Surface Screen::CaptureUnder(const Form& form) {
  // The forms from this one up are left out of one composition; what they cover is invalid then.
  const auto all = forms_;
  const auto from = std::find(forms_.begin(), forms_.end(), &form);
  forms_.erase(from, forms_.end());
  const DeviceRect at = form.DeviceBounds();
  Compose(Intersect(at, {0, 0, planeSize_.width, planeSize_.height}));
  forms_ = all;
  Surface out(form.width(), form.height(), scale_, colors::kBlack);
  out.BitBlt(0, 0, form.width(), form.height(), plane_, at.left / double(scale_),
             at.top / double(scale_), RasterOp::SrcCopy);
  Invalidate(at);
  return out;
}

// --- Forms

bool Screen::TakesInput(const Form& form) const {
  if (modal_.empty()) return form.shown();
  const auto front = std::find(forms_.begin(), forms_.end(), modal_.back());
  return std::find(front, forms_.end(), &form) != forms_.end();
}

void Screen::BringIn(Form& form) {
  std::erase(forms_, &form);
  forms_.push_back(&form);
}

void Screen::TakeOut(Form& form) {
  std::erase(forms_, &form);
  if (captured_ && captured_->form() == &form) captured_ = nullptr;
}

void Screen::Activate() {
  Form* front = top();
  if (front == active_) return;
  active_ = front;
  HideTip();
  if (!front) return;
  if (OnForm) OnForm(*front);
  front->Form_Activate();
}

void Screen::ShowModal(Form& form) {
  form.Show();
  modal_.push_back(&form);
  RunWhile([&form] { return form.shown(); });
  std::erase(modal_, &form);
  Activate();
}

void Screen::Forget(Form* form) {
  std::erase(forms_, form);
  std::erase(modal_, form);
  if (active_ == form) active_ = nullptr;
  if (dragged_ == form) dragged_ = nullptr;
}

void Screen::Forget(Control* control) {
  if (pressed_ == control) pressed_ = nullptr;
  if (captured_ == control) captured_ = nullptr;
  if (hovered_ == control) hovered_ = nullptr;
  if (tipFor_ == control) HideTip();
}

void Screen::RemoveTimer(Timer* timer) { std::erase(timers_, timer); }

// --- The loop

void Screen::EndProgram() {
  ended_ = true;
  throw ProgramEnded{};
}

void Screen::Run() {
  RunWhile([] { return true; });
}

std::int64_t Screen::NextDue() const {
  std::int64_t due = kForever;
  for (const Timer* timer : timers_)
    if (timer->enabled()) due = std::min(due, timer->due());
  if (tipFor_ && tipArea_.empty()) due = std::min(due, tipDue_);
  return due;
}

void Screen::RunTimers() {
  const std::int64_t now = host_.NowMicros();
  if (tipFor_ && tipArea_.empty() && tipDue_ <= now) ShowTip();
  // A tick may add and remove timers, its own included: the list is searched anew for each, and
  // none fires twice in one round, so that input gets its turn.
  std::vector<Timer*> fired;
  for (;;) {
    Timer* next = nullptr;
    for (Timer* timer : timers_)
      if (timer->enabled() && timer->due() <= now && (!next || timer->due() < next->due()) &&
          std::find(fired.begin(), fired.end(), timer) == fired.end())
        next = timer;
    if (!next) return;
    fired.push_back(next);
    next->Fire(now);
  }
}

void Screen::RunWhile(const std::function<bool()>& go) {
  while (go()) {
    if (modal_.empty())  // no handler of an owned form is on the stack here
      std::erase_if(owned_, [](const auto& form) { return !form->shown(); });
    Activate();
    if (!go()) return;
    RunTimers();
    if (!go()) return;
    if (top() != active_) continue;
    Flush();
    Event event;
    if (host_.WaitEvent(event, NextDue())) Dispatch(event);
  }
}

void Screen::Wait(double milliseconds) {
  WaitUntil(host_.NowMicros() + std::int64_t(milliseconds * 1000));
}

void Screen::WaitUntil(std::int64_t micros) {
  Flush();
  while (host_.NowMicros() < micros) {
    Event event;
    if (!host_.WaitBlocked(event, micros)) continue;
    if (HandleSystem(event)) {
      Flush();
    } else if (event.kind == EventKind::MouseMove) {
      mouse_ = {event.x / fit_, event.y / fit_};
    } else if (event.kind == EventKind::MouseUp) {
      // The press belonged to before the wait: it ends here without a click.
      if (pressed_) pressed_->SetPressed(false);
      pressed_ = nullptr;
      dragged_ = nullptr;
    }
  }
}

bool Screen::HandleSystem(const Event& event) {
  switch (event.kind) {
    case EventKind::Quit:
      EndProgram();
    case EventKind::Expose:
      invalid_.assign(1, {0, 0, planeSize_.width, planeSize_.height});
      return true;
    case EventKind::Resize: {
      // A window tells its size as it opens, too: then nothing has changed.
      if (host_.WindowSize() == window_) return true;
      Measure();
      for (Form* form : forms_) form->PlaceOnPlane();
      if (clip_) ClipCursor(clip_);
      return true;
    }
    default:
      return false;
  }
}

void Screen::Dispatch(const Event& event) {
  if (HandleSystem(event)) return;
  Point at{event.x / fit_, event.y / fit_};
  if (clip_) {
    at.x = std::clamp(at.x, clip_->left, clip_->right());
    at.y = std::clamp(at.y, clip_->top, clip_->bottom());
  }
  switch (event.kind) {
    case EventKind::MouseMove:
      MouseMoved(at);
      break;
    case EventKind::MouseDown:
      mouse_ = at;
      MousePressed(at, event.button);
      break;
    case EventKind::MouseUp:
      mouse_ = at;
      MouseReleased(at, event.button);
      break;
    case EventKind::MouseLeave:
      HideTip();
      hovered_ = nullptr;
      break;
    default:
      break;
  }
}

// --- Mouse

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

void Screen::MouseMoved(Point at) {
  mouse_ = at;
  if (dragged_) {
    const DeviceRect bounds = dragged_->DeviceBounds();
    // A part of the form always stays within reach.
    const int reach = 40 * scale_;
    const int left = bounds.left + int(std::lround((at.x - dragFrom_.x) * scale_));
    const int top = bounds.top + int(std::lround((at.y - dragFrom_.y) * scale_));
    dragFrom_ = at;
    dragged_->MoveOnPlane(std::clamp(left, reach - bounds.width(), planeSize_.width - reach),
                          std::clamp(top, reach - bounds.height(), planeSize_.height - reach));
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
  hovered_ = target;
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
  UpdatePointer(at);
}

void Screen::MousePressed(Point at, MouseButton button) {
  HideTip();
  Control* target = Captured();
  Form* form = target ? target->form() : FormAt(at);
  if (!form) return;
  const Point p = InForm(*form, at);
  if (!target) target = form->HitTest(p.x, p.y);
  if (target) {
    if (button == MouseButton::Left) {
      pressed_ = target;
      target->SetPressed(true);
    }
    target->MouseDown(ArgsFor(*target, *form, at, button));
  } else {
    form->Form_MouseDown({button, p.x, p.y});
  }
  UpdatePointer(at);
}

void Screen::MouseReleased(Point at, MouseButton button) {
  if (button != MouseButton::Left) return;
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
  UpdatePointer(mouse_);
}

void Screen::UpdatePointer(Point at) {
  Pointer pointer;
  if (dragged_) {
    pointer.kind = Pointer::Kind::SizeAll;
  } else if (Form* form = Holder() ? Holder()->form() : FormAt(at)) {
    const Point p = InForm(*form, at);
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
  dragFrom_ = mouse_;
}

void Screen::SetCapture(Control* control) { captured_ = control; }

Control* Screen::Captured() const {
  return captured_ && TakesInput(*captured_->form()) ? captured_ : nullptr;
}

void Screen::ClipCursor(const std::optional<Rect>& area) {
  clip_ = area;
  if (!area) {
    host_.ClipPointer(std::nullopt);
    return;
  }
  host_.ClipPointer(DeviceRect{
      int(std::floor(area->left * fit_)), int(std::floor(area->top * fit_)),
      int(std::ceil(area->right() * fit_)) + 1, int(std::ceil(area->bottom() * fit_)) + 1});
}

}  // namespace platform
