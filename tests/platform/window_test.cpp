// The window may take any size, at any moment.
#include "program.h"

namespace platform {
namespace {

const PixelSize kSizes[] = {{1, 1},     {3000, 1}, {1, 3000},    {400, 300}, {1024, 768},
                            {801, 600}, {7, 900},  {1920, 1080}, {16384, 2}, {1600, 1200}};

TEST(Window, ThePlaneBelongsToItsSize) {
  for (const PixelSize start : kSizes) {
    Program p(start);
    PlainForm board(p.screen, "board", 800, 600, p.log);
    std::size_t next = 0;
    // What is shown fits the window; a picture of it can be taken at any moment.
    p.host.OnShow = [&](const std::vector<DeviceRect>& changed) {
      const Surface& plane = p.host.planeShown();
      EXPECT_EQ(plane.deviceBounds(), p.screen.plane().deviceBounds());
      for (const DeviceRect& r : changed) EXPECT_EQ(Intersect(r, plane.deviceBounds()), r);
      EXPECT_LE(std::int64_t(plane.deviceWidth()) * plane.deviceHeight(), 8192 * 8192);
      p.host.Shot();
    };
    p.host.OnBlocked = [&, asked = std::int64_t(-1)]() mutable {
      if (asked == p.host.NowMicros()) return;
      asked = p.host.NowMicros();
      p.host.Resize(kSizes[next++ % std::size(kSizes)]);
    };
    board.onClick = [&] {
      for (std::size_t i = 0; i < 2 * std::size(kSizes); ++i) {
        p.screen.Wait(10);
        board.button.Move({10.0 + double(i), 10, 40, 40});
        board.Refresh();
      }
    };
    board.Show();
    board.button.SetFocus();
    p.script = {[&] { p.host.Press(Key::Space); },
                [&] {
                  EXPECT_EQ(next, 2 * std::size(kSizes));
                  p.host.Resize({800, 600});
                },
                [&] {
                  EXPECT_EQ(p.screen.plane().PixelAt(400, 300), 0xC0C0C0u);
                  EXPECT_EQ(board.PlaneRect(), (Rect{0, 0, 800, 600}));
                  p.Nudge();
                }};
    if (p.screen.scale() > 1) p.script.pop_back();
    p.Run();
  }
}

TEST(Window, AFormThatWasHiddenStandsInTheMiddleAgain) {
  Program p;
  PlainForm board(p.screen, "board", 800, 600, p.log), small(p.screen, "small", 100, 100, p.log);
  board.Show();
  p.script = {[&] {
                p.host.Resize({800, 1200});
              },
              [&] {
                small.Show();
                EXPECT_EQ(small.PlaneRect(), (Rect{350, 550, 100, 100}));
                p.Nudge();
              }};
  p.Run();
}

}  // namespace
}  // namespace platform
