// Where the pointer is and what it looks like, drags, confinement, and the window's changes.
#include <cmath>

#include "platform/forms/msgbox.h"
#include "program.h"

namespace platform {
namespace {

Event Move(int x, int y) { return {.kind = EventKind::MouseMove, .x = x, .y = y}; }
Event Down(int x, int y) { return {.kind = EventKind::MouseDown, .x = x, .y = y}; }

struct Dragged : Form {
  explicit Dragged(Screen& s) : Form(s, "dragged", 200, 100, 0) {}
  void Form_MouseDown(const MouseArgs&) override { BeginDrag(); }
};

TEST(Mouse, ADraggedFormStaysUnderThePointer) {
  // 1.28 window pixels for a logical one, which has two of the plane's.
  for (const PixelSize window : {PixelSize{1024, 768}, {800, 600}, {1920, 1080}, {500, 400}}) {
    Program p(window);
    Dragged form(p.screen);
    form.Show();
    const double fit = p.screen.windowPixelsPerLogical();
    const int x = window.width / 2, y = window.height / 2;
    const double left = form.PlaneRect().left;
    const auto moved = [&] { return (form.PlaneRect().left - left) * fit; };
    p.Step([&] { p.host.Queue(Down(x, y)); });
    for (int i = 1; i <= 78; ++i) p.Step([&, i] { p.host.Queue(Move(x + i, y)); });
    p.Step([] {}, [&] { EXPECT_NEAR(moved(), 78, 1) << window.width; });
    p.Step([&] { p.host.Queue(Move(x + 5000, y)); },
           [&] { EXPECT_LT(form.PlaneRect().left * fit, window.width); });
    p.Step([&] { p.host.Queue(Move(x, y)); }, [&] { EXPECT_EQ(moved(), 0) << window.width; });
    p.Run();
  }
}

TEST(Mouse, ThePointerFollowsWhatComesUnderIt) {
  using enum Pointer::Kind;
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log), dice(p.screen, "dice", 800, 600, p.log);
  dice.SetPointer({.kind = Hourglass, .picture = nullptr});
  board.button.SetPointer({.kind = SizeAll, .picture = nullptr});
  dice.onActivate = [&] {
    p.screen.Wait(100);
    EXPECT_EQ(p.host.pointer().kind, Hourglass) << "while they roll";
    dice.Hide();
  };
  board.Show();
  const auto shows = [&](Pointer::Kind kind, std::function<void()> after) {
    p.Step(std::move(after), [&p, kind] { EXPECT_EQ(p.host.pointer().kind, kind); });
  };
  p.Step([&] { p.host.Queue(Move(300, 300)); });
  shows(Arrow, [&] { dice.Show(); });
  shows(SizeAll, [&] { board.button.Move({280, 280, 40, 40}); });
  shows(Arrow, [&] { board.button.SetEnabled(false); });
  shows(SizeAll, [&] { board.button.SetEnabled(true); });
  board.onClick = [&] { MsgBox(p.screen, "GIROVIA", "Sì?", MsgButtons::Ok); };
  shows(Arrow, [&] { p.ClickOn(board, 300, 300); });
  shows(SizeAll, [&] { p.Keys("Enter"); });
  p.Run();
}

TEST(Mouse, OfMotionsThatWaitOnlyTheLastCounts) {
  Program p;
  struct Tracker : Form {
    Tracker(Screen& s, Log& into) : Form(s, "tracker", 800, 600, 0), log(into) {}
    void Form_MouseMove(const MouseArgs& args) override { Note("move", args); }
    void Form_MouseDown(const MouseArgs& args) override { Note("down", args); }
    void Note(const char* what, const MouseArgs& args) {
      log.push_back(what + std::to_string(int(args.x)));
      if (what[0] == 'd') screen().Wait(10);
    }
    Log& log;
  } form(p.screen, p.log);
  form.Show();
  p.host.OnBlocked = [&] {  // in the wait of the press
    for (int x : {30, 31}) p.host.Queue(Move(x, 5));
    p.host.OnBlocked = nullptr;
  };
  p.Step([&] {
    for (int x : {1, 2, 3}) p.host.Queue(Move(x, 5));
    p.host.Queue(Down(3, 5));
  });
  p.Step([&] {
    for (int x : {4, 5}) p.host.Queue(Move(x, 5));
    p.Nudge();
    for (int x : {6, 7}) p.host.Queue(Move(x, 5));
  });
  p.Run();
  EXPECT_EQ(p.log, (Log{"move3", "down3", "move5", "move7"}));
}

TEST(Mouse, WhatFollowsThePointerIsShownOnceAFrame) {
  struct Display : HeadlessHost {
    std::int64_t FrameMicros() override { return 16'667; }
  } host;
  Screen screen(host);
  struct Carrier : Form {
    explicit Carrier(Screen& s) : Form(s, "carrier", 800, 600, 0) {
      Row(tile, "tile", {0, 0, 40, 40});
    }
    void Form_MouseMove(const MouseArgs& args) override { tile.Move({args.x + 50, 50, 40, 40}); }
    CommandButton tile;
  } form(screen);
  form.Show();
  int step = 0;
  std::int64_t shows = 0;
  host.OnIdle = [&] {
    ++step;
    if (step == 2) shows = host.shows();
    if (step <= 11) host.Queue(Move(step * 10, 300));  // in no time at all
    if (step == 12) {
      EXPECT_EQ(host.shows(), shows);
    }
    if (step == 13) {
      EXPECT_EQ(host.shows(), shows + 1);
      EXPECT_LE(host.NowMicros(), 2 * 16'667);
      host.Queue({.kind = EventKind::Quit});
    }
  };
  EXPECT_THROW(screen.Run(), ProgramEnded);
  EXPECT_EQ(form.tile.place().left, 160);
}

TEST(Mouse, ConfinementBelongsToItsForm) {
  Program p({1024, 768});
  PlainForm board(p.screen, "board", 800, 600, p.log);
  struct Box : Form {
    explicit Box(Screen& s) : Form(s, "box", 400, 300, 0) {}
    void Form_MouseMove(const MouseArgs& args) override { at = args; }
    MouseArgs at;
  };
  auto box = std::make_unique<Box>(p.screen);
  const auto confine = [&] {
    box->Show();
    p.screen.ClipCursor(*box, {100, 50, 200, 100});
  };
  const auto held = [&] { return p.host.pointerArea(); };
  // In window pixels, the last ones included, for a form that stands there.
  const auto area = [&](double fit, double left, double top) {
    return DeviceRect{int(std::floor((left + 100) * fit)), int(std::floor((top + 50) * fit)),
                      int(std::ceil((left + 300) * fit)) + 1,
                      int(std::ceil((top + 150) * fit)) + 1};
  };
  board.Show();
  p.Step(confine, [&] { EXPECT_EQ(held(), area(1.28, 200, 150)); });
  p.Step([&] { p.host.Queue(Move(1, 767)); },  // the host did not hold it back
         [&] {
           EXPECT_EQ(box->at.x, 100);
           EXPECT_EQ(box->at.y, 150);
         });
  p.Step([&] { box->MoveOnPlane(20, 40); }, [&] { EXPECT_EQ(held(), area(1.28, 10, 20)); });
  p.Step([&] { p.host.Resize({800, 600}); }, [&] { EXPECT_EQ(held(), area(1, 10, 20)); });
  p.Step(
      [&] {
        p.screen.Wait(50);
        EXPECT_EQ(held(), area(1, 10, 20));
        p.host.Queue(Move(790, 590));
      },
      [&] { EXPECT_EQ(box->at.x, 300); });
  p.Step([&] {
    p.Step([] {}, [&] { EXPECT_FALSE(held()) << "a box over it can be reached"; });
    p.Step([&] { p.Keys("Enter"); }, [&] { EXPECT_TRUE(held()); });
    const std::function<void()> ends[] = {[&] { box->Hide(); }, [&] { box->Unload(); },
                                          [&] { box.reset(); }};
    for (const auto& end : ends) {
      p.Step(confine, [&] { EXPECT_TRUE(held()); });
      p.Step([&, end] {
        end();
        EXPECT_FALSE(held());
      });
    }
    MsgBox(p.screen, "GIROVIA", "Chi mi raggiunge?", MsgButtons::Ok);
  });
  p.Run();
}

TEST(Mouse, ACapturedMouseLeavesNothingElseToClick) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.SetCancel(board.button);
  board.button.SetFocus();
  Label tile;
  tile.Attach(board, "tile", {300, 300, 40, 40}, nullptr);
  board.Show();
  p.Step(
      [&] {
        p.screen.SetCapture(&tile);
        p.Keys("Escape Space");
      },
      [&] { EXPECT_EQ(p.log.back(), "board activate"); });
  p.Step([&] { tile.SetVisible(false); }, [&] { p.Keys("Escape"); });
  p.Run();
  EXPECT_EQ(p.log.back(), "board click");
}

}  // namespace
}  // namespace platform
