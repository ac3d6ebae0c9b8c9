#include "platform/forms/form.h"

#include <algorithm>
#include <cmath>

#include "platform/drawing/pages.h"
#include "platform/forms/screen.h"

namespace platform {

Form::Form(Screen& screen, std::string name, int width, int height, Color back)
    : screen_(screen), name_(std::move(name)), width_(width), height_(height), back_(back) {
  Place();
}

Form::~Form() {
  // Controls are members of the derived form and are gone by now; nothing may look for them.
  controls_.clear();
  screen_.Forget(this);
  surface_ = {};
  scratch_ = {};
  picture_ = {};
  mask_.reset();
  ReturnPages();
}

void Form::Place() {
  if (placedOn_ == screen_.planeSize()) return;
  placedOn_ = screen_.planeSize();
  PlaceOnPlane();
  screen_.Rearranged();
}

void Form::PlaceOnPlane() {
  const PixelSize plane = screen_.planeSize();
  const int k = screen_.scale();
  left_ = (plane.width - width_ * k) / 2;
  top_ = (plane.height - height_ * k) / 2;
}

Rect Form::PlaneRect() const {
  const double k = screen_.scale();
  return {left_ / k, top_ / k, double(width_), double(height_)};
}

DeviceRect Form::DeviceBounds() const {
  const int k = screen_.scale();
  return {left_, top_, left_ + width_ * k, top_ + height_ * k};
}

DeviceRect Form::DeviceOf(const Rect& inForm) const {
  DeviceRect r = ToDevice(inForm, screen_.scale());
  r = {r.left + left_, r.top + top_, r.right + left_, r.bottom + top_};
  return Intersect(r, DeviceBounds());
}

void Form::MoveOnPlane(int deviceLeft, int deviceTop) {
  if (deviceLeft == left_ && deviceTop == top_) return;
  Invalidate();
  left_ = deviceLeft;
  top_ = deviceTop;
  Invalidate();
  screen_.Rearranged();
}

void Form::SetPointer(Pointer pointer) {
  pointer_ = std::move(pointer);
  screen_.Rearranged();
}

void Form::Adopt(Control* control) {
  controls_.push_back(control);
  screen_.Rearranged();
}

void Form::BeginDrag() { screen_.Drag(*this); }

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
}

void Form::Show() {
  Load();
  Place();  // the window may have changed since
  shown_ = true;
  screen_.BringIn(*this);
  Invalidate();
}

void Form::ShowModal() {
  Load();
  screen_.ShowModal(*this);
}

void Form::Hide() {
  if (!shown_) return;
  Invalidate();
  shown_ = false;
  screen_.TakeOut(*this);
}

void Form::Unload() {
  if (loaded_) {
    loaded_ = false;
    Form_Unload();
  }
  Hide();
}

Surface& Form::surface() {
  if (surface_.width() != width_ || surface_.height() != height_) Cls();
  return surface_;
}

void Form::SetSurface(Surface surface) {
  surface_ = std::move(surface);
  Invalidate();
}

void Form::SetPicture(const SizedPicture& picture) {
  picture_ = picture;
  Cls();
}

void Form::SetBackColor(Color color) {
  back_ = color;
  if (surface_.width() > 0) Cls();
  Invalidate();
}

void Form::Cls() {
  const int k = screen_.scale();
  if (picture_ && picture_.width == width_ && picture_.height == height_) {
    surface_ = picture_.picture->Fit(width_, height_, k, back_);
  } else {
    surface_ = Surface(width_, height_, k, back_);
    if (picture_)
      picture_.picture->Draw(surface_, {0, 0, double(picture_.width), double(picture_.height)});
  }
  Invalidate();
}

void Form::Resize(int width, int height) {
  if (width == width_ && height == height_) return;
  Invalidate();
  const Surface old = std::move(surface_);
  surface_ = {};
  width_ = width;
  height_ = height;
  if (old.width() > 0)
    surface().BitBlt(0, 0, old.width(), old.height(), old, 0, 0, RasterOp::SrcCopy);
  Invalidate();
}

void Form::Refresh() {
  if (shown_) screen_.Repaint(DeviceBounds());
}

void Form::Invalidate() {
  if (shown_) screen_.Invalidate(DeviceBounds());
}

