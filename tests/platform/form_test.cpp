// Forms, controls, timers and modal loops through the headless host, as a program uses them.
#include "platform/forms/form.h"

#include "platform/forms/msgbox.h"
#include "program.h"

namespace platform {
namespace {

TEST(Forms, ActivationFollowsTheReturnRule) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.onClick = [&] {
    PlainForm question(p.screen, "question", 100, 100, p.log);
    question.onClick = [&] { question.Unload(); };
    question.ShowModal();
    p.log.push_back("behind the show");
  };
  board.Show();
  p.script = {[&] { p.ClickOn(board, 20, 20); },
              // A click on the board under the modal form does nothing; one on the form closes it.
              [&] { p.ClickOn(board, 20, 20); }, [&] { p.ClickOn(*p.screen.top(), 20, 20); }};
  p.Run();
  EXPECT_EQ(p.log, (Log{"board load", "board activate", "board click", "question load",
                        "question activate", "question click", "question unload", "board activate",
                        "behind the show"}));
}

TEST(Forms, AFormShownFromAHandlerRunsInsideItsActivation) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.onClick = [&] {
    auto dice = std::make_unique<PlainForm>(p.screen, "dice", 800, 600, p.log);
    PlainForm* raw = dice.get();
    dice->onActivate = [raw] { raw->Unload(); };
    dice->Show();
    p.screen.Own(std::move(dice));
    p.log.push_back("shown");
  };
  board.Show();
  p.script = {[&] { p.ClickOn(board, 20, 20); }};
  p.Run();
  EXPECT_EQ(p.log, (Log{"board load", "board activate", "board click", "dice load", "shown",
                        "dice activate", "dice unload", "board activate"}));
}

TEST(Forms, TheEndUnwindsFromNestedLoopsAndFormsDieWithAButtonPressed) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.onClick = [&] {
    PlainForm inner(p.screen, "inner", 200, 200, p.log);
    inner.onClick = [&] {
      PlainForm third(p.screen, "third", 100, 100, p.log);
      third.ShowModal();
    };
    inner.ShowModal();
  };
  board.Show();
  p.script = {
      [&] { p.ClickOn(board, 20, 20); }, [&] { p.ClickOn(*p.screen.top(), 20, 20); },
      [&] {
        const Rect r = p.screen.top()->PlaneRect();
        p.host.Queue({EventKind::MouseDown, int(r.left) + 20, int(r.top) + 20, MouseButton::Left});
      }};
  p.Run();
  EXPECT_EQ(p.screen.forms(), std::vector<Form*>{&board});
  EXPECT_EQ(p.screen.pressed(), nullptr);
}

TEST(Forms, ABlockingWaitRunsNothingAndSwallowsClicks) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  Timer timer;
  int ticks = 0;
  timer.OnTimer = [&] { ++ticks; };
  timer.Attach(board, 100, true);
  int clicks = 0, ticksAtEnd = -1;
  board.onClick = [&] {
    if (++clicks > 1) return;
    bool impatient = true;
    p.host.OnBlocked = [&] {
      if (impatient) p.ClickOn(board, 20, 20);
      impatient = false;
    };
    ticks = 0;
    p.screen.Wait(1000);
    ticksAtEnd = ticks;
    p.host.OnBlocked = nullptr;
  };
  board.Show();
  p.script = {[&] { p.ClickOn(board, 20, 20); }};
  p.Run();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(ticksAtEnd, 0);
  EXPECT_EQ(ticks, 1) << "one tick for all that were missed";
}

TEST(Forms, TimersGoOnUnderAModalForm) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  Timer timer;
  int ticks = 0;
  std::unique_ptr<PlainForm> modal;
  timer.OnTimer = [&] {
    if (++ticks == 5) modal->Unload();
  };
  timer.Attach(board, 400, true);
  board.onClick = [&] {
    modal = std::make_unique<PlainForm>(p.screen, "modal", 100, 100, p.log);
    modal->ShowModal();
  };
  board.Show();
  p.script = {[&] { p.ClickOn(board, 20, 20); }, [] {}, [] {}, [] {}, [] {}, [] {}};
  p.Run();
  EXPECT_GE(ticks, 5);
  EXPECT_EQ(p.log[p.log.size() - 2], "modal unload");
  EXPECT_GE(p.host.NowMicros(), 5 * 400'000);
}

