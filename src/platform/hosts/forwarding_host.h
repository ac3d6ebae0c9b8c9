// A host over another one, which does all but what a derived host does otherwise.
#pragma once

#include "platform/hosts/host.h"

namespace platform {

class ForwardingHost : public Host {
 public:
  // `host` must outlive it.
  explicit ForwardingHost(Host& host) : host_(host) {}

  PixelSize WindowSize() override { return host_.WindowSize(); }
  PixelSize LargestWindow() override { return host_.LargestWindow(); }
  std::int64_t NowMicros() override { return host_.NowMicros(); }
  std::tm LocalTime() override { return host_.LocalTime(); }
  bool WaitEvent(Event& event, std::int64_t deadline) override {
    return host_.WaitEvent(event, deadline);
  }
  bool PollEvent(Event& event) override { return host_.PollEvent(event); }
  bool WaitBlocked(Event& event, std::int64_t deadline) override {
    return host_.WaitBlocked(event, deadline);
  }
  void Show(const Surface& plane, const std::vector<DeviceRect>& changed) override {
    host_.Show(plane, changed);
  }
  std::int64_t FrameMicros() override { return host_.FrameMicros(); }
  void SetPointer(const Pointer& pointer, double scale) override {
    host_.SetPointer(pointer, scale);
  }
  void ClipPointer(const std::optional<DeviceRect>& area) override { host_.ClipPointer(area); }
  void TakeText(const std::optional<DeviceRect>& caret) override { host_.TakeText(caret); }
  std::string Clipboard() override { return host_.Clipboard(); }
  void SetClipboard(const std::string& text) override { host_.SetClipboard(text); }
  void PlaySound(const std::shared_ptr<const Wave>& wave) override { host_.PlaySound(wave); }

 protected:
  Host& host_;
};

}  // namespace platform
