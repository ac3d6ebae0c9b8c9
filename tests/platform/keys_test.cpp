// Focus, and what keys do that are no text.
#include "platform/forms/msgbox.h"
#include "program.h"

namespace platform {
namespace {

struct Panel : Form {
  explicit Panel(Screen& s, Log& into) : Form(s, "panel", 400, 300, 0xC0C0C0), log(into) {
    Row(label, "label", {0, 280, 50, 20});
    Row(a, "a", {10, 10, 40, 40});
    Row(disabled, "disabled", {60, 10, 40, 40});
    Row(hidden, "hidden", {110, 10, 40, 40}, {.visible = false});
    Row(frame, "frame", {10, 60, 200, 100});
    for (int i = 0; i < 4; ++i)
      Row(option[i], "o" + std::to_string(i), {10 + 40.0 * i, 30, 30, 30}, {}, &frame);
    Row(box, "box", {10, 200, 100, 26});
    Row(last, "last", {10, 240, 40, 40});
    disabled.SetEnabled(false);
    option[2].SetEnabled(false);
    for (Control* c : controls()) {
      c->OnClick = [this, c] { log.push_back(c->name() + " click"); };
      c->OnGotFocus = [this, c] { log.push_back("+" + c->name()); };
      c->OnLostFocus = [this, c] { log.push_back("-" + c->name()); };
    }
  }
  Log& log;
  Label label;
  CommandButton a, disabled, hidden, last;
  Frame frame;
  OptionButton option[4];
  TextBox box;
};

TEST(Keys, TabGoesRoundWhateverCanBeUsed) {
  Program p;
  Panel panel(p.screen, p.log);
  panel.Show();
  const auto tab = [&](bool back) { return [&p, back] { p.host.Press(Key::Tab, back); }; };
  const auto heard = [&](Log expected) {
    return [&p, expected] {
      EXPECT_EQ(p.log, expected);
      p.log.clear();
      p.Nudge();
    };
  };
  p.script = {
      tab(false), heard({"+a"}), tab(false), heard({"-a", "+o0"}), tab(true), heard({"-o0", "+a"}),
      // The group is one stop once one of it is chosen.
      [&] {
        panel.option[1].SetValue(true);
        p.Nudge();
      },
      tab(false), heard({"-a", "+o1"}), tab(false), heard({"-o1", "+box"}), tab(false), tab(false),
      heard({"-box", "+last", "-last", "+a"}), tab(true), heard({"-a", "+last"}),
      // Away with the one that has the focus: on from the start.
      [&] {
        panel.last.SetVisible(false);
        p.Nudge();
      },
      tab(false), heard({"-last", "+a"})};
  p.Run();
}

TEST(Keys, SpaceAndEnterPressAndArrowsChoose) {
  Program p;
  Panel panel(p.screen, p.log);
  panel.Show();
  const auto press = [&](Key key) { return [&p, key] { p.host.Press(key); }; };
  p.script = {press(Key::Enter),  // nobody has the focus
              [&] { p.ClickOn(panel, 30, 30); },
              press(Key::Space),
              press(Key::Enter),
              [&] {
                panel.disabled.SetFocus();
                p.Nudge();
              },
              press(Key::Space),
              [&] {
                panel.option[1].SetFocus();
                p.log.clear();
                p.Nudge();
              },
              press(Key::Right),  // over the disabled one
              press(Key::Down),   // round
              press(Key::Left),
              [&] {
                EXPECT_EQ(p.log, (Log{"-o1", "+o3", "o3 click", "-o3", "+o0", "o0 click", "-o0",
                                      "+o3", "o3 click"}));
                EXPECT_TRUE(panel.option[3].value());
                EXPECT_FALSE(panel.option[0].value());
                // A form over it has the keys now, and gives them back.
                auto over = std::make_unique<PlainForm>(p.screen, "over", 100, 100, p.log);
                over->button.SetFocus();
                over->onClick = [raw = over.get()] { raw->Unload(); };
                over->Show();
                p.screen.Own(std::move(over));
                p.log.clear();
                p.Nudge();
              },
              press(Key::Space),
              press(Key::Space)};
  p.Run();
  EXPECT_EQ(p.log, (Log{"over activate", "over click", "over unload", "o3 click"}));
}

TEST(Keys, OfAWaitAreThrownAway) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  int clicks = 0;
  board.onClick = [&] {
    ++clicks;
    bool impatient = true;
    p.host.OnBlocked = [&] {
      if (impatient) p.host.Press(Key::Space);
      impatient = false;
    };
    p.screen.Wait(100);
    p.host.OnBlocked = nullptr;
  };
  board.Show();
  board.button.SetFocus();
  p.script = {[&] { p.host.Press(Key::Space); }};
  p.Run();
  EXPECT_EQ(clicks, 1);
}

TEST(Keys, TheFocusIsMarkedFromAKeyToTheMouse) {
  Program p;
  Panel panel(p.screen, p.log);
  panel.Show();
  panel.last.SetFocus();
  const Rect at = panel.PlaneRect();
  const auto marked = [&](const Control& c) {
    const Rect r = c.InForm(c.place());
    std::set<Color> seen;
    for (int x = 8; x < 16; ++x)
      seen.insert(p.host.planeShown().PixelAt(at.left + r.left + x, at.top + r.top + 3));
    return seen == std::set<Color>{colors::kBlack, colors::kWhite};
  };
  p.script = {[&] {
                EXPECT_FALSE(marked(panel.last));
                p.Nudge();
              },
              [&] { p.host.Press(Key::Tab); },
              [&] {
                EXPECT_TRUE(marked(panel.a));
                p.host.Press(Key::Tab, true);
              },
              [&] {
                EXPECT_TRUE(marked(panel.last));
                EXPECT_FALSE(marked(panel.a));
                p.MoveTo(panel, 300, 200);
              },
              [&] {
                EXPECT_FALSE(marked(panel.last));
                p.Nudge();
              }};
  p.Run();
}

TEST(Keys, EscapeClicksTheWayOutWhereAClickWould) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.SetCancel(board.button);
  PlainForm small(p.screen, "small", 100, 100, p.log), large(p.screen, "large", 800, 600, p.log);
  board.Show();
  const auto escape = [&] { p.host.Press(Key::Escape); };
  const auto clicks = [&](int expected) {
    return [&p, expected] {
      EXPECT_EQ(std::count(p.log.begin(), p.log.end(), "board click"), expected);
      p.Nudge();
    };
  };
  p.script = {escape,
              clicks(1),
              [&] {
                board.button.SetVisible(false);
                p.Nudge();
              },
              escape,
              clicks(1),
              [&] {
                board.button.SetVisible(true);
                small.Show();  // beside it
                p.Nudge();
              },
              escape,
              clicks(2),
              [&] {
                large.Show();
                p.Nudge();
              },  // over it
              escape,
              clicks(2),
              [&] {
                large.Hide();
                small.Hide();
                board.onClick = [&] { small.ShowModal(); };
                small.onClick = [&] { small.Hide(); };
                p.Nudge();
              },
              escape,
              clicks(3),
              escape,  // under a modal form
              clicks(3),
              [&] { p.ClickOn(small, 30, 30); },
              [&] {
                board.onClick = nullptr;
                p.Nudge();
              },
              escape,
              clicks(4)};
  p.Run();
}

