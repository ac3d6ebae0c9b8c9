// The plane on which all forms are composed, and the one loop that runs them.
//
// The window's pixels are divided by the largest factor at which 800 by 600 logical pixels fit; the
// plane is the window in logical pixels, drawn at the next whole scale at or above that factor.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/form.h"
#include "platform/hosts/host.h"

namespace platform {

// Thrown by EndProgram and passed through every nested loop up to whoever called Run.
struct ProgramEnded {};

class Screen {
 public:
  // Forms are at least 800 by 600 logical pixels of room. `scale` 0 chooses it from the host.
  explicit Screen(Host& host, int scale = 0);
  ~Screen();

  Host& host() { return host_; }
  int scale() const { return scale_; }
  PixelSize planeSize() const {  // device pixels
    return {plane_.deviceWidth(), plane_.deviceHeight()};
  }
  double windowPixelsPerLogical() const { return fit_; }
  const Surface& plane() const { return plane_; }
  // Logical plane coordinates to window pixels, the middle of the point.
  Point ToWindow(Point logical) const;
  DeviceRect WindowPixels(const Rect& logical) const;  // those that it touches

  // --- The loop
  void Run();  // until the program ends: never returns otherwise than by ProgramEnded
  [[noreturn]] void EndProgram();
  // Blocks for the time told, runs no event, keeps the window alive and throws away the clicks and
  // keys made meanwhile. What was changed before is shown first.
  void Wait(double milliseconds);
  // As Wait, up to a point of the host's clock; returns at once if that has passed.
  void WaitUntil(std::int64_t micros);
  void ShowModal(Form& form);

  // --- Painting
  void Invalidate(const DeviceRect& area);
  void Repaint(const DeviceRect& area);  // this part at once, nothing else
  void Flush();                          // all that is invalid, at once
  // The composed plane under `form`, as a surface of the form's size, as if the form and what lies
  // over it were not there.
  Surface CaptureUnder(const Form& form);
  // The composed plane in the form's rectangle, everything included. What has changed is in it, but
  // is not shown yet.
  Surface Capture(const Form& form);

  // --- Forms, bottom to top
  const std::vector<Form*>& forms() const { return forms_; }
  Form* top() const { return forms_.empty() ? nullptr : forms_.back(); }
  // Input goes to the front modal form and to what lies over it.
  bool TakesInput(const Form& form) const;
  void BringIn(Form& form);  // on top of the others
  void TakeOut(Form& form);
  void Activate();  // Form_Activate of the form that has come to the front, if another was there
  // Keeps a form that is shown not modally until it has been unloaded.
  void Own(std::unique_ptr<Form> form) { owned_.push_back(std::move(form)); }

  // --- Mouse
  void Drag(Form& form);
  // From now on every movement, press and click goes to this control, wherever the pointer is,
  // until another is told or null, or the control is no longer seen.
  void SetCapture(Control* control);
  // Keeps the pointer in a rectangle of the form, wherever that goes, as long as the form is shown;
  // while another form takes the input the pointer is free.
  void ClipCursor(Form& owner, const Rect& area);
  void FreeCursor();
  Control* pressed() const { return pressed_; }
  // Whether a click in the middle of the control would reach it.
  bool CanClick(const Control& control) const;

  // --- Keys go to the control that has the focus in the front form.
  bool HasKeys(const Control& control) const { return keys_ == &control; }
  // Focus is marked from the first key to the next move of the mouse.
  bool MarksFocus(const Control& control) const { return marksFocus_ && HasKeys(control); }
  void TakeText(const Control& control, const Rect& caret);  // in the control

  // --- For timers, controls and sounds
  // Something has moved, come or gone: what the pointer and the keys reach is worked out anew
  // before the next wait.
  void Rearranged() { rearranged_ = true; }
  void AddTimer(Timer* timer) { timers_.push_back(timer); }
  void RemoveTimer(Timer* timer);
  void LetGo(Control* control);  // it is no longer there to be pressed
  void Forget(Control* control);
  void Forget(Form* form);
  // Whoever keeps a record of a game is told of each sound and each form.
  std::function<void(const std::string&)> OnSound;
  std::function<void(const Form&)> OnForm;  // has come to the front
  void Heard(const std::string& name) {
    if (OnSound) OnSound(name);
  }

 private:
  friend class Watch;

  // The loop.
  bool FrontIsNew() const;
  void RunWhile(const std::function<bool()>& go);
  void RunTimers();
  std::int64_t NextDue() const;
  bool Take(Event& event, std::int64_t deadline, bool blocked);
  void Dispatch(const Event& event);
  bool HandleSystem(const Event& event);  // true if that was all
  void Settle();

  // Painting.
  void Measure();
  void Compose(const DeviceRect& area);
  void ShowTip();
  void HideTip();
  void PaintTip(const DeviceRect& area);

  // Mouse.
  Point PlacePointer(const Event& event);
  void MouseMoved(Point at);
  void MousePressed(Point at, MouseButton button);
  void MouseReleased(Point at, MouseButton button);
  Form* FormAt(Point at) const;
  // To whom the mouse belongs whatever it points at; null: to nobody. A box over the form of the
  // one who has captured it comes first.
  Control* Captured() const;
  Control* Holder() const { return Captured() ? captured_ : pressed_; }
  Point InForm(const Form& form, Point at) const;
  MouseArgs ArgsFor(const Control& control, const Form& form, Point at, MouseButton button) const;
  void UpdatePointer();
  std::optional<Rect> ClipArea() const;  // on the plane
  void ApplyClip();

  // Keys.
  void KeyPressed(const Event& event);
  void Escape();
  void AimKeys();
  void MarkFocus(bool mark);

  Host& host_;
  int fixedScale_;
  int scale_ = 1;
  double fit_ = 1;
  PixelSize window_;
  Surface plane_;
  std::vector<DeviceRect> invalid_;
  std::int64_t shownAt_ = 0;

  std::vector<Form*> forms_;
  std::vector<Form*> modal_;
  std::vector<std::unique_ptr<Form>> owned_;
  Form* active_ = nullptr;
  std::vector<Timer*> timers_;
  std::vector<class Watch*> watches_;
  bool ended_ = false;
  bool rearranged_ = false;
  std::optional<Event> next_;  // came behind motions of the pointer
  bool carried_ = false;       // nothing but the pointer has moved since the last picture

  Control* pressed_ = nullptr;
  Control* captured_ = nullptr;
  Form* dragged_ = nullptr;
  Point grab_;  // of the dragged form, in device pixels with their fractions
  Point mouse_;
  Form* clipOwner_ = nullptr;
  Rect clip_;  // in its owner
  std::optional<DeviceRect> shownClip_;
  Pointer shownPointer_;
  Control* tipFor_ = nullptr;  // waits for its tip, or shows it
  std::int64_t tipDue_ = 0;
  DeviceRect tipArea_;  // empty while no tip is shown

  Control* keys_ = nullptr;
  bool marksFocus_ = false;
};

// Tells whether a control is still there after a handler has run.
class Watch {
 public:
  explicit Watch(Control& control);
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  explicit operator bool() const { return control_ != nullptr; }

 private:
  friend class Screen;
  Screen& screen_;
  Control* control_;
};

}  // namespace platform
