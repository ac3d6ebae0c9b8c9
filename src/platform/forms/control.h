// The base of everything that stands on a form.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/drawing/picture.h"
#include "platform/drawing/surface.h"
#include "platform/hosts/host.h"

namespace platform {

class Form;
class Screen;

// A picture with the logical size at which it is shown.
struct SizedPicture {
  std::shared_ptr<const Picture> picture;
  int width = 0;
  int height = 0;
  explicit operator bool() const { return picture != nullptr; }
};

// The two pointers of a control that takes clicks: the first as the mouse moves over it, the second
// from a press to the next movement.
struct HandPointers {
  Pointer open;
  Pointer closed;
};

struct MouseArgs {
  MouseButton button = MouseButton::Left;
  double x = 0;  // logical pixels in the control
  double y = 0;
};

class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  // --- What a form sets at design. A control belongs to one form from then on.
  void Attach(Form& form, std::string name, const Rect& place, Control* container);

  const std::string& name() const { return name_; }
  Form* form() const { return form_; }
  Control* container() const { return container_; }

  const Rect& place() const { return place_; }  // in the container
  virtual void Move(const Rect& place);
  bool visible() const { return visible_; }
  void SetVisible(bool visible);
  bool ShownOnScreen() const;  // visible, and so are its containers and its form
  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  void SetToolTip(std::string text) { toolTip_ = std::move(text); }
  const std::string& toolTip() const { return toolTip_; }
  void SetPointer(Pointer pointer);
  const Pointer& pointer() const { return pointer_; }
  // Follows the rule of the hand pointers by itself; with `focusOnMove` a movement over the control
  // gives it the focus too. The pointers must outlive the control.
  void UseHand(const HandPointers* hand, bool focusOnMove);
  bool focusOnMove() const { return focusOnMove_; }
  void SetFocus();
  bool focused() const;

  // Explicit repaint: what the control covers is composed and shown at once.
  void Refresh();
  // Asks for a repaint before the next wait.
  void Invalidate();

  // --- For the form and the screen.
  // Labels, images, shapes and lines have no window of their own: they lie under all windowed
  // controls of their container, whatever the order of the table.
  virtual bool windowed() const { return true; }
  virtual bool takesMouse() const { return true; }
  // Paints itself with the surface's origin at its corner and the clip set to what is to change.
  virtual void Paint(Surface& surface) = 0;
  // The area that may be painted, in the container; larger than the place for wide lines.
  virtual Rect PaintBounds() const { return place_; }
  // Text that must stay inside the place, for whoever checks forms.
  virtual std::string_view text() const { return {}; }
  virtual bool TextFits() const { return true; }
  virtual Point childOrigin() const { return {}; }  // where children count from, in the control
  Rect InForm(const Rect& r) const;                 // from container to form coordinates

  virtual void MouseMove(const MouseArgs& args);
  virtual void MouseDown(const MouseArgs& args);
  virtual void Click();
  void SetPressed(bool pressed);
  bool pressed() const { return pressed_; }

  // A click gives it the focus, and so does Tab when it comes to it.
  virtual bool focusable() const { return false; }
  virtual bool tabStop() const { return focusable(); }
  // The keys come to it, or no longer: it has the focus, and its form is in front.
  virtual void KeysCome(bool /*come*/) {}
  virtual bool TakeKey(const Event&) { return false; }  // true if it was of use

  // --- Events, set by the form that owns the control.
  std::function<void(const MouseArgs&)> OnMouseMove;
  std::function<void(const MouseArgs&)> OnMouseDown;
  std::function<void()> OnClick;
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;

 protected:
  int scale() const;
  // A thin dotted line inside the edge, for whoever uses the keys.
  void PaintFocusMark(Surface& surface) const;

  std::string name_;
  Form* form_ = nullptr;
  Control* container_ = nullptr;
  Rect place_;
  bool visible_ = true;
  bool enabled_ = true;
  bool pressed_ = false;
  bool focusOnMove_ = false;
  const HandPointers* hand_ = nullptr;
  Pointer pointer_;
  std::string tag_;
  std::string toolTip_;
};

// An array of controls that grows as elements are loaded, indexed as the form tells it.
template <class C>
class ControlArray {
 public:
  C& operator()(int index) { return *items_.at(std::size_t(index)); }
  const C& operator()(int index) const { return *items_.at(std::size_t(index)); }
  // Makes sure that the element exists.
  C& Load(int index) {
    if (std::size_t(index) >= items_.size()) items_.resize(std::size_t(index) + 1);
    auto& item = items_[std::size_t(index)];
    if (!item) item = std::make_unique<C>();
    return *item;
  }
  bool Has(int index) const {
    return index >= 0 && std::size_t(index) < items_.size() && items_[std::size_t(index)];
  }

 private:
  std::vector<std::unique_ptr<C>> items_;
};

}  // namespace platform