void Form::Invalidate(const Rect& r) {
  if (shown_) screen_.Invalidate(DeviceOf(r));
}

void Form::ShapeRoundRect(const Rect& r, double ew, double eh) {
  mask_ = Mask::RoundRect(width_, height_, screen_.scale(), r, ew, eh);
  Invalidate();
}

void Form::ShapePolygon(const std::vector<Point>& points) {
  mask_ = Mask::Polygon(width_, height_, screen_.scale(), points);
  Invalidate();
}

Control* Form::Find(const std::string& name) const {
  for (Control* control : controls_)
    if (control->name() == name) return control;
  return nullptr;
}

bool Form::ContainsPoint(double x, double y) const {
  if (!Rect{0, 0, double(width_), double(height_)}.contains(x, y)) return false;
  return !mask_ || mask_->Contains(x, y);
}

Control* Form::HitTest(double x, double y) const {
  // Windowed controls first, front to back, then the ones without a window; a child is reached
  // before its container, since the container comes earlier in the table.
  for (const bool windowed : {true, false})
    for (auto it = controls_.rbegin(); it != controls_.rend(); ++it) {
      Control* c = *it;
      if (c->windowed() != windowed || !c->takesMouse() || !c->enabled()) continue;
      bool hit = c->InForm(c->place()).contains(x, y);
      for (const Control* up = c; hit && up; up = up->container())
        hit = up->visible() && (up == c || up->InForm(up->place()).contains(x, y));
      if (!hit) continue;
      // A label inside a picture box lies above that box, though it has no window.
      if (windowed)
        for (auto in = controls_.rbegin(); in != controls_.rend(); ++in) {
          Control* inner = *in;
          if (inner->container() == c && !inner->windowed() && inner->takesMouse() &&
              inner->visible() && inner->InForm(inner->place()).contains(x, y))
            return inner;
        }
      return c;
    }
  return nullptr;
}

void Form::Forget(Control* control) {
  std::erase(controls_, control);
  if (focus_ == control) focus_ = nullptr;
  if (cancel_ == control) cancel_ = nullptr;
  screen_.Forget(control);
}

void Form::PaintChildren(Surface& target, Control* container, Point origin,
                         const DeviceRect& clip) {
  const int k = target.scale();
  for (const bool windowed : {false, true})
    for (Control* c : controls_) {
      if (c->container() != container || c->windowed() != windowed || !c->visible()) continue;
      Rect bounds = c->PaintBounds();
      bounds.left += origin.x;
      bounds.top += origin.y;
      const DeviceRect area = Intersect(ToDevice(bounds, k), clip);
      if (area.empty()) continue;
      const Point corner{origin.x + c->place().left, origin.y + c->place().top};
      target.SetOrigin(corner);
      target.SetClip(area);
      c->Paint(target);
      // Children do not reach over their container's border.
      const Point border = c->childOrigin();
      const Point inner{corner.x + border.x, corner.y + border.y};
      const Rect room{inner.x, inner.y, c->place().width - 2 * border.x,
                      c->place().height - 2 * border.y};
      PaintChildren(target, c, inner, Intersect(area, ToDevice(room, k)));
    }
}

void Form::Compose(Surface& plane, const DeviceRect& area) {
  const DeviceRect part = Intersect(area, DeviceBounds());
  if (part.empty()) return;
  const double k = plane.scale();
  Surface* target = &plane;
  Point origin{left_ / k, top_ / k};
  DeviceRect clip = part;
  if (mask_) {
    if (scratch_.width() != width_ || scratch_.height() != height_)
      scratch_ = Surface(width_, height_, plane.scale(), back_);
    target = &scratch_;
    origin = {};
    clip = {part.left - left_, part.top - top_, part.right - left_, part.bottom - top_};
  }
  target->SetOrigin(origin);
  target->SetClip(clip);
  if (surface_.width() > 0) {
    target->BitBlt(0, 0, width_, height_, surface_, 0, 0, RasterOp::SrcCopy);
  } else {
    target->Cls(back_);
  }
  PaintChildren(*target, nullptr, origin, clip);
  target->SetOrigin({});
  target->SetClip(target->deviceBounds());
  if (mask_) CompositeMasked(plane, part.left, part.top, scratch_, *mask_, clip);
}

}  // namespace platform
