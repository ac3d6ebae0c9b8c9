// What the platform layer asks of the machine it runs on. Everything above a host is portable: the
// same loop, forms and drawing run over the desktop window and over the headless host.
#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/drawing/geometry.h"
#include "platform/drawing/surface.h"
#include "platform/hosts/wave.h"

namespace platform {

enum class EventKind {
  MouseMove,
  MouseDown,
  MouseUp,
  MouseLeave,  // the pointer has left the window
  KeyDown,     // a key that means something by itself
  Text,        // what was typed, however many keys it took
  Composing,   // what is being typed and not yet text: replaces what was so before
  Expose,      // the window's content is lost: show it all again
  Resize,      // the window has another size
  Quit,        // the window was closed from the system
};

enum class MouseButton { Left = 1, Middle = 2, Right = 3 };

// Letters are those of the keyboard's layout, as commands with ctrl; as letters they come in Text.
enum class Key {
  None,
  Tab,
  Enter,
  Escape,
  Space,
  Backspace,
  Delete,
  Left,
  Right,
  Up,
  Down,
  Home,
  End,
  A,
  C,
  V,
  X,
};

struct Event {
  EventKind kind = EventKind::MouseMove;
  int x = 0;  // window pixels
  int y = 0;
  MouseButton button = MouseButton::Left;
  Key key = Key::None;
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
  std::string text = {};  // UTF-8
};

struct PixelSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// A pointer shape. A custom one is a picture with a hot spot, both in logical pixels.
struct Pointer {
  enum class Kind { Arrow, Hourglass, SizeAll, IBeam, Custom };
  Kind kind = Kind::Arrow;
  std::shared_ptr<const class Picture> picture;
  int hotX = 0;
  int hotY = 0;
  friend bool operator==(const Pointer&, const Pointer&) = default;
};

class Host {
 public:
  virtual ~Host() = default;

  virtual PixelSize WindowSize() = 0;
  // The largest window there can be: it decides the scale at which everything is drawn, once, so
  // that a window made smaller or larger never costs a drawn surface its resolution.
  virtual PixelSize LargestWindow() = 0;

  virtual std::int64_t NowMicros() = 0;  // steady
  virtual std::tm LocalTime() = 0;       // of the wall clock, for a date that is read
  // Sleeps until an event or the deadline, whichever comes first; false at the deadline.
  virtual bool WaitEvent(Event& event, std::int64_t deadlineMicros) = 0;
  // An event that waits already; false if none does.
  virtual bool PollEvent(Event& event) = 0;
  // As WaitEvent, for a blocking wait in which no input counts: a scripted host offers none.
  virtual bool WaitBlocked(Event& event, std::int64_t deadlineMicros) {
    return WaitEvent(event, deadlineMicros);
  }

  // Shows the changed parts of the plane at once.
  virtual void Show(const Surface& plane, const std::vector<DeviceRect>& changed) = 0;
  // How long the display takes from one picture to the next; 0 if it shows each.
  virtual std::int64_t FrameMicros() { return 0; }

  virtual void SetPointer(const Pointer& pointer, double windowPixelsPerLogical) = 0;
  // Keeps the pointer inside a rectangle of window pixels, or frees it.
  virtual void ClipPointer(const std::optional<DeviceRect>& area) = 0;

  // Where text is typed, in window pixels, for whatever helps with typing; nothing while a key is
  // no text to anybody.
  virtual void TakeText(const std::optional<DeviceRect>& caret) = 0;
  virtual std::string Clipboard() = 0;
  virtual void SetClipboard(const std::string& text) = 0;

  // One voice: a new sound cuts the old one off; null is silence. Errors are silence too.
  virtual void PlaySound(const std::shared_ptr<const Wave>& wave) = 0;
};

inline constexpr std::int64_t kForever = INT64_MAX;

}  // namespace platform
