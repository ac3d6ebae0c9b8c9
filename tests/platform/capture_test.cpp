// A control that has captured the mouse, and one that reaches over its container's border.
#include <gtest/gtest.h>

#include <deque>

#include "platform/forms/msgbox.h"
#include "platform/forms/screen.h"
#include "platform/hosts/headless/headless_host.h"

namespace platform {
namespace {

struct CarryForm : Form {
  explicit CarryForm(Screen& onScreen) : Form(onScreen, "carry", 400, 300, 0xC0C0C0) {
    Row(box, "box", {100, 100, 200, 100}, {.back = 0x0000FF, .border = true});
    Row(tile, "tile", {-10, 20, 60, 60}, {.back = 0x00FF00}, &box);
    Row(button, "button", {0, 0, 50, 50});
    tile.SetPointer({.kind = Pointer::Kind::SizeAll, .picture = nullptr});
    tile.OnMouseMove = [this](const MouseArgs& args) { moves.push_back(args.x); };
    tile.OnClick = [this] { ++tileClicks; };
    button.OnClick = [this] { ++buttonClicks; };
  }
  void Form_MouseDown(const MouseArgs&) override { ++formPresses; }

  PictureBox box, tile;
  CommandButton button;
  std::vector<double> moves;
  int tileClicks = 0, buttonClicks = 0, formPresses = 0;
};

struct Capture : testing::Test {
  HeadlessHost host{{800, 600}};
  Screen screen{host};
  CarryForm form{screen};  // its corner is at 200, 150

  void Run(std::deque<std::function<void()>> steps) {
    form.Show();
    host.OnIdle = [this, &steps] {
      if (steps.empty()) return host.Queue({EventKind::Quit, 0, 0, MouseButton::Left});
      const auto step = steps.front();
      steps.pop_front();
      step();
    };
    EXPECT_THROW(screen.Run(), ProgramEnded);
  }
};

TEST_F(Capture, TheMouseBelongsToOneControlUntilItIsHidden) {
  Run({[&] {
         host.Queue({EventKind::MouseDown, 210, 160, MouseButton::Left});  // on the button
       },
       [&] {
         screen.SetCapture(&form.tile);
         host.Queue({EventKind::MouseUp, 210, 160, MouseButton::Left});
         host.Queue({EventKind::MouseMove, 211, 160, MouseButton::Left});
       },
       [&] {
         EXPECT_EQ(form.moves, std::vector{211.0 - 291});
         EXPECT_EQ(host.pointer().kind, Pointer::Kind::SizeAll);
         // That release was still the button's own.
         EXPECT_EQ(form.buttonClicks, 1);
         EXPECT_EQ(form.tileClicks, 0);
         host.Click({210, 160});  // on the button
         host.Click({580, 440});  // on the bare form
         host.Click({10, 10});    // outside of it
       },
       [&] {
         EXPECT_EQ(form.moves.size(), 4u);
         EXPECT_EQ(form.buttonClicks, 1);
         EXPECT_EQ(form.tileClicks, 3);
         EXPECT_EQ(form.formPresses, 0);
         MsgBox(screen, "title", "A box comes first.", MsgButtons::Ok);
       },
       [&] {
         const Control& ok = *screen.top()->Find("cmdOK");
         const Rect r = screen.top()->PlaneRect();
         host.Click({r.left + ok.place().left + 5, r.top + ok.place().top + 5});
       },
       [&] {
         EXPECT_EQ(screen.top(), &form);
         EXPECT_EQ(form.tileClicks, 3);
         form.tile.SetVisible(false);
         host.Click({210, 160});
       },
       [&] {
         EXPECT_EQ(form.tileClicks, 3);
         EXPECT_EQ(form.buttonClicks, 2);
       }});
}

TEST_F(Capture, AChildDoesNotCoverTheBorderAroundIt) {
  Run({[] {}});
  EXPECT_EQ(host.planeShown().PixelAt(299, 290), 0xC0C0C0u);
  EXPECT_EQ(host.planeShown().PixelAt(300, 290), colors::kBlack);
  EXPECT_EQ(host.planeShown().PixelAt(301, 290), 0x00FF00u);
}

}  // namespace
}  // namespace platform
