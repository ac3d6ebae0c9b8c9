#include "platform/forms/msgbox.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

constexpr int kWidth = 420;
constexpr int kTitleHeight = 26;
constexpr int kButtonHeight = 30;
constexpr int kButtonWidth = 96;
constexpr int kMargin = 18;
const Font kText{"Verdana", 9.75, false, false};
const Font kTitle{"Verdana", 9.75, true, false};

int TextHeight(const std::string& text) {
  return int(
      std::ceil(MeasureText(text, {kText, 0, Align::Left, true}, kWidth - 2 * kMargin).height));
}

class Box : public Form {
 public:
  Box(Screen& onScreen, const std::string& title, const std::string& text, MsgButtons buttons)
      : Form(onScreen, "MsgBox", kWidth,
             kTitleHeight + 2 * kMargin + TextHeight(text) + kButtonHeight + kMargin, 0xF4F4F4) {
    Row(Shape1, "Shape1", {0, 0, double(kWidth), double(height())},
        {.border = colors::kNavy, .borderWidth = 2});
    Row(Shape2, "Shape2", {0, 0, double(kWidth), double(kTitleHeight)},
        {.border = colors::kNavy, .filled = true, .fill = colors::kNavy});
    Row(LblTitle, "LblTitle", {10, 4, kWidth - 20.0, kTitleHeight - 6.0},
        {.caption = title, .font = kTitle, .fore = colors::kWhite, .wrap = false});
    Row(LblText, "LblText",
        {double(kMargin), double(kTitleHeight + kMargin), kWidth - 2.0 * kMargin,
         double(TextHeight(text))},
        {.caption = text, .font = kText});
    const double top = height() - kMargin - kButtonHeight;
    if (buttons == MsgButtons::Ok) {
      Row(CmdFirst, "cmdOK", {(kWidth - kButtonWidth) / 2.0, top, kButtonWidth, kButtonHeight},
          {.caption = "OK", .font = kText});
    } else {
      Row(CmdFirst, "cmdYes", {kWidth / 2.0 - 6 - kButtonWidth, top, kButtonWidth, kButtonHeight},
          {.caption = "Sì", .font = kText});
      Row(CmdSecond, "cmdNo", {kWidth / 2.0 + 6, top, kButtonWidth, kButtonHeight},
          {.caption = "No", .font = kText});
    }
    const bool yesNo = buttons == MsgButtons::YesNo;
    CmdFirst.OnClick = [this, yesNo] { Close(yesNo ? MsgResult::Yes : MsgResult::Ok); };
    CmdSecond.OnClick = [this] { Close(MsgResult::No); };
    CmdFirst.SetFocus();
    SetCancel(yesNo ? CmdSecond : CmdFirst);
  }
  bool systemBox() const override { return true; }

  MsgResult result = MsgResult::Ok;

 private:
  void Close(MsgResult with) {
    result = with;
    Unload();
  }

  Shape Shape1, Shape2;
  Label LblTitle, LblText;
  CommandButton CmdFirst, CmdSecond;
};

}  // namespace

MsgResult MsgBox(Screen& screen, const std::string& title, const std::string& text,
                 MsgButtons buttons) {
  Box box(screen, title, text, buttons);
  box.ShowModal();
  return box.result;
}

}  // namespace platform
