#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/screen.h"

namespace platform {

void PictureBox::Apply(const Look& look) {
  back_ = look.back;
  border_ = look.border;
  autoSize_ = look.autoSize;
  sprite_ = look.sprite;
  clear_ = look.clear;
  visible_ = look.visible;
  if (look.picture) SetPicture(look.picture);
}

Surface& PictureBox::surface() {
  if (surface_.width() != innerWidth() || surface_.height() != innerHeight()) Restore();
  return surface_;
}

void PictureBox::Cls() {
  printAt_ = {};
  Restore();
}

void PictureBox::Print(std::string_view line) {
  surface().TextOut(printAt_.x, printAt_.y, line, printFont_, fore_);
  const TextSize size = MeasureText(line, {printFont_, fore_, Align::Left, false}, 0);
  printAt_ = {0, printAt_.y + size.height};
  Invalidate();
}

void PictureBox::Restore() {
  if (clear_) {
    surface_ = {};
  } else if (picture_ && picture_.width == innerWidth() && picture_.height == innerHeight()) {
    surface_ = picture_.picture->Fit(picture_.width, picture_.height, scale(),
                                     sprite_ ? colors::kWhite : back_, sprite_);
  } else {
    surface_ = Surface(innerWidth(), innerHeight(), scale(), back_);
    if (picture_)
      picture_.picture->Draw(surface_, {0, 0, double(picture_.width), double(picture_.height)});
  }
  Invalidate();
}

void PictureBox::SetPicture(const SizedPicture& picture) {
  picture_ = picture;
  if (autoSize_ && picture)
    Control::Move({place_.left, place_.top, double(picture.width + 2 * inset()),
                   double(picture.height + 2 * inset())});
  Restore();
}

void PictureBox::SetBorder(bool border) {
  if (border == border_) return;
  Invalidate();
  border_ = border;
  if (autoSize_ && picture_)
    Control::Move({place_.left, place_.top, double(picture_.width + 2 * inset()),
                   double(picture_.height + 2 * inset())});
  Invalidate();
}

void PictureBox::SetBackColor(Color color) {
  back_ = color;
  Restore();
}

void PictureBox::Move(const Rect& place) {
  const bool resized = place.width != place_.width || place.height != place_.height;
  Control::Move(place);
  if (resized && surface_.width() > 0) Restore();
}

void PictureBox::Paint(Surface& target) {
  if (border_) {
    target.FillRect({0, 0, place_.width, place_.height}, colors::kBlack);
  }
  if (clear_) {
    if (picture_)
      picture_.picture->Draw(
          target, {double(inset()), double(inset()), double(innerWidth()), double(innerHeight())});
  } else if (surface_.width() == innerWidth() && surface_.height() == innerHeight()) {
    target.BitBlt(inset(), inset(), innerWidth(), innerHeight(), surface_, 0, 0, RasterOp::SrcCopy);
  } else {
    target.FillRect({double(inset()), double(inset()), double(innerWidth()), double(innerHeight())},
                    back_);
  }
}

}  // namespace platform