TEST(Forms, ClicksReachWhatLiesInFront) {
  Program p;
  struct Layers : Form {
    explicit Layers(Screen& s, Log& log) : Form(s, "layers", 400, 300, 0xFFFFFF) {
      Row(label, "label", {0, 0, 100, 100});  // later rows lie in front...
      Row(below, "below", {0, 0, 60, 60});
      Row(over, "over", {40, 40, 60, 60});
      Row(late, "late", {0, 0, 30, 30});  // ...but a label never lies over a button
      Row(box, "box", {200, 100, 100, 100}, {.border = true});
      Row(inside, "inside", {10, 10, 20, 20}, {}, &box);
      for (Control* c : controls()) c->OnClick = [c, &log] { log.push_back(c->name()); };
      ShapeRoundRect({0, 0, 400, 300}, 90, 90);
    }
    Label label, late;
    CommandButton below, over;
    PictureBox box;
    CommandButton inside;
  } form(p.screen, p.log);
  PlainForm behind(p.screen, "behind", 400, 300, p.log);
  behind.Show();
  form.Show();
  behind.button.Move({0, 0, 400, 300});
  const auto at = [&](double x, double y) { return [&p, &form, x, y] { p.ClickOn(form, x, y); }; };
  p.script = {at(50, 50),   at(10, 20), at(80, 20),
              at(215, 115),  // the box has a border of one pixel: its child stands at 211, 111
              at(250, 150), at(2, 2) /* outside the rounded corner: falls through */};
  p.Run();
  p.log.erase(p.log.begin());  // "behind load"
  EXPECT_EQ(p.log, (Log{"over", "below", "label", "inside", "box", "behind click"}));
}

TEST(Forms, AClickCountsOnlyWhereItBeganAndOnlyLeft) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.Show();
  const auto event = [&](EventKind kind, int x, int y, MouseButton b = MouseButton::Left) {
    p.host.Queue({kind, x, y, b});
  };
  p.Step([&] {
    event(EventKind::MouseDown, 20, 20);
    event(EventKind::MouseUp, 200, 200);  // dragged off
    event(EventKind::MouseDown, 200, 200);
    event(EventKind::MouseUp, 20, 20);  // dragged on
    event(EventKind::MouseDown, 20, 20, MouseButton::Right);
    event(EventKind::MouseUp, 20, 20, MouseButton::Right);
    event(EventKind::MouseDown, 20, 20);
  });
  p.Step([&] {
    EXPECT_TRUE(board.button.pressed());
    board.button.SetVisible(false);  // gone under the pressed mouse, and back
    board.button.SetVisible(true);
    EXPECT_FALSE(board.button.pressed());
    event(EventKind::MouseUp, 20, 20);
  });
  p.Run();
  EXPECT_EQ(p.log, (Log{"board load", "board activate"}));
}

TEST(Forms, HandPointersFollowTheirRule) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  const auto picture = Picture::FromPixels(1, 1, {0xFF000000});
  const HandPointers hand{{Pointer::Kind::Custom, picture, 12, 1},
                          {Pointer::Kind::Custom, picture, 16, 14}};
  board.button.UseHand(&hand, true);
  board.Show();
  std::vector<Pointer> seen;
  const auto see = [&] { seen.push_back(p.host.pointer()); };
  p.script = {[&] { p.MoveTo(board, 20, 20); },
              [&] {
                see();
                EXPECT_TRUE(board.button.focused());
                p.host.Queue({EventKind::MouseDown, 20, 20, MouseButton::Left});
              },
              [&] {
                see();
                p.host.Queue({EventKind::MouseUp, 20, 20, MouseButton::Left});
              },
              [&] {
                see();  // the closed hand stays until the next movement
                p.MoveTo(board, 21, 20);
              },
              [&] {
                see();
                p.MoveTo(board, 300, 300);
              },
              see};
  p.Run();
  EXPECT_EQ(seen, (std::vector<Pointer>{hand.open, hand.closed, hand.closed, hand.open, {}}));
}

TEST(Forms, AnExplicitRepaintTouchesOnlyWhatChanged) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.Show();
  std::vector<DeviceRect> shown;
  p.script = {[&] {
    p.host.OnShow = [&](const std::vector<DeviceRect>& r) {
      shown.insert(shown.end(), r.begin(), r.end());
    };
    board.button.SetBackColor(0x00FF00);
    board.button.Refresh();
    EXPECT_EQ(shown, (std::vector<DeviceRect>{{10, 10, 50, 50}}));
    EXPECT_EQ(p.host.planeShown().PixelAt(30, 30), 0x00FF00u);
    shown.clear();
  }};
  p.Run();
  EXPECT_TRUE(shown.empty()) << "painted twice";
}

