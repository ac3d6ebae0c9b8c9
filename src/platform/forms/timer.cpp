#include "platform/forms/controls.h"
#include "platform/forms/screen.h"

namespace platform {

Timer::~Timer() {
  if (screen_) screen_->RemoveTimer(this);
}

void Timer::Attach(Form& form, int intervalMs, bool enabled) {
  screen_ = &form.screen();
  intervalMs_ = intervalMs;
  screen_->AddTimer(this);
  SetEnabled(enabled);
}

void Timer::SetEnabled(bool enabled) {
  if (enabled && !enabled_) dueMicros_ = screen_->host().NowMicros() + intervalMs_ * 1000LL;
  enabled_ = enabled;
}

void Timer::SetInterval(int ms) {
  if (ms == intervalMs_) return;
  intervalMs_ = ms;
  if (enabled_) dueMicros_ = screen_->host().NowMicros() + ms * 1000LL;
}

void Timer::Fire(std::int64_t nowMicros) {
  // Keeps the beat; after a long wait it fires once and starts a new beat instead of catching up.
  dueMicros_ += intervalMs_ * 1000LL;
  if (dueMicros_ <= nowMicros) dueMicros_ = nowMicros + intervalMs_ * 1000LL;
  if (OnTimer) OnTimer();
}

}  // namespace platform