TEST(Keys, HandlersMayTakeAwayWhatIsFocused) {
  struct Extra : Form {
    explicit Extra(Screen& s) : Form(s, "extra", 100, 100, 0) {
      Row(stays, "stays", {0, 0, 40, 40});
      Row(*goes, "goes", {50, 0, 40, 40}, {.hand = &hand, .focusOnMove = true});
      goes->OnMouseDown = goes->OnMouseMove = [](const MouseArgs&) { FAIL() << "it is gone"; };
      stays.OnLostFocus = [this] { goes.reset(); };
    }
    const HandPointers hand;
    CommandButton stays;
    std::unique_ptr<CommandButton> goes = std::make_unique<CommandButton>();
  };
  for (const char* how : {"key", "move", "press"}) {
    Program p;
    Extra extra(p.screen);
    extra.Show();
    extra.stays.SetFocus();
    p.script = {[&] {
                  if (how[0] == 'k') p.host.Press(Key::Tab);
                  if (how[0] == 'm') p.MoveTo(extra, 70, 20);
                  const Point at = p.screen.ToWindow({420, 270});
                  if (how[0] == 'p')
                    p.host.Queue({EventKind::MouseDown, int(at.x), int(at.y), MouseButton::Left});
                },
                [&] {
                  EXPECT_FALSE(extra.goes) << how;
                  EXPECT_EQ(extra.focus(), nullptr);
                  p.host.Press(Key::Space);
                }};
    p.Run();
  }
}

TEST(Keys, AHandlerMaySendTheFocusElsewhere) {
  Program p;
  Panel panel(p.screen, p.log);
  panel.Show();
  panel.a.SetFocus();
  panel.a.OnLostFocus = [&] { panel.last.SetFocus(); };
  p.log.clear();
  p.script = {[&] { p.ClickOn(panel, 30, 213); }};  // the text box
  p.Run();
  EXPECT_TRUE(panel.last.focused());
  EXPECT_EQ(p.log, (Log{"-box", "+last", "box click"}));
}

TEST(Keys, AnswerTheSystemsBox) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  std::vector<MsgResult> results;
  MsgButtons buttons = MsgButtons::YesNo;
  board.onClick = [&] { results.push_back(MsgBox(p.screen, "GIROVIA", "Esci?", buttons)); };
  board.Show();
  board.button.SetFocus();
  const auto press = [&](Key key) { return [&p, key] { p.host.Press(key); }; };
  const auto open = press(Key::Space);
  p.script = {open,
              press(Key::Enter),
              open,
              press(Key::Escape),
              open,
              press(Key::Tab),
              press(Key::Space),
              [&] {
                buttons = MsgButtons::Ok;
                p.Nudge();
              },
              open,
              press(Key::Enter),
              open,
              press(Key::Escape)};
  p.Run();
  using enum MsgResult;
  EXPECT_EQ(results, (std::vector<MsgResult>{Yes, No, No, Ok, Ok}));
}

}  // namespace
}  // namespace platform
