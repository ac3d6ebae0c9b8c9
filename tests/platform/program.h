// A program of one's own forms on a machine without a screen, for one test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/screen.h"
#include "platform/forms/text_box.h"
#include "platform/hosts/headless/headless_host.h"

namespace platform {

using Log = std::vector<std::string>;

class PlainForm : public Form {
 public:
  PlainForm(Screen& s, std::string formName, int w, int h, Log& log, Color back = 0xC0C0C0)
      : Form(s, std::move(formName), w, h, back), log_(log) {
    Row(button, "button", {10, 10, 40, 40});
    button.OnClick = [this] {
      log_.push_back(name() + " click");
      if (onClick) onClick();
    };
  }
  void Form_Load() override { log_.push_back(name() + " load"); }
  void Form_Activate() override {
    log_.push_back(name() + " activate");
    if (onActivate) onActivate();
  }
  void Form_Unload() override { log_.push_back(name() + " unload"); }

  CommandButton button;
  std::function<void()> onClick, onActivate;

 private:
  Log& log_;
};

// Runs the loop until the script has nothing more to do. Each step comes when the program would
// sleep; one that makes no event for it lets time go on to the next deadline, which there must be.
struct Program {
  explicit Program(PixelSize window = {800, 600}) : host(window) {}
  HeadlessHost host;
  Screen screen{host};
  Log log;
  std::vector<std::function<void()>> script;

  void Run() {
    std::size_t step = 0;
    host.OnIdle = [this, &step] {
      if (step < script.size()) {
        const auto now = std::move(script[step++]);  // it may add others
        now();
      } else {
        host.Queue({.kind = EventKind::Quit});
      }
    };
    EXPECT_THROW(screen.Run(), ProgramEnded);
    EXPECT_EQ(step, script.size()) << "the program ended before its script";
    host.OnIdle = nullptr;
  }
  void Nudge() { host.Queue({.kind = EventKind::MouseLeave}); }
  // A step that does something, and one that looks at what came of it.
  void Step(std::function<void()> act, std::function<void()> look = {}) {
    for (auto& half : {std::move(act), std::move(look)})
      if (half)
        script.push_back([this, half] {
          half();
          Nudge();
        });
  }
  // Names of keys, with shift+ or ctrl+ before them, or texts in quotes, _ for a blank.
  void Keys(const std::string& keys) {
    static const std::map<std::string, Key> kNames = {{"Tab", Key::Tab},
                                                      {"Enter", Key::Enter},
                                                      {"Escape", Key::Escape},
                                                      {"Space", Key::Space},
                                                      {"Back", Key::Backspace},
                                                      {"Delete", Key::Delete},
                                                      {"Left", Key::Left},
                                                      {"Right", Key::Right},
                                                      {"Down", Key::Down},
                                                      {"Home", Key::Home},
                                                      {"End", Key::End},
                                                      {"A", Key::A},
                                                      {"C", Key::C},
                                                      {"V", Key::V},
                                                      {"X", Key::X}};
    std::istringstream words(keys);
    for (std::string word; words >> word;) {
      if (word[0] == '\'') {
        std::replace(word.begin(), word.end(), '_', ' ');
        host.Type(word.substr(1, word.size() - 2));
        continue;
      }
      const auto plus = word.rfind('+');
      const std::string with = plus == std::string::npos ? "" : word.substr(0, plus);
      host.Press(kNames.at(word.substr(plus + 1)), with.find("shift") != std::string::npos,
                 with.find("ctrl") != std::string::npos);
    }
  }
  void ClickOn(const Form& form, double x, double y, MouseButton button = MouseButton::Left) {
    const Rect r = form.PlaneRect();
    host.Click(screen.ToWindow({r.left + x, r.top + y}), button);
  }
  void MoveTo(const Form& form, double x, double y) {
    const Rect r = form.PlaneRect();
    const Point p = screen.ToWindow({r.left + x, r.top + y});
    host.Queue({EventKind::MouseMove, int(p.x), int(p.y), MouseButton::Left});
  }
};

}  // namespace platform
