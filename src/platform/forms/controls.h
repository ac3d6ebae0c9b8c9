// The kinds of controls. Each has a Look: what a form's table sets at design.
#pragma once

#include "platform/forms/control.h"

namespace platform {

class CommandButton : public Control {
 public:
  struct Look {
    SizedPicture picture = {};
    Color back = colors::kButtonFace;
    std::string caption = "";
    Font font = {};
    bool visible = true;
    std::string toolTip = "";
    const HandPointers* hand = nullptr;
    bool focusOnMove = false;
  };
  void Apply(const Look& look);
  void SetPicture(SizedPicture picture);
  const SizedPicture& picture() const { return picture_; }
  void SetCaption(std::string caption);
  void SetBackColor(Color color);
  Color backColor() const { return back_; }
  void Paint(Surface& surface) override { PaintButton(surface, pressed_); }
  bool focusable() const override { return true; }
  bool TakeKey(const Event& event) override;
  std::string_view text() const override { return caption_; }
  bool TextFits() const override;

 protected:
  void PaintButton(Surface& surface, bool down) const;

 private:
  Rect CaptionBox() const;
  SizedPicture picture_;
  Color back_ = colors::kButtonFace;
  std::string caption_;
  Font font_;
};

// A button that stays down once chosen, until another one of its container is.
class OptionButton : public CommandButton {
 public:
  struct Look {
    Color back = colors::kButtonFace;
    Font font = {};
    SizedPicture picture = {};
    std::string caption = "";
    bool value = false;
    bool visible = true;
    std::string toolTip = "";
    const HandPointers* hand = nullptr;
    bool focusOnMove = false;
  };
  void Apply(const Look& look);
  bool value() const { return value_; }
  void SetValue(bool value);  // no event
  void Click() override;
  void Paint(Surface& surface) override;
  bool tabStop() const override;  // the chosen one of a group, where one is
  bool TakeKey(const Event& event) override;

 private:
  std::vector<OptionButton*> Group() const;  // in the order of the table, this one included
  bool value_ = false;
};

class Label : public Control {
 public:
  struct Look {
    std::string caption = "";
    Font font = {};
    Color fore = colors::kBlack;
    Color back = colors::kButtonFace;
    bool transparent = true;
    Align align = Align::Left;
    bool wrap = true;
    // Sizes itself to its text: a left-aligned one grows from its left edge, a right-aligned one
    // from its right edge, a centred one about its middle; never wider than maxWidth (0: no bound).
    bool autoSize = false;
    double maxWidth = 0;
    double minWidth = 0;  // of the ground of one that sizes itself; its text may end before
    bool visible = true;
  };
  void Apply(const Look& look);
  void SetCaption(std::string caption);
  const std::string& caption() const { return caption_; }
  void SetForeColor(Color color);
  Color foreColor() const { return style_.color; }
  void SetFont(const Font& font);
  double drawnPoints() const { return style_.font.points; }
  void SetWrap(bool wrap);
  // Sizes itself from now on, or keeps the size that it has. One that wraps breaks its lines at the
  // width that it had, and then takes that of the widest.
  void SetAutoSize(bool autoSize);
  // Draws both texts, as they are now, in the smaller of the two sizes in which they fit.
  friend void SetInOneSize(Label& a, Label& b);
  void Move(const Rect& place) override;
  bool windowed() const override { return false; }
  void Paint(Surface& surface) override;
  std::string_view text() const override { return caption_; }
  bool TextFits() const override;

 private:
  // A text too long for its box is set in a smaller size: a child can read small letters, but not
  // letters that are cut off.
  void Layout();
  void SetAnchor();
  double WidestWord() const;

  std::string caption_;
  Font font_;        // as asked for
  TextStyle style_;  // as drawn
  Color back_ = colors::kButtonFace;
  bool transparent_ = true;
  bool autoSize_ = false;
  double maxWidth_ = 0;
  double wrapWidth_ = 0;  // of one that wraps and sizes itself
  double minWidth_ = 0;
  double anchor_ = 0;  // x of the edge or middle that stays when the label sizes itself
};

// A drawing surface of its own that may hold other controls.
class PictureBox : public Control {
 public:
  struct Look {
    Color back = colors::kButtonFace;
    bool border = false;    // flat, one pixel, black
    bool autoSize = false;  // takes the size of its picture, border added
    bool visible = true;
    bool sprite = false;  // the picture's transparency is cut, not blended
    bool clear = false;   // no ground and no surface: beside its picture shows what lies under it
    SizedPicture picture = {};
  };
  void Apply(const Look& look);
  void SetPicture(const SizedPicture& picture);
  void SetBorder(bool border);
  void SetBackColor(Color color);
  Color backColor() const { return back_; }
  void Cls();
  // The persistent surface, of the size inside the border.
  Surface& surface();

