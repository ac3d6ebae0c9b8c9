// Forms from bottom to top, and the loop that runs them.
#include "platform/forms/screen.h"

#include <algorithm>

namespace platform {

Screen::~Screen() { owned_.clear(); }

// --- Forms

bool Screen::TakesInput(const Form& form) const {
  if (modal_.empty()) return form.shown();
  const auto front = std::find(forms_.begin(), forms_.end(), modal_.back());
  return std::find(front, forms_.end(), &form) != forms_.end();
}

void Screen::BringIn(Form& form) {
  std::erase(forms_, &form);
  forms_.push_back(&form);
  HideTip();
  Rearranged();
}

void Screen::TakeOut(Form& form) {
  std::erase(forms_, &form);
  if (dragged_ == &form) dragged_ = nullptr;
  if (clipOwner_ == &form) FreeCursor();
  if (captured_ && captured_->form() == &form) captured_ = nullptr;
  if (pressed_ && pressed_->form() == &form) {
    pressed_->SetPressed(false);
    pressed_ = nullptr;
  }
  Rearranged();
}

bool Screen::FrontIsNew() const {
  const Form* front = top();
  return front != active_ && !(front && front->systemBox());
}

void Screen::Activate() {
  if (!FrontIsNew()) return;
  active_ = top();
  HideTip();
  if (!active_) return;
  if (OnForm) OnForm(*active_);
  active_->Form_Activate();
}

void Screen::ShowModal(Form& form) {
  form.Show();
  modal_.push_back(&form);
  RunWhile([&form] { return form.shown(); });
  std::erase(modal_, &form);
  Rearranged();
  // A system box comes and goes without the forms' knowing.
  if (!form.systemBox()) Activate();
}

void Screen::Forget(Form* form) {
  TakeOut(*form);
  std::erase(modal_, form);
  if (active_ == form) active_ = nullptr;
}

void Screen::LetGo(Control* control) {
  if (pressed_ == control) pressed_ = nullptr;
  if (captured_ == control) captured_ = nullptr;
  if (tipFor_ == control) HideTip();
  Rearranged();
}

void Screen::Forget(Control* control) {
  LetGo(control);
  if (keys_ == control) {
    keys_ = nullptr;
    host_.TakeText(std::nullopt);
  }
  for (Watch* watch : watches_)
    if (watch->control_ == control) watch->control_ = nullptr;
}

Watch::Watch(Control& control) : screen_(control.form()->screen()), control_(&control) {
  screen_.watches_.push_back(this);
}

Watch::~Watch() { std::erase(screen_.watches_, this); }

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
    if (FrontIsNew()) continue;
    Settle();
    std::int64_t due = NextDue();
    // A pointer may move more often than the display shows it: what follows it can wait for that.
    const std::int64_t frame = carried_ ? shownAt_ + host_.FrameMicros() : 0;
    if (host_.NowMicros() < frame)
      due = std::min(due, frame);
    else
      Flush();
    Event event;
    if (Take(event, due, false)) Dispatch(event);
  }
}

// What the pointer and the keys reach, after all that has moved since the last time.
void Screen::Settle() {
  if (!rearranged_) return;
  rearranged_ = false;
  UpdatePointer();
  ApplyClip();
  AimKeys();
}

// The next event; of motions that wait one behind the other only the last.
bool Screen::Take(Event& event, std::int64_t deadline, bool blocked) {
  if (next_) {
    event = std::move(*next_);
    next_.reset();
    return true;
  }
  if (!(blocked ? host_.WaitBlocked(event, deadline) : host_.WaitEvent(event, deadline)))
    return false;
  while (event.kind == EventKind::MouseMove) {
    Event behind;
    if (!host_.PollEvent(behind)) break;
    if (behind.kind != EventKind::MouseMove) {
      next_ = std::move(behind);
      break;
    }
    event = std::move(behind);
  }
  return true;
}

void Screen::Wait(double milliseconds) {
  WaitUntil(host_.NowMicros() + std::int64_t(milliseconds * 1000));
}

void Screen::WaitUntil(std::int64_t micros) {
  Settle();
  Flush();
  while (host_.NowMicros() < micros) {
    Event event;
    if (!Take(event, micros, true)) continue;
    if (HandleSystem(event)) {
      Settle();
      Flush();
    } else if (event.kind == EventKind::MouseMove) {
      mouse_ = PlacePointer(event);
      UpdatePointer();
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
      invalid_.assign(1, plane_.deviceBounds());
      return true;
    case EventKind::Resize:
      // A window tells its size as it opens, too: then nothing has changed.
      if (host_.WindowSize() == window_) return true;
      Measure();
      HideTip();
      dragged_ = nullptr;
      for (Form* form : forms_) form->Place();
      return true;
    default:
      return false;
  }
}

void Screen::Dispatch(const Event& event) {
  if (HandleSystem(event)) return;
  carried_ = event.kind == EventKind::MouseMove;
  switch (event.kind) {
    case EventKind::MouseMove:
      MouseMoved(PlacePointer(event));
      break;
    case EventKind::MouseDown:
      mouse_ = PlacePointer(event);
      MousePressed(mouse_, event.button);
      break;
    case EventKind::MouseUp:
      mouse_ = PlacePointer(event);
      MouseReleased(mouse_, event.button);
      break;
    case EventKind::MouseLeave:
      HideTip();
      break;
    case EventKind::KeyDown:
    case EventKind::Text:
    case EventKind::Composing:
      KeyPressed(event);
      break;
    default:
      break;
  }
}

}  // namespace platform
