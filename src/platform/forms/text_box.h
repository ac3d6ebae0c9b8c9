// A line of text that can be written in.
#pragma once

#include "platform/forms/controls.h"

namespace platform {

class TextBox : public Control {
 public:
  struct Look {
    std::string text = "";
    Font font = {};
    Color back = colors::kWhite;
    Color fore = colors::kBlack;
    bool visible = true;
  };
  void Apply(const Look& look);
  std::string_view text() const override { return text_; }
  void SetText(std::string_view text);  // the caret goes to its end
  void SelectAll();
  std::string_view selected() const;
  std::size_t caret() const { return caret_; }  // a byte of the text

  void Paint(Surface& surface) override;
  bool focusable() const override { return true; }
  void KeysCome(bool come) override;
  bool TakeKey(const Event& event) override;
  void MouseMove(const MouseArgs& args) override;
  void MouseDown(const MouseArgs& args) override;

 private:
  bool Command(const Event& event);
  void Insert(std::string_view typed);  // in place of what is selected
  void EraseTo(std::size_t end);        // what is selected, or else from the caret to there
  void MoveCaret(std::size_t to, bool select);
  void Changed();
  void Blink();
  Rect Inner() const;
  double XOf(std::size_t at) const;  // in the text
  std::size_t At(double x) const;    // in the control
  Rect CaretRect() const;            // in the control
  std::size_t first() const { return caret_ < anchor_ ? caret_ : anchor_; }
  std::size_t last() const { return caret_ < anchor_ ? anchor_ : caret_; }

  std::string text_;
  Font font_;
  Color back_ = colors::kWhite;
  Color fore_ = colors::kBlack;
  std::size_t caret_ = 0;
  std::size_t anchor_ = 0;  // the other end of what is selected
  std::string composing_;   // stands at the caret
  double scroll_ = 0;       // how much of the text is hidden on the left
  bool hasKeys_ = false;
  bool caretShown_ = false;
  Timer blink_;
  int clicks_ = 0;  // one behind the other at one place
  std::int64_t clickedAt_ = 0;
  double clickedX_ = 0;
  std::size_t clickedText_ = 0;
};

}  // namespace platform
