// Writing in a text box by keys, mouse and clipboard.
#include "platform/forms/text_box.h"

#include "program.h"

namespace platform {
namespace {

const Font kText{"Verdana", 12, true, false};
constexpr bool kShift = true, kCtrl = true;

struct Sheet : Form {
  explicit Sheet(Screen& s) : Form(s, "sheet", 400, 200, 0xC0C0C0) {
    Row(box, "box", {20, 20, 161, 26}, {.text = "Primo", .font = kText});
    Row(other, "other", {20, 60, 161, 26}, {.font = kText});
    Row(button, "button", {20, 100, 40, 40});
  }
  TextBox box, other;
  CommandButton button;
};

class Writing : public testing::Test {
 protected:
  Writing() { SetFontFolder(FONT_FOLDER); }
  ~Writing() override { SetFontFolder(""); }

  Program p;
  Sheet sheet{p.screen};
};

TEST_F(Writing, ByKeys) {
  struct Case {
    const char* what;
    const char* start;
    std::function<void(HeadlessHost&)> keys;
    const char* text;
    const char* selected;
    std::size_t caret;
  };
  const std::vector<Case> cases = {
      {"at the end", "Primo", [](auto& h) { h.Type(" è"); }, "Primo è", "", 8},
      {"in place of all", "Primo",
       [](auto& h) {
         h.Press(Key::A, false, kCtrl);
         h.Type("Łucja");
       },
       "Łucja", "", 6},
      {"an accent by itself joins its letter", "e", [](auto& h) { h.Type("\u0301"); }, "é", "", 2},
      {"an accent and its letter go together", "ba\u0323\u0301",
       [](auto& h) { h.Press(Key::Backspace); }, "b", "", 1},
      {"a family is one character", "👨‍👩‍👧x",
       [](auto& h) {
         h.Press(Key::Home);
         h.Press(Key::Right);
         h.Type("=");
         h.Press(Key::Left);
         h.Press(Key::Backspace);
       },
       "=x", "", 0},
      {"half a flag put before another", "🇮🇹",
       [](auto& h) {
         h.Press(Key::Home);
         h.Type("🇫");
         h.Press(Key::Backspace);
       },
       "🇹", "", 0},
      {"back and forth", "abc",
       [](auto& h) {
         h.Press(Key::Left);
         h.Press(Key::Left);
         h.Press(Key::Delete);
         h.Type("è");
         h.Press(Key::Home);
         h.Type("<");
         h.Press(Key::End);
         h.Type(">");
       },
       "<aèc>", "", 6},
      {"at the edges", "a",
       [](auto& h) {
         h.Press(Key::Delete);
         h.Press(Key::Right);
         h.Press(Key::Home);
         h.Press(Key::Left);
         h.Press(Key::Backspace);
       },
       "a", "", 0},
      {"a selection from both sides", "città",
       [](auto& h) {
         h.Press(Key::Left, kShift);
         h.Press(Key::Left, kShift);
         h.Press(Key::Left, kShift);
         h.Press(Key::Right, kShift);
       },
       "città", "tà", 3},
      {"an arrow leaves a selection at its side", "città",
       [](auto& h) {
         h.Press(Key::Home, kShift);
         h.Press(Key::Right);
         h.Press(Key::Home, kShift);
         h.Press(Key::Left);
       },
       "città", "", 0},
      {"words", "Anna  De-Rossi",
       [](auto& h) {
         h.Press(Key::Left, false, kCtrl);
         h.Press(Key::Left, false, kCtrl);
         h.Press(Key::Backspace, false, kCtrl);
         h.Press(Key::Home);
         h.Press(Key::Right, kShift, kCtrl);
       },
       "Anna  -Rossi", "Anna  ", 6},
      {"the clipboard", "uno due",
       [](auto& h) {
         h.Press(Key::Left, kShift, kCtrl);
         h.Press(Key::X, false, kCtrl);
         h.Press(Key::Home);
         h.Press(Key::V, false, kCtrl);
         h.Press(Key::V, false, kCtrl);
       },
       "duedueuno ", "", 6},
      {"nothing to cut leaves the clipboard", "a",
       [](auto& h) {
         h.SetClipboard("b");
         h.Press(Key::X, false, kCtrl);
         h.Press(Key::C, false, kCtrl);
         h.Press(Key::V, false, kCtrl);
       },
       "ab", "", 2},
      {"lines become one", "",
       [](auto& h) {
         h.SetClipboard(std::string("uno\r\ndue\ntre\tqu\x01\x7F") + "attro\xFF");
         h.Press(Key::V, false, kCtrl);
       },
       "uno due tre quattro\uFFFD", "", 22},
      {"what is composed is no text yet", "a",
       [](auto& h) {
         h.Queue({.kind = EventKind::Composing, .text = "ni"});
         h.Queue({.kind = EventKind::Composing, .text = ""});
         h.Type("你");
         h.Queue({.kind = EventKind::Composing, .text = "hao"});
       },
       "a你", "", 4},
  };
  sheet.Show();
  sheet.box.SetFocus();
  for (const Case& c : cases) {
    p.script.push_back([&] {
      sheet.box.SetText(c.start);
      p.host.SetClipboard("");
      c.keys(p.host);
    });
    p.script.push_back([&] {
      EXPECT_EQ(sheet.box.text(), c.text) << c.what;
      EXPECT_EQ(sheet.box.selected(), c.selected) << c.what;
      EXPECT_EQ(sheet.box.caret(), c.caret) << c.what;
    });
  }
  p.Run();
}

TEST_F(Writing, ByMouse) {
  sheet.box.OnGotFocus = [&] { sheet.box.SelectAll(); };
  sheet.box.SetText("Anna Maria");
  sheet.Show();
  const Rect at = sheet.PlaneRect();
  const auto x = [&](std::size_t byte) {  // a little right of the letter's left edge
    return 20 + 5 + TextWidth(kText, sheet.box.text().substr(0, byte)) + 1;
  };
  const auto event = [&](EventKind kind, std::size_t byte) {
    p.host.Queue({kind, int(at.left + x(byte)), int(at.top) + 33, MouseButton::Left});
  };
  const auto pass = [&] { p.host.Queue({EventKind::MouseMove, 700, 500, MouseButton::Left}); };
  p.script = {[&] { p.ClickOn(sheet, x(5), 33); },
              [&] {
                EXPECT_EQ(sheet.box.selected(), "Anna Maria") << "the click that brings the focus";
                EXPECT_EQ(p.host.pointer().kind, Pointer::Kind::IBeam);
                pass();
              },
              [] {},
              [] {},  // half a second later
              [&] { p.ClickOn(sheet, x(5), 33); },
              [&] {
                EXPECT_EQ(sheet.box.selected(), "");
                EXPECT_EQ(sheet.box.caret(), 5u);
                p.ClickOn(sheet, x(5), 33);  // the second of two
              },
              [&] {
                EXPECT_EQ(sheet.box.selected(), "Maria");
                p.ClickOn(sheet, x(5), 33);  // of three
              },
              [&] { EXPECT_EQ(sheet.box.selected(), "Anna Maria"); },
              [] {},
              [] {},
              [&] {
                event(EventKind::MouseDown, 2);
                event(EventKind::MouseMove, 7);
                event(EventKind::MouseUp, 7);
                event(EventKind::MouseMove, 9);
              },
              [&] { EXPECT_EQ(sheet.box.selected(), "na Ma"); },
              [] {},
              [] {},
              [&] {  // out of the box to the left, and a click elsewhere
                event(EventKind::MouseDown, 2);
                p.host.Queue({EventKind::MouseMove, 1, 1, MouseButton::Left});
                p.host.Queue({EventKind::MouseUp, 1, 1, MouseButton::Left});
              },
              [&] {
                EXPECT_EQ(sheet.box.selected(), "An");
                p.ClickOn(sheet, 40, 120);
              },
              [&] {
                EXPECT_FALSE(sheet.box.focused());
                EXPECT_FALSE(p.host.textArea());
                // The press that brings the focus back may be dragged, though.
                event(EventKind::MouseDown, 3);
                event(EventKind::MouseMove, 7);
                event(EventKind::MouseUp, 7);
              },
              [&] {
                EXPECT_EQ(sheet.box.selected(), "a Ma");
                p.Nudge();
              }};
  p.Run();
}

// The colours that stand in the row through the middle of the text.
std::set<Color> Seen(const HeadlessHost& host, const Rect& form, const Rect& box) {
  std::set<Color> seen;
  for (double x = box.left + 3; x < box.right() - 3; ++x)
    seen.insert(host.planeShown().PixelAt(form.left + x, form.top + box.top + 13));
  return seen;
}

TEST_F(Writing, LooksAsItIs) {
  sheet.Show();
  const Rect at = sheet.PlaneRect();
  const auto seen = [&] { return Seen(p.host, at, sheet.box.place()); };
  sheet.box.SetText("");
  std::int64_t shows = 0;
  Timer later;
  p.script = {[&] {
                EXPECT_EQ(seen(), std::set<Color>{colors::kWhite});
                sheet.box.SetFocus();
                p.Nudge();
              },
              [&] {
                EXPECT_TRUE(seen().contains(colors::kBlack)) << "caret";
                const DeviceRect caret = p.host.textArea().value_or(DeviceRect{});
                EXPECT_EQ(caret.left, int(at.left) + 25);
                p.host.OnShow = [](const std::vector<DeviceRect>& changed) {
                  for (const DeviceRect& r : changed)
                    EXPECT_EQ(r.width(), 1) << "the caret alone blinks";
                };
              },
              [&] { EXPECT_EQ(seen(), std::set<Color>{colors::kWhite}) << "half a second later"; },
              [&] {
                EXPECT_TRUE(seen().contains(colors::kBlack));
                p.host.OnShow = nullptr;
                p.host.Type("Primo");
                p.host.Press(Key::A, false, kCtrl);
              },
              [&] {
                EXPECT_TRUE(seen().contains(colors::kNavy)) << "selection";
                sheet.button.SetFocus();
                p.Nudge();
              },
              [&] {
                EXPECT_FALSE(seen().contains(colors::kNavy)) << "hidden with the focus";
                EXPECT_EQ(sheet.box.selected(), "Primo");
                shows = p.host.shows();
                later.Attach(sheet, 2000, true);
                p.Nudge();
              },
              [] {},
              [&] {
                EXPECT_GE(p.host.NowMicros(), 2'000'000) << "nothing else is due";
                EXPECT_EQ(p.host.shows(), shows);
              }};
  p.Run();
}

TEST_F(Writing, ALongTextScrolls) {
  const std::string text = "una riga molto più lunga della casella in cui sta scritta";
  sheet.box.SetText(text);
  sheet.Show();
  sheet.box.SetFocus();
  const auto caret = [&] { return p.host.textArea().value_or(DeviceRect{}); };
  const double left = sheet.PlaneRect().left + 20;
  DeviceRect end;
  p.script = {[&] {
                end = caret();
                EXPECT_GT(end.left, left + 161 - 12);
                EXPECT_LT(end.right, left + 161 - 2);
                p.host.Press(Key::Left);
                p.host.Press(Key::Left);
              },
              [&] {
                EXPECT_LT(caret().left, end.left) << "the caret moves before the text does";
                for (int i = 0; i < 200; ++i) p.host.Press(Key::Left);
              },
              [&] {
                EXPECT_EQ(caret().left, int(left) + 5);
                p.host.Press(Key::End);
                for (int i = 0; i < 44; ++i) p.host.Press(Key::Backspace);
              },
              [&] {
                // As the text goes, what was hidden comes back in.
                EXPECT_NEAR(caret().left, left + 5 + TextWidth(kText, sheet.box.text()), 1);
              }};
  p.Run();
  EXPECT_EQ(sheet.box.text(), text.substr(0, 13));
}

}  // namespace
}  // namespace platform
