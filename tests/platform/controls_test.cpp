// Controls as a form sets them, looked at through what is shown and clicked.
#include <gtest/gtest.h>

#include <cmath>

#include "platform/forms/form.h"
#include "platform/forms/screen.h"
#include "platform/hosts/headless/headless_host.h"

namespace platform {
namespace {

const Font kText{"Verdana", 12, false, false};

class Controls : public testing::Test {
 protected:
  Controls() { SetFontFolder(FONT_FOLDER); }
  ~Controls() override { SetFontFolder(""); }

  HeadlessHost host{{800, 600}};
  Screen screen{host};
  Form form{screen, "form", 800, 600, colors::kWhite};
};

// The columns [left, right) of a surface's row range that are not of the colour.
Rect Inked(const Surface& s, Color back) {
  double left = s.width(), top = s.height(), right = 0, bottom = 0;
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x)
      if (s.PixelAt(x, y) != back) {
        left = std::min<double>(left, x);
        top = std::min<double>(top, y);
        right = std::max<double>(right, x + 1);
        bottom = std::max<double>(bottom, y + 1);
      }
  return {left, top, right - left, bottom - top};
}

template <class C>
C& Put(Form& form, C& control, const Rect& place, const typename C::Look& look,
       Control* container = nullptr) {
  control.Attach(form, "c", place, container);
  control.Apply(look);
  return control;
}

TEST_F(Controls, ALabelWrapsAndSizesItselfAsItIsTold) {
  Label label;
  Put(form, label, {100, 50, 273, 67},
      {.caption = "Un titolo che va a capo da solo", .font = kText, .align = Align::Center});
  const double line = LineHeight(kText);
  const double whole = std::ceil(TextWidth(kText, label.caption()));
  label.Move({100, 50, 480, 67});
  label.SetAutoSize(true);  // about its middle
  EXPECT_EQ(label.place(), (Rect{340 - whole / 2, 50, whole, line}));
  label.SetCaption("GIROVIA GRANDETAPPA\r\nPROVA FINALE");
  EXPECT_EQ(label.place().height, 2 * line);
  EXPECT_EQ(label.place().left + label.place().width / 2, 340);
  label.Move({10, 50, label.place().width, 2 * line});  // moved, it still breaks where it did
  label.SetCaption("Un titolo che va a capo da solo");
  EXPECT_EQ(label.place().height, line);
  label.SetAutoSize(false);
  label.Move({100, 50, 100, 200});
  label.SetWrap(false);
  EXPECT_LT(label.drawnPoints(), 6) << "one line in a third of its width";
  label.SetWrap(true);
  EXPECT_EQ(label.drawnPoints(), 12);

  Label narrow, wide;
  Put(form, narrow, {0, 0, 60, 60}, {.caption = "Quattro parole strette qui", .font = kText});
  Put(form, wide, {0, 0, 200, 60}, {.caption = "Due parole", .font = kText});
  const double small = narrow.drawnPoints();
  ASSERT_LT(small, 12);
  SetInOneSize(wide, narrow);
  EXPECT_EQ(wide.drawnPoints(), small);
  EXPECT_EQ(narrow.drawnPoints(), small);
}

TEST_F(Controls, APictureBoxPrintsLineUnderLine) {
  PictureBox box;
  Put(form, box, {0, 0, 200, 100}, {.back = colors::kWhite});
  box.SetPrintFont({"Verdana", 12, false, true});
  box.SetForeColor(colors::kBlue);
  box.SetPrintAt(50, 10);
  box.Print(" Qui  ");  // the rule runs under the blanks too
  const double width = TextWidth(kText, " Qui  "), line = LineHeight(kText);
  const Rect first = Inked(box.surface(), colors::kWhite);
  EXPECT_NEAR(first.left, 50, 1);
  EXPECT_NEAR(first.right(), 50 + width, 1);
  EXPECT_GT(first.top, 10);
  box.Cls();
  box.SetPrintFont(kText);
  box.SetPrintAt(50, 10);
  box.Print("");
  box.Print("Sotto");  // a line down, at the left edge
  Surface same(200, 100, 1, colors::kWhite);
  same.TextOut(0, 10 + line, "Sotto", kText, colors::kBlue);
  EXPECT_EQ(Inked(box.surface(), colors::kWhite), Inked(same, colors::kWhite));
  box.Cls();
  box.Print("H");
  EXPECT_LT(Inked(box.surface(), colors::kWhite).top, line) << "clearing goes back to the corner";
}

TEST_F(Controls, OneOptionOfEachContainerIsChosen) {
  struct Picker : Form {
    explicit Picker(Screen& s) : Form(s, "picker", 300, 200, colors::kWhite) {
      Row(first, "first", {10, 10, 100, 60}, {.caption = "Uno", .font = kText, .back = 0x00FF00});
      Row(second, "second", {10, 90, 100, 60}, {.caption = "Due", .font = kText});
      for (int i = 0; i < 4; ++i) {
        Frame& in = i < 2 ? first : second;
        Row(option[i], Indexed("option", i), {10 + 40.0 * (i % 2), 24, 28, 24},
            {.back = i % 2 ? colors::kRed : colors::kBlue}, &in);
        option[i].OnClick = [this, i] { clicks += std::to_string(i); };
      }
      option[0].SetValue(true);
      option[2].SetValue(true);
    }
    Frame first, second;
    OptionButton option[4];
    std::string clicks;
    std::string Chosen() const {
      std::string out;
      for (const OptionButton& o : option) out += o.value() ? '1' : '0';
      return out;
    }
  } picker(screen);
  picker.Show();
  EXPECT_EQ(picker.Chosen(), "1010");
  int step = 0;
  host.OnIdle = [&] {
    const Rect r = picker.PlaneRect();
    if (++step == 1) host.Click(screen.ToWindow({r.left + 65, r.top + 40}));
    if (step == 2) host.Queue({EventKind::Quit, 0, 0, MouseButton::Left});
  };
  EXPECT_THROW(screen.Run(), ProgramEnded);
  EXPECT_EQ(picker.Chosen(), "0110");
  EXPECT_EQ(picker.clicks, "1");
  // A caption stands in the line of the border, on the frame's own colour.
  const Rect r = picker.PlaneRect();
  const Surface& plane = host.planeShown();
  const double line = r.top + 10 + std::floor(LineHeight(kText) / 2);
  EXPECT_NE(plane.PixelAt(r.left + 12, line), colors::kGreen) << "border";
  EXPECT_EQ(plane.PixelAt(r.left + 10 + 8, line), colors::kGreen) << "gap";
  EXPECT_NE(plane.PixelAt(r.left + 100, line), colors::kGreen) << "border";
}

}  // namespace
}  // namespace platform
