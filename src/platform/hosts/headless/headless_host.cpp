#include "platform/hosts/headless/headless_host.h"

#include <algorithm>

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

void HeadlessHost::Resize(PixelSize window) {
  window_ = window;
  Queue({EventKind::Resize, 0, 0, MouseButton::Left});
}

bool HeadlessHost::Next(Event& event, std::int64_t deadline, const std::function<void()>& ask) {
  if (queue_.empty() && ask) ask();
  if (!queue_.empty()) {
    event = queue_.front();
    queue_.pop_front();
    return true;
  }
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

void HeadlessHost::Show(const Surface& plane, PixelSize planeSize,
                        const std::vector<DeviceRect>& changed) {
  ++shows_;
  planeSize_ = planeSize;
  if (shown_.width() != plane.width() || shown_.height() != plane.height() ||
      shown_.scale() != plane.scale()) {
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
  Reducer reducer(planeSize_.width, planeSize_.height, window_.width, window_.height);
  reducer.Run(shown_.row(0), shown_.deviceWidth(), out.row(0), out.deviceWidth(),
              out.deviceBounds());
  return out;
}

}  // namespace platform
