// What a script wants to know of a window and cannot ask with xdotool.
//
//   finestra pixel X Y       the colour there, as RRGGBB
//   finestra chiudi WINDOW   asks the program to close it, as a window manager does
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

struct Closer {
  void operator()(Display* display) const { XCloseDisplay(display); }
};

int PrintPixel(Display* display, int x, int y) {
  XImage* image = XGetImage(display, DefaultRootWindow(display), x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) return 1;
  std::printf("%06lX\n", XGetPixel(image, 0, 0) & 0xFFFFFF);
  XDestroyImage(image);
  return 0;
}

void AskToClose(Display* display, Window window) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = long(XInternAtom(display, "WM_DELETE_WINDOW", False));
  XSendEvent(display, window, False, NoEventMask, &event);
  XFlush(display);
}

}  // namespace

int main(int argc, char** argv) {
  const std::unique_ptr<Display, Closer> display(XOpenDisplay(nullptr));
  if (!display) return 1;
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "pixel" && argc == 4)
    return PrintPixel(display.get(), std::atoi(argv[2]), std::atoi(argv[3]));
  if (what != "chiudi" || argc != 3) return 2;
  AskToClose(display.get(), std::strtoul(argv[2], nullptr, 10));
  return 0;
}
