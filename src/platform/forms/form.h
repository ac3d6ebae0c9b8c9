// A window of the program: a surface, a place on the plane, a shape that also decides clicks, and
// its controls.
//
// A form is written as a table of controls (Row) in its constructor, then a handler for each event.
// A modal form is created for one opening: { FormX form(screen); form.ShowModal(); }
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/controls.h"

namespace platform {

class Form {
 public:
  Form(Screen& screen, std::string name, int width, int height, Color back);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& name() const { return name_; }
  Screen& screen() const { return screen_; }
  int width() const { return width_; }
  int height() const { return height_; }

  // --- Life. Form_Load runs once, before the first show; Form_Activate each time the form comes to
  // the front: when first shown, and once whenever a form over it has closed, after that form has
  // gone and before its modal show returns.
  void Load();
  void Show();       // not modal: returns at once
  void ShowModal();  // returns when the form has been hidden or unloaded
  void Hide();
  void Unload();  // Form_Unload, then gone; the object lives until its owner drops it
  bool shown() const { return shown_; }

  // --- Look
  void SetPicture(const SizedPicture& picture);  // at the top left corner, opaque
  void SetBackColor(Color color);
  Color backColor() const { return back_; }
  void Cls();                        // back to the background: colour and picture
  Surface& surface();                // persistent; what is drawn shows at the next repaint
  void SetSurface(Surface surface);  // in its place, of the form's size
  void Refresh();                    // repaints all of the form at once
  void Invalidate();
  void Invalidate(const Rect& r);
  void Resize(int width, int height);  // keeps its left and top
  void SetPointer(Pointer pointer);
  const Pointer& pointer() const { return pointer_; }

  // A corner ellipse of ew by eh, or a closed polygon; null shape is the whole rectangle.
  void ShapeRoundRect(const Rect& r, double ew, double eh);
  void ShapePolygon(const std::vector<Point>& points);
  bool shaped() const { return mask_.has_value(); }

  // --- Place on the plane, in its device pixels: forms stand on whole device pixels.
  int deviceLeft() const { return left_; }
  int deviceTop() const { return top_; }
  Rect PlaneRect() const;  // logical
  DeviceRect DeviceBounds() const;
  DeviceRect DeviceOf(const Rect& inForm) const;
  void MoveOnPlane(int deviceLeft, int deviceTop);
  // How the form is placed when the plane gets its size; centred unless a form says otherwise.
  virtual void PlaceOnPlane();
  void Place();  // does that, once for each size of the plane
  // Starts dragging the whole form with the mouse, until the button is released.
  void BeginDrag();

  // --- For the screen and for whoever looks a form over.
  const std::vector<Control*>& controls() const { return controls_; }  // back to front
  Control* Find(const std::string& name) const;
  Control* HitTest(double x, double y) const;    // null: the form itself
  bool ContainsPoint(double x, double y) const;  // by the shape
  void Compose(Surface& plane, const DeviceRect& area);
  void Forget(Control* control);
  void Adopt(Control* control);

  // --- Keys
  Control* focus() const { return focus_; }
  void SetFocus(Control* control);
  void FocusNext(bool backwards);  // in the order of the table, round and round
  // The control that Escape clicks, where a click would reach it.
  void SetCancel(Control& control) { cancel_ = &control; }
  Control* cancel() const { return cancel_; }

  // A box of the system is no form of the program: it comes and goes over the others without a
  // Form_Activate, its own or theirs.
  virtual bool systemBox() const { return false; }

  // --- Events
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Unload() {}
  virtual void Form_MouseMove(const MouseArgs&) {}
  virtual void Form_MouseDown(const MouseArgs&) {}

 protected:
  // One row of the form's table. Rows go from back to front.
  template <class C>
  C& Row(C& control, std::string name, const Rect& place, const typename C::Look& look = {},
         Control* container = nullptr) {
    control.Attach(*this, std::move(name), place, container);
    control.Apply(look);
    return control;
  }
  void Row(Timer& timer, int intervalMs, bool enabled, std::function<void()> tick) {
    timer.OnTimer = std::move(tick);
    timer.Attach(*this, intervalMs, enabled);
  }
  static std::string Indexed(const char* name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
  }

 private:
  void PaintChildren(Surface& target, Control* container, Point origin, const DeviceRect& clip);

  Screen& screen_;
  std::string name_;
  int width_;
  int height_;
  Color back_;
  Surface surface_;  // made at the first drawing: a plain form needs none
  SizedPicture picture_;
  std::optional<Mask> mask_;
  Surface scratch_;  // a shaped form is composed here before it is laid on the plane
  int left_ = 0;
  int top_ = 0;
  PixelSize placedOn_;
  bool loaded_ = false;
  bool shown_ = false;
  Pointer pointer_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  Control* cancel_ = nullptr;
};

}  // namespace platform