  // Prints a line at the print position, which then goes back to x = 0, one line down. Cls sets it
  // to 0, 0.
  void Print(std::string_view line);
  void SetPrintAt(double x, double y) { printAt_ = {x, y}; }
  void SetPrintFont(const Font& font) { printFont_ = font; }
  void SetForeColor(Color color) { fore_ = color; }

  int innerWidth() const { return int(place_.width) - 2 * inset(); }
  int innerHeight() const { return int(place_.height) - 2 * inset(); }
  void Move(const Rect& place) override;
  void Paint(Surface& surface) override;
  Point childOrigin() const override { return {double(inset()), double(inset())}; }

 private:
  int inset() const { return border_ ? 1 : 0; }
  void Restore();  // colour and picture
  Surface surface_;
  Color back_ = colors::kButtonFace;
  Color fore_ = colors::kBlack;
  Font printFont_;
  Point printAt_;
  bool border_ = false;
  bool autoSize_ = false;
  bool sprite_ = false;
  bool clear_ = false;
  SizedPicture picture_;
};

// Holds other controls inside a border with a caption set into it; without a border it is a plain
// rectangle. Children count from its outer corner.
class Frame : public Control {
 public:
  struct Look {
    std::string caption = "";
    Font font = {};
    Color back = colors::kButtonFace;
    Color fore = colors::kBlack;
    bool border = true;
    bool visible = true;
  };
  void Apply(const Look& look);
  void SetBackColor(Color color);
  Color backColor() const { return look_.back; }
  void Paint(Surface& surface) override;
  std::string_view text() const override { return look_.caption; }
  bool TextFits() const override;

 private:
  Look look_;
};

// Stretches its picture to its place.
class Image : public Control {
 public:
  struct Look {
    SizedPicture picture = {};
    bool visible = true;
  };
  void Apply(const Look& look);
  void SetPicture(SizedPicture picture);
  bool windowed() const override { return false; }
  void Paint(Surface& surface) override;

 private:
  SizedPicture picture_;
};

class Shape : public Control {
 public:
  enum class Kind { Rectangle, RoundedRectangle, Oval };
  struct Look {
    Kind kind = Kind::Rectangle;
    Color border = colors::kBlack;
    double borderWidth = 1;
    bool filled = false;
    Color fill = colors::kWhite;
    bool visible = true;
  };
  void Apply(const Look& look);
  void SetBorderWidth(double width);
  double borderWidth() const { return look_.borderWidth; }
  void SetFill(Color color);
  bool windowed() const override { return false; }
  bool takesMouse() const override { return false; }
  void Paint(Surface& surface) override;

 private:
  Look look_;
};

class Line : public Control {
 public:
  struct Look {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double width = 1;
    Color color = colors::kBlack;
    bool visible = true;
  };
  void Apply(const Look& look);
  void SetColor(Color color);
  bool windowed() const override { return false; }
  bool takesMouse() const override { return false; }
  Rect PaintBounds() const override;
  void Paint(Surface& surface) override;

 private:
  Look look_;
};

// Fires while enabled, every interval, as an event of the one loop. Not seen.
class Timer {
 public:
  Timer() = default;
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();
  void Attach(Form& form, int intervalMs, bool enabled);
  void SetEnabled(bool enabled);
  bool enabled() const { return enabled_; }
  void SetInterval(int ms);
  int interval() const { return intervalMs_; }
  std::function<void()> OnTimer;

  // For the screen.
  std::int64_t due() const { return dueMicros_; }
  void Fire(std::int64_t nowMicros);

 private:
  Screen* screen_ = nullptr;
  int intervalMs_ = 0;
  bool enabled_ = false;
  std::int64_t dueMicros_ = 0;
};

}  // namespace platform