TEST(Forms, DraggingMovesAFormButNeverOutOfReach) {
  Program p;
  struct Dragged : Form {
    explicit Dragged(Screen& s) : Form(s, "dragged", 200, 100, 0) {}
    void Form_MouseDown(const MouseArgs&) override { BeginDrag(); }
  } form(p.screen);
  form.Show();
  const auto event = [&](EventKind kind, int x, int y) {
    p.host.Queue({kind, x, y, MouseButton::Left});
  };
  p.script = {[&] {
                event(EventKind::MouseDown, 400, 300);
                event(EventKind::MouseMove, 410, 320);
              },
              [&] {
                EXPECT_EQ(form.PlaneRect(), (Rect{310, 270, 200, 100}));
                event(EventKind::MouseMove, 5000, -5000);
                event(EventKind::MouseUp, 5000, -5000);
                event(EventKind::MouseMove, 0, 0);  // released: follows no more
              },
              [&] {
                EXPECT_EQ(form.PlaneRect(), (Rect{760, -60, 200, 100}));
              }};
  p.Run();
}

TEST(Forms, ATipShowsAfterAMomentAndGoes) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log, 0xC0C0C0);
  board.button.SetToolTip("TIRA IL DADO");
  board.Show();
  bool before = true, during = false, after = true;
  p.script = {[&] { p.MoveTo(board, 30, 45); },
              [&] { before = p.host.planeShown().PixelAt(30, 75) != 0xC0C0C0; },
              [&] {
                during = p.host.planeShown().PixelAt(30, 75) != 0xC0C0C0;
                p.MoveTo(board, 300, 300);
              },
              [&] { after = p.host.planeShown().PixelAt(30, 75) != 0xC0C0C0; }};
  p.Run();
  EXPECT_FALSE(before);
  EXPECT_TRUE(during);
  EXPECT_FALSE(after);
}

TEST(Forms, PlaneAndScaleFollowTheWindow) {
  struct Case {
    PixelSize window;
    int scale;
    PixelSize plane;
  };
  for (const Case& c : {Case{{800, 600}, 1, {800, 600}}, Case{{1920, 1080}, 2, {2133, 1200}},
                        Case{{1024, 768}, 2, {1600, 1200}}, Case{{3840, 2160}, 4, {4267, 2400}},
                        Case{{640, 480}, 1, {800, 600}}, Case{{7680, 4320}, 4, {7680, 4320}}}) {
    HeadlessHost host(c.window);
    Screen screen(host);
    EXPECT_EQ(screen.scale(), c.scale);
    EXPECT_EQ(screen.planeSize(), c.plane) << c.window.width;
  }
  // A window made smaller keeps the scale, and the form its middle.
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.Show();
  p.script = {[&] {
                p.host.Resize({400, 600});
              },
              [&] {
                EXPECT_EQ(p.screen.planeSize(), (PixelSize{800, 1200}));
                EXPECT_EQ(board.PlaneRect(), (Rect{0, 300, 800, 600}));
                p.ClickOn(board, 20, 20);
              }};
  p.Run();
  EXPECT_EQ(p.log.back(), "board click");
}

TEST(Forms, MsgBoxAnswersAndNoFormNotices) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  std::vector<MsgResult> results;
  board.onClick = [&] {
    results.push_back(MsgBox(p.screen, "GIROVIA", "Vuoi uscire dal gioco?", MsgButtons::YesNo));
  };
  int shownForms = 0;
  p.screen.OnForm = [&](const Form&) { ++shownForms; };
  const auto press = [&](const char* button) {
    return [&p, button] {
      const Rect r = p.screen.top()->Find(button)->place();
      p.ClickOn(*p.screen.top(), r.left + 5, r.top + 5);
    };
  };
  board.Show();
  const auto open = [&] { p.ClickOn(board, 20, 20); };
  p.script = {open, press("cmdNo"), open, open /* does nothing */, press("cmdYes")};
  p.Run();
  EXPECT_EQ(results, (std::vector<MsgResult>{MsgResult::No, MsgResult::Yes}));
  EXPECT_EQ(p.log, (Log{"board load", "board activate", "board click", "board click"}));
  EXPECT_EQ(shownForms, 1);
}

TEST(Forms, ABoxThatTellsOfAnErrorWakesNoFormEither) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.onClick = [&] {
    PlainForm inner(p.screen, "inner", 100, 100, p.log);
    inner.onActivate = [] { throw std::runtime_error("no picture"); };
    inner.ShowModal();
  };
  board.Show();
  p.host.OnIdle = [&] {
    p.screen.top() == &board ? p.ClickOn(board, 20, 20) : p.host.Press(Key::Enter);
  };
  EXPECT_THROW(p.screen.Run(), std::runtime_error);
  p.log.clear();
  EXPECT_EQ(MsgBox(p.screen, "GIROVIA", "Errore", MsgButtons::Ok), MsgResult::Ok);
  EXPECT_EQ(p.log, Log{}) << "the board would go on with its turn";
}

}  // namespace
}  // namespace platform
