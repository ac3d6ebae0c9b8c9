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

class Keys : public testing::Test {
 protected:
  // Plays the keys and looks at what was heard of them.
  void Heard(const std::string& keys, const Log& expected) {
    p.Step([this, keys] { p.Keys(keys); },
           [this, keys, expected] {
             EXPECT_EQ(p.log, expected) << keys;
             p.log.clear();
           });
  }
  Program p;
};

TEST_F(Keys, TabGoesRoundWhateverCanBeUsed) {
  Panel panel(p.screen, p.log);
  panel.Show();
  Heard("Tab", {"+a"});
  Heard("Tab", {"-a", "+o0"});
  Heard("shift+Tab", {"-o0", "+a"});
  p.Step([&] { panel.option[1].SetValue(true); });  // a group with a choice is one stop
  Heard("Tab", {"-a", "+o1"});
  Heard("Tab", {"-o1", "+box"});
  Heard("Tab Tab", {"-box", "+last", "-last", "+a"});
  Heard("shift+Tab", {"-a", "+last"});
  p.Step([&] { panel.last.SetVisible(false); });  // with the focus: on from the start
  Heard("Tab", {"-last", "+a"});
  p.Run();
}

TEST_F(Keys, SpaceAndEnterPressAndArrowsChoose) {
  Panel panel(p.screen, p.log);
  panel.Show();
  Heard("Space Enter", {});  // nobody has the focus
  p.Step([&] { p.ClickOn(panel, 30, 30); }, [&] { p.log.clear(); });
  Heard("Space Enter", {"a click", "a click"});
  p.Step([&] { panel.disabled.SetFocus(); }, [&] { p.log.clear(); });
  Heard("Space", {});
  p.Step([&] { panel.option[1].SetFocus(); }, [&] { p.log.clear(); });
  Heard("Right", {"-o1", "+o3", "o3 click"});  // over the disabled one
  Heard("Down", {"-o3", "+o0", "o0 click"});   // round
  Heard("Left", {"-o0", "+o3", "o3 click"});
  p.Step([&] {
    EXPECT_TRUE(panel.option[3].value());
    EXPECT_FALSE(panel.option[0].value());
    // A form over it has the keys now, and gives them back.
    auto over = std::make_unique<PlainForm>(p.screen, "over", 100, 100, p.log);
    over->button.SetFocus();
    over->onClick = [raw = over.get()] { raw->Unload(); };
    over->Show();
    p.screen.Own(std::move(over));
    p.log.clear();
  });
  Heard("Space", {"over activate", "over click", "over unload"});
  Heard("Space", {"o3 click"});
  p.Run();
}

TEST_F(Keys, OfAWaitAreThrownAway) {
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.onClick = [&] {
    p.host.OnBlocked = [&] {
      p.Keys("Space");
      p.host.OnBlocked = nullptr;
    };
    p.screen.Wait(100);
  };
  board.Show();
  board.button.SetFocus();
  Heard("Space", {"board load", "board activate", "board click"});
  p.Run();
}

TEST_F(Keys, TheFocusIsMarkedFromAKeyToTheMouse) {
  Panel panel(p.screen, p.log);
  panel.Show();
  panel.last.SetFocus();
  const auto marked = [&](const Control& c) {
    const Rect at = panel.PlaneRect(), r = c.InForm(c.place());
    std::set<Color> seen;
    for (int x = 8; x < 16; ++x)
      seen.insert(p.host.planeShown().PixelAt(at.left + r.left + x, at.top + r.top + 3));
    return seen == std::set<Color>{colors::kBlack, colors::kWhite};
  };
  p.Step([] {}, [&] { EXPECT_FALSE(marked(panel.last)); });
  p.Step([&] { p.Keys("Tab"); }, [&] { EXPECT_TRUE(marked(panel.a)); });
  p.Step([&] { p.Keys("shift+Tab"); },
         [&] { EXPECT_TRUE(marked(panel.last) && !marked(panel.a)); });
  p.Step([&] { p.MoveTo(panel, 300, 200); }, [&] { EXPECT_FALSE(marked(panel.last)); });
  p.Run();
}

TEST_F(Keys, EscapeClicksTheWayOutWhereAClickWould) {
  PlainForm board(p.screen, "board", 800, 600, p.log);
  board.SetCancel(board.button);
  PlainForm small(p.screen, "small", 100, 100, p.log), large(p.screen, "large", 800, 600, p.log);
  board.Show();
  const auto when = [&](std::function<void()> so, const Log& heard) {
    p.Step(std::move(so), [&] { p.log.clear(); });
    Heard("Escape", heard);
  };
  when([] {}, {"board click"});
  when([&] { board.button.SetVisible(false); }, {});
  when(
      [&] {
        board.button.SetVisible(true);
        small.Show();  // beside it
      },
      {"board click"});
  when([&] { large.Show(); }, {});  // over it
  when(
      [&] {
        large.Hide();
        small.Hide();
        board.onClick = [&] { small.ShowModal(); };
        small.onClick = [&] { small.Hide(); };
      },
      {"board click", "small activate"});
  when([] {}, {});  // under a modal form
  when([&] { p.ClickOn(small, 30, 30); }, {"board click", "small activate"});
  p.Run();
}

TEST_F(Keys, HandlersMayTakeAwayWhatIsFocused) {
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
  for (const EventKind how : {EventKind::KeyDown, EventKind::MouseMove, EventKind::MouseDown}) {
    Program own;
    Extra extra(own.screen);
    extra.Show();
    extra.stays.SetFocus();
    own.Step([&] { own.host.Queue({.kind = how, .x = 420, .y = 270, .key = Key::Tab}); },
             [&] {
               EXPECT_FALSE(extra.goes) << int(how);
               EXPECT_EQ(extra.focus(), nullptr);
               own.Keys("Space");
             });
    own.Run();
  }
}

TEST_F(Keys, AHandlerMaySendTheFocusElsewhere) {
  Panel panel(p.screen, p.log);
  panel.Show();
  panel.a.SetFocus();
  panel.a.OnLostFocus = [&] { panel.last.SetFocus(); };
  p.Step([&] {
    p.log.clear();
    p.ClickOn(panel, 30, 213);  // the text box
  });
  Heard("Space", {"-box", "+last", "box click", "last click"});
  p.Run();
}

TEST_F(Keys, AnswerTheSystemsBox) {
  using enum MsgResult;
  PlainForm board(p.screen, "board", 800, 600, p.log);
  std::vector<MsgResult> results;
  MsgButtons buttons = MsgButtons::YesNo;
  board.onClick = [&] { results.push_back(MsgBox(p.screen, "GIROVIA", "Esci?", buttons)); };
  board.Show();
  board.button.SetFocus();
  for (const char* keys : {"Space Enter", "Space Escape", "Space Tab Space"})
    p.Step([&p = p, keys] { p.Keys(keys); });
  p.Step([&] { buttons = MsgButtons::Ok; });
  for (const char* keys : {"Space Enter", "Space Escape"}) p.Step([&p = p, keys] { p.Keys(keys); });
  p.Run();
  EXPECT_EQ(results, (std::vector<MsgResult>{Yes, No, No, Ok, Ok}));
}

}  // namespace
}  // namespace platform
