#include "platform/hosts/headless/headless_host.h"

#include <algorithm>

#include "platform/drawing/clusters.h"
#include "platform/drawing/reduce.h"

namespace platform {

std::tm HeadlessHost::Monday() {
  std::tm monday{};
  monday.tm_year = 2026 - 1900;
  monday.tm_mon = 4;
  monday.tm_mday = 4;
  monday.tm_wday = 1;
  monday.tm_hour = 9;
  monday.tm_min = 5;
  return monday;
}

void HeadlessHost::Click(Point at, MouseButton button) {
  const int x = int(at.x), y = int(at.y);
  Queue({EventKind::MouseMove, x, y, MouseButton::Left});
  Queue({EventKind::MouseDown, x, y, button});
  Queue({EventKind::MouseUp, x, y, button});
}

void HeadlessHost::Press(Key key, bool shift, bool ctrl) {
  Queue({.kind = EventKind::KeyDown, .key = key, .shift = shift, .ctrl = ctrl});
}

void HeadlessHost::Type(const std::string& text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = NextCluster(text, at);
    Queue({.kind = EventKind::Text, .text = text.substr(at, end - at)});
    at = end;
  }
}

void HeadlessHost::Resize(PixelSize window) {
  window_ = window;
  Queue({EventKind::Resize, 0, 0, MouseButton::Left});
}

bool HeadlessHost::PollEvent(Event& event) {
  if (queue_.empty()) return false;
  event = std::move(queue_.front());
  queue_.pop_front();
  return true;
}

bool HeadlessHost::Next(Event& event, std::int64_t deadline, const std::function<void()>& ask) {
  if (queue_.empty() && ask) ask();
  if (PollEvent(event)) return true;
  if (deadline == kForever) {
    // Nothing will ever happen again: the machine is switched off.
    event.kind = EventKind::Quit;
    return true;
  }
  now_ = std::max(now_, deadline);
  return false;
}

bool HeadlessHost::WaitEvent(Event& event, std::int64_t deadline) {
  return Next(event, deadline, OnIdle);
}

bool HeadlessHost::WaitBlocked(Event& event, std::int64_t deadline) {
  return Next(event, deadline, OnBlocked);
}

void HeadlessHost::Show(const Surface& plane, const std::vector<DeviceRect>& changed) {
  ++shows_;
  if (shown_.deviceBounds() != plane.deviceBounds() || shown_.scale() != plane.scale()) {
    shown_ = plane;
  } else {
    for (const DeviceRect& r : changed)
      for (int y = r.top; y < r.bottom; ++y)
        std::copy_n(plane.row(y) + r.left, r.width(), shown_.row(y) + r.left);
  }
  if (OnShow) OnShow(changed);
}

Surface HeadlessHost::Shot() const {
  Surface out(window_.width, window_.height, 1, colors::kBlack);
  if (shown_.width() == 0) return out;
  Reducer reducer(shown_.deviceWidth(), shown_.deviceHeight(), window_.width, window_.height);
  reducer.Run(shown_.row(0), shown_.deviceWidth(), out.row(0), out.deviceWidth(),
              out.deviceBounds());
  return out;
}

}  // namespace platform
