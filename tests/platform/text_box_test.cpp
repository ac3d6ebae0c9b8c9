// Writing in a text box by keys, mouse and clipboard.
#include "platform/forms/text_box.h"

#include "program.h"

namespace platform {
namespace {

const Font kText{"Verdana", 12, true, false};

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
  const struct {
    const char *start, *keys, *text, *selected;
    std::size_t caret;
  } cases[] = {
      {"Primo", "'_è'", "Primo è", "", 8},
      {"Primo", "ctrl+A 'Łucja'", "Łucja", "", 6},
      // A letter and its accents are one, however they are typed; so is a family, and a flag.
      {"e", "'\u0301'", "é", "", 2},
      {"ba\u0323\u0301", "Back", "b", "", 1},
      {"👨‍👩‍👧x", "Home Right '=' Left Back", "=x", "", 0},
      {"🇮🇹", "Home '🇫' Back", "🇹", "", 0},
      {"abc", "Left Left Delete 'è' Home '<' End '>'", "<aèc>", "", 6},
      {"a", "Delete Right Home Left Back", "a", "", 0},
      {"città", "shift+Left shift+Left shift+Left shift+Right", "città", "tà", 3},
      {"città", "shift+Home Right shift+Home Left", "città", "", 0},
      {"Anna  De-Rossi", "ctrl+Left ctrl+Left ctrl+Back Home shift+ctrl+Right", "Anna  -Rossi",
       "Anna  ", 6},
      {"uno due", "shift+ctrl+Left ctrl+X Home ctrl+V ctrl+V", "duedueuno ", "", 6},
      {"a", "shift+Left ctrl+C Right ctrl+X ctrl+C ctrl+V", "aa", "", 2},
  };
  sheet.Show();
  sheet.box.SetFocus();
  for (const auto& c : cases)
    p.Step(
        [&] {
          sheet.box.SetText(c.start);
          p.Keys(c.keys);
        },
        [&] {
          EXPECT_EQ(sheet.box.text(), c.text) << c.keys;
          EXPECT_EQ(sheet.box.selected(), c.selected) << c.keys;
          EXPECT_EQ(sheet.box.caret(), c.caret) << c.keys;
        });
  // What is pasted becomes one line of clean text.
  p.Step(
      [&] {
        p.host.SetClipboard(std::string("uno\r\ndue\ntre\tqu\x01\x7F") + "attro\xFF");
        p.Keys("ctrl+A ctrl+V");
      },
      [&] { EXPECT_EQ(sheet.box.text(), "uno due tre quattro\uFFFD"); });
  // What is composed is no text yet.
  p.Step(
      [&] {
        p.Keys("ctrl+A");
        for (const char* so : {"ni", ""}) p.host.Queue({.kind = EventKind::Composing, .text = so});
        p.Keys("'你'");
        p.host.Queue({.kind = EventKind::Composing, .text = "hao"});
      },
      [&] { EXPECT_EQ(sheet.box.text(), "你"); });
  p.Run();
}

TEST_F(Writing, ByMouse) {
  sheet.box.OnGotFocus = [&] { sheet.box.SelectAll(); };
  sheet.box.SetText("Anna Maria");
  sheet.Show();
  const Rect at = sheet.PlaneRect();
  // At the letters, counted in bytes; -1 is left of the box.
  const auto mouse = [&](const std::vector<int>& letters) {
    const auto event = [&](EventKind kind, int letter) {
      const double x = 20 + 5 + 1 + TextWidth(kText, sheet.box.text().substr(0, unsigned(letter)));
      p.host.Queue({.kind = kind, .x = letter < 0 ? 1 : int(at.left + x), .y = int(at.top) + 33});
    };
    event(EventKind::MouseDown, letters.front());
    for (const int letter : letters) event(EventKind::MouseMove, letter);
    event(EventKind::MouseUp, letters.back());
  };
  const auto selects = [&](const std::vector<int>& letters, const char* selected) {
    p.Step([mouse, letters] { mouse(letters); },
           [this, selected] { EXPECT_EQ(sheet.box.selected(), selected); });
  };
  const auto pause = [&] {
    for (int i = 0; i < 3; ++i) p.script.push_back([] {});  // beats of the caret
  };
  selects({5}, "Anna Maria");  // brings the focus
  pause();
  selects({5}, "");
  selects({5}, "Maria");       // the second of two
  selects({5}, "Anna Maria");  // of three
  pause();
  selects({2, 4, 7}, "na Ma");
  pause();
  selects({2, -1}, "An");
  p.Step([&] { p.ClickOn(sheet, 40, 120); },
         [&] {
           EXPECT_FALSE(sheet.box.focused());
           EXPECT_FALSE(p.host.textArea());
         });
  selects({3, 7}, "a Ma");  // brings the focus and goes on
  p.Run();
  EXPECT_EQ(p.host.pointer().kind, Pointer::Kind::IBeam);
}

TEST_F(Writing, LooksAsItIs) {
  sheet.box.SetText("");
  sheet.Show();
  const Rect at = sheet.PlaneRect();
  const auto seen = [&](Color color) {
    for (double x = 23; x < 178; ++x)
      if (p.host.planeShown().PixelAt(at.left + x, at.top + 33) == color) return true;
    return false;
  };
  std::int64_t shows = 0;
  Timer later;
  p.Step([&] { sheet.box.SetFocus(); },
         [&] {
           EXPECT_TRUE(seen(colors::kBlack)) << "caret";
           EXPECT_EQ(p.host.textArea().value_or(DeviceRect{}).left, int(at.left) + 25);
           p.host.OnShow = [](const std::vector<DeviceRect>& changed) {
             for (const DeviceRect& r : changed)
               EXPECT_EQ(r.width(), 1) << "the caret alone blinks";
           };
         });
  p.script.push_back([] {});
  p.script.push_back([&] { EXPECT_FALSE(seen(colors::kBlack)) << "half a second later"; });
  p.Step(
      [&] {
        EXPECT_TRUE(seen(colors::kBlack));
        p.host.OnShow = nullptr;
        p.Keys("'Primo' ctrl+A");
      },
      [&] { EXPECT_TRUE(seen(colors::kNavy)) << "selection"; });
  p.Step([&] { sheet.button.SetFocus(); },
         [&] {
           EXPECT_FALSE(seen(colors::kNavy)) << "hidden with the focus";
           EXPECT_EQ(sheet.box.selected(), "Primo");
           shows = p.host.shows();
           later.Attach(sheet, 2000, true);
         });
  p.script.push_back([] {});
  p.script.push_back([&] {
    EXPECT_GE(p.host.NowMicros(), 2'000'000) << "nothing else is due";
    EXPECT_EQ(p.host.shows(), shows);
  });
  p.Run();
}

TEST_F(Writing, ALongTextScrolls) {
  sheet.box.SetText("una riga molto più lunga della casella in cui sta scritta");
  sheet.Show();
  sheet.box.SetFocus();
  const auto caret = [&] { return p.host.textArea().value_or(DeviceRect{}); };
  const auto times = [](int n, const std::string& key) {
    std::string keys;
    for (int i = 0; i < n; ++i) keys += key + " ";
    return keys;
  };
  const double left = sheet.PlaneRect().left + 20;
  DeviceRect end;
  p.Step([&] { end = caret(); }, [&] { EXPECT_NEAR(end.left, left + 161 - 6, 2); });
  p.Step([&] { p.Keys("Left Left"); },
         [&] { EXPECT_LT(caret().left, end.left) << "the caret moves before the text does"; });
  p.Step([&] { p.Keys(times(60, "Left")); }, [&] { EXPECT_EQ(caret().left, int(left) + 5); });
  // As the text goes, what was hidden comes back in.
  p.Step([&] { p.Keys("End " + times(44, "Back")); },
         [&] {
           EXPECT_EQ(sheet.box.text(), "una riga molt");
           EXPECT_NEAR(caret().left, left + 5 + TextWidth(kText, sheet.box.text()), 1);
         });
  p.Run();
}

}  // namespace
}  // namespace platform
