// A machine without a screen: a virtual clock, scripted input, and a plane that can be saved. The
// same loop and forms run over it, so that a whole game takes seconds and shows every screen.
#pragma once

#include <deque>
#include <functional>

#include "platform/hosts/host.h"

namespace platform {

class HeadlessHost : public Host {
 public:
  explicit HeadlessHost(PixelSize window = {800, 600}) : window_(window) {}

  // Asked for input whenever the program would sleep with nothing queued. It may look at the forms
  // and queue events with Queue or Click; if it queues none, time goes on to the next deadline.
  std::function<void()> OnIdle;
  // Asked likewise in the middle of a blocking wait: an impatient child.
  std::function<void()> OnBlocked;
  // Called for each shown change, after it.
  std::function<void(const std::vector<DeviceRect>&)> OnShow;

  // What its wall clock shows, always: nine and five minutes of Monday 4 May 2026.
  std::tm wallClock = Monday();

  void Queue(const Event& event) { queue_.push_back(event); }
  // Moves the pointer there, presses and releases.
  void Click(Point windowPixel, MouseButton button = MouseButton::Left);
  void Press(Key key, bool shift = false, bool ctrl = false);
  void Type(const std::string& text);  // character by character
  void Resize(PixelSize window);

  // What a person would see: the plane as last shown, reduced to the window.
  Surface Shot() const;
  const Surface& planeShown() const { return shown_; }
  const Pointer& pointer() const { return pointer_; }
  const std::optional<DeviceRect>& pointerArea() const { return pointerArea_; }
  const std::optional<DeviceRect>& textArea() const { return textArea_; }
  std::int64_t shows() const { return shows_; }

  PixelSize WindowSize() override { return window_; }
  PixelSize LargestWindow() override { return window_; }
  std::int64_t NowMicros() override { return now_; }
  std::tm LocalTime() override { return wallClock; }
  bool WaitEvent(Event& event, std::int64_t deadlineMicros) override;
  bool PollEvent(Event& event) override;
  bool WaitBlocked(Event& event, std::int64_t deadlineMicros) override;
  void Show(const Surface& plane, const std::vector<DeviceRect>& changed) override;
  void SetPointer(const Pointer& pointer, double) override { pointer_ = pointer; }
  void ClipPointer(const std::optional<DeviceRect>& area) override { pointerArea_ = area; }
  void TakeText(const std::optional<DeviceRect>& caret) override { textArea_ = caret; }
  std::string Clipboard() override { return clipboard_; }
  void SetClipboard(const std::string& text) override { clipboard_ = text; }
  void PlaySound(const std::shared_ptr<const Wave>&) override {}

 private:
  static std::tm Monday();
  bool Next(Event& event, std::int64_t deadline, const std::function<void()>& ask);

  PixelSize window_;
  std::int64_t now_ = 0;
  std::deque<Event> queue_;
  Surface shown_;
  Pointer pointer_;
  std::optional<DeviceRect> pointerArea_, textArea_;
  std::string clipboard_;
  std::int64_t shows_ = 0;
};

}  // namespace platform
