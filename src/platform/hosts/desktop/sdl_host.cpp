#include "platform/hosts/desktop/sdl_host.h"

#include <SDL.h>
#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <map>
#include <utility>

#include "platform/drawing/picture.h"
#include "platform/drawing/reduce.h"
#include "platform/drawing/resample.h"
#include "platform/hosts/desktop/sdl_voice.h"
#include "platform/hosts/desktop/signals.h"

namespace platform {
namespace {

constexpr int kWindowWidth = 1000;
constexpr int kWindowHeight = 750;

Key KeyOf(SDL_Keycode code) {
  switch (code) {
    case SDLK_TAB:
      return Key::Tab;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
      return Key::Enter;
    case SDLK_ESCAPE:
      return Key::Escape;
    case SDLK_SPACE:
      return Key::Space;
    case SDLK_BACKSPACE:
      return Key::Backspace;
    case SDLK_DELETE:
      return Key::Delete;
    case SDLK_LEFT:
      return Key::Left;
    case SDLK_RIGHT:
      return Key::Right;
    case SDLK_UP:
      return Key::Up;
    case SDLK_DOWN:
      return Key::Down;
    case SDLK_HOME:
      return Key::Home;
    case SDLK_END:
      return Key::End;
    case SDLK_a:
      return Key::A;
    case SDLK_c:
      return Key::C;
    case SDLK_v:
      return Key::V;
    case SDLK_x:
      return Key::X;
    default:
      return Key::None;
  }
}

// A key that is held down goes on with these; it does not press a button again and again.
bool Repeats(Key key) { return key != Key::Enter && key != Key::Space && key != Key::Escape; }

class SdlHost : public Host {
 public:
  SdlHost(SDL_Window* window, std::unique_ptr<Signals> signals, const DesktopOptions& options)
      : signals_(std::move(signals)), window_(window), growsFull_(options.fullScreen) {
    SDL_StopTextInput();
    int error = 0;
    if (const auto icon = Picture::Load(options.iconPath, error)) {
      // SDL copies the icon, so that the pixels need to live only for the call.
      std::vector<std::uint32_t> pixels = icon->argb();
      SDL_Surface* surface =
          SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), icon->pixelWidth(), icon->pixelHeight(),
                                             32, icon->pixelWidth() * 4, SDL_PIXELFORMAT_ARGB8888);
      SDL_SetWindowIcon(window_, surface);
      SDL_FreeSurface(surface);
    }
  }

  ~SdlHost() override {
    const bool silent = voice_.Close();
    for (auto& [key, cursor] : cursors_) SDL_FreeCursor(cursor.sdl);
    SDL_DestroyWindow(window_);
    if (silent)
      SDL_Quit();
    else
      SDL_QuitSubSystem(SDL_INIT_VIDEO);
  }

  PixelSize WindowSize() override {
    PixelSize size;
    SDL_GetWindowSize(window_, &size.width, &size.height);
    return {std::max(1, size.width), std::max(1, size.height)};
  }

  PixelSize LargestWindow() override {
    PixelSize largest = WindowSize();
    for (int i = 0; i < SDL_GetNumVideoDisplays(); ++i) {
      SDL_DisplayMode mode;
      if (SDL_GetDesktopDisplayMode(i, &mode) != 0) continue;
      largest.width = std::max(largest.width, mode.w);
      largest.height = std::max(largest.height, mode.h);
    }
    return largest;
  }

  std::int64_t NowMicros() override {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
  }

  std::tm LocalTime() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
  }

  bool WaitEvent(Event& event, std::int64_t deadline) override {
    // Not before the first picture: SDL waits a tenth of a second for a window manager to agree.
    if (shown_ && std::exchange(growsFull_, false)) {
      SDL_SetWindowFullscreen(window_, SDL_WINDOW_FULLSCREEN_DESKTOP);
      lost_ = true;
      event.kind = EventKind::Expose;
      return true;
    }
    for (;;) {
      SDL_Event sdl;
      int got = 0;
      if (deadline == kForever) {
        got = SDL_WaitEvent(&sdl);
      } else {
        const std::int64_t left = deadline - NowMicros();
        // Under a millisecond SDL cannot sleep exactly: the clock does it, and events can wait.
        if (left <= 0) {
          got = SDL_PollEvent(&sdl);
        } else if (left < 1000) {
          SleepMicros(left);
          got = SDL_PollEvent(&sdl);
        } else {
          got = SDL_WaitEventTimeout(&sdl, int(std::min<std::int64_t>(left / 1000, 1'000'000)));
        }
      }
      if (got && Translate(sdl, event)) return true;
      if (!got && NowMicros() >= deadline) return false;
    }
  }

  bool PollEvent(Event& event) override {
    SDL_Event sdl;
    while (SDL_PollEvent(&sdl))
      if (Translate(sdl, event)) return true;
    return false;
  }

  std::int64_t FrameMicros() override {
    SDL_DisplayMode mode;
    if (SDL_GetCurrentDisplayMode(SDL_GetWindowDisplayIndex(window_), &mode) != 0) return 0;
    return 1'000'000 / (mode.refresh_rate > 0 ? mode.refresh_rate : 60);
  }

  void Show(const Surface& plane, const std::vector<DeviceRect>& changed) override {
    SDL_Surface* target = SDL_GetWindowSurface(window_);
    if (!target || target->format->BytesPerPixel != 4) return;
    const PixelSize from{plane.deviceWidth(), plane.deviceHeight()};
    const PixelSize window{target->w, target->h};
    // SDL makes a new surface whenever the window has grown, or only says so: then nothing of the
    // old picture is on it.
    const bool lost = std::exchange(lost_, false) || target != std::exchange(target_, target);
    if (!reducer_ || from != reducedPlane_ || window != reducedWindow_) {
      reducer_ = std::make_unique<Reducer>(from.width, from.height, window.width, window.height);
      reducedPlane_ = from;
      reducedWindow_ = window;
    }
    if (SDL_MUSTLOCK(target) && SDL_LockSurface(target) != 0) return;
    std::vector<SDL_Rect> rects;
    const std::vector<DeviceRect> all{{0, 0, from.width, from.height}};
    for (const DeviceRect& r : lost ? all : changed) {
      const DeviceRect t = reducer_->TargetOf(r);
      if (t.empty()) continue;
      reducer_->Run(plane.row(0), plane.deviceWidth(), static_cast<std::uint32_t*>(target->pixels),
                    target->pitch / 4, t);
      rects.push_back({t.left, t.top, t.width(), t.height()});
    }
    if (SDL_MUSTLOCK(target)) SDL_UnlockSurface(target);
    if (!rects.empty()) SDL_UpdateWindowSurfaceRects(window_, rects.data(), int(rects.size()));
    if (!shown_) {
      shown_ = true;
      if (firstSound_) PlaySound(std::exchange(firstSound_, nullptr));
    }
  }

  void SetPointer(const Pointer& pointer, double scale) override {
    SDL_SetCursor(CursorFor(pointer, scale));
  }

  void ClipPointer(const std::optional<DeviceRect>& area) override {
    if (!area) {
      SDL_SetWindowMouseRect(window_, nullptr);
      return;
    }
    const SDL_Rect rect{area->left, area->top, area->width(), area->height()};
    SDL_SetWindowMouseRect(window_, &rect);
  }

  void TakeText(const std::optional<DeviceRect>& caret) override {
    if (!caret) return SDL_StopTextInput();
    const SDL_Rect rect{caret->left, caret->top, caret->width(), caret->height()};
    SDL_SetTextInputRect(&rect);
    if (!SDL_IsTextInputActive()) SDL_StartTextInput();
  }

  std::string Clipboard() override {
    char* text = SDL_GetClipboardText();
    std::string copy = text ? text : "";
    SDL_free(text);
    return copy;
  }

  void SetClipboard(const std::string& text) override { SDL_SetClipboardText(text.c_str()); }

  void PlaySound(const std::shared_ptr<const Wave>& wave) override {
    // Opening the sound system takes as long as the window does: the first picture goes first.
    if (shown_)
      voice_.Play(wave);
    else
      firstSound_ = wave;
  }

 private:
  static void SleepMicros(std::int64_t micros) {
    timespec time{0, long(micros) * 1000};
    nanosleep(&time, nullptr);
  }

  bool Translate(const SDL_Event& sdl, Event& event) {
    switch (sdl.type) {
      case SDL_QUIT:
        event.kind = EventKind::Quit;
        return true;
      case SDL_MOUSEMOTION:
        event = {.kind = EventKind::MouseMove, .x = sdl.motion.x, .y = sdl.motion.y};
        return true;
      case SDL_MOUSEBUTTONDOWN:
      case SDL_MOUSEBUTTONUP:
        if (sdl.button.button < SDL_BUTTON_LEFT || sdl.button.button > SDL_BUTTON_RIGHT)
          return false;
        event = {
            .kind = sdl.type == SDL_MOUSEBUTTONDOWN ? EventKind::MouseDown : EventKind::MouseUp,
            .x = sdl.button.x,
            .y = sdl.button.y,
            .button = MouseButton(sdl.button.button)};
        return true;
      case SDL_KEYDOWN:
        return TranslateKey(sdl.key, event);
      case SDL_TEXTINPUT:
        event = {.kind = EventKind::Text, .text = sdl.text.text};
        return true;
      case SDL_TEXTEDITING:
        event = {.kind = EventKind::Composing, .text = sdl.edit.text};
        return true;
      case SDL_WINDOWEVENT:
        switch (sdl.window.event) {
          case SDL_WINDOWEVENT_SIZE_CHANGED:
            lost_ = true;
            event.kind = WindowSize() == reducedWindow_ ? EventKind::Expose : EventKind::Resize;
            return true;
          case SDL_WINDOWEVENT_EXPOSED:
            event.kind = EventKind::Expose;
            return true;
          case SDL_WINDOWEVENT_LEAVE:
            event.kind = EventKind::MouseLeave;
            return true;
          default:
            return false;
        }
      default:
        return false;
    }
  }

  bool TranslateKey(const SDL_KeyboardEvent& sdl, Event& event) {
    const SDL_Keysym& pressed = sdl.keysym;
    const bool altEnter = pressed.sym == SDLK_RETURN && (pressed.mod & KMOD_ALT) != 0;
    if (pressed.sym == SDLK_F11 || altEnter) {
      if (!sdl.repeat) ToggleFullScreen();
      return false;
    }
    event = {.kind = EventKind::KeyDown,
             .key = KeyOf(pressed.sym),
             .shift = (pressed.mod & KMOD_SHIFT) != 0,
             .ctrl = (pressed.mod & KMOD_CTRL) != 0,
             .alt = (pressed.mod & KMOD_ALT) != 0};
    return event.key != Key::None && (!sdl.repeat || Repeats(event.key));
  }

  void ToggleFullScreen() {
    if (SDL_GetWindowFlags(window_) & SDL_WINDOW_FULLSCREEN_DESKTOP) {
      SDL_SetWindowFullscreen(window_, 0);
      SDL_SetWindowBordered(window_, SDL_TRUE);
      SDL_SetWindowSize(window_, kWindowWidth, kWindowHeight);
      SDL_SetWindowPosition(window_, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
      return;
    }
    // As at the start, the size is set here and not left to a window manager.
    SDL_Rect place;
    if (SDL_GetDisplayBounds(SDL_GetWindowDisplayIndex(window_), &place) == 0) {
      SDL_SetWindowPosition(window_, place.x, place.y);
      SDL_SetWindowSize(window_, place.w, place.h);
    }
    SDL_SetWindowFullscreen(window_, SDL_WINDOW_FULLSCREEN_DESKTOP);
  }

  SDL_Cursor* CursorFor(const Pointer& pointer, double scale) {
    const auto key = std::make_pair(int(pointer.kind), pointer.picture.get());
    auto found = cursors_.find(key);
    if (found != cursors_.end() && found->second.scale == scale) return found->second.sdl;
    SDL_Cursor* cursor = nullptr;
    switch (pointer.kind) {
      case Pointer::Kind::Arrow:
        cursor = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_ARROW);
        break;
      case Pointer::Kind::Hourglass:
        cursor = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_WAIT);
        break;
      case Pointer::Kind::SizeAll:
        cursor = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_SIZEALL);
        break;
      case Pointer::Kind::IBeam:
        cursor = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_IBEAM);
        break;
      case Pointer::Kind::Custom:
        cursor = CustomCursor(pointer, scale);
        break;
    }
    if (found != cursors_.end()) {
      // Replaced before it is freed: SDL must not be left with a freed cursor in use.
      SDL_SetCursor(cursor);
      SDL_FreeCursor(found->second.sdl);
    }
    cursors_[key] = {cursor, scale};
    return cursor;
  }

  static SDL_Cursor* CustomCursor(const Pointer& pointer, double scale) {
    constexpr int kLogical = 32;
    const int size = std::clamp(int(std::lround(kLogical * scale)), 8, 128);
    const Picture& picture = *pointer.picture;
    std::vector<std::uint32_t> pixels = Resample(
        {picture.argb().data(), picture.pixelWidth(), picture.pixelWidth(), picture.pixelHeight()},
        size, size, true);
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), size, size, 32,
                                                              size * 4, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    SDL_Cursor* cursor = SDL_CreateColorCursor(surface, pointer.hotX * size / kLogical,
                                               pointer.hotY * size / kLogical);
    SDL_FreeSurface(surface);
    return cursor;
  }

  struct Cursor {
    SDL_Cursor* sdl = nullptr;
    double scale = 0;
  };
  std::unique_ptr<Signals> signals_;  // the last to go
  SDL_Window* window_;
  std::unique_ptr<Reducer> reducer_;
  PixelSize reducedPlane_, reducedWindow_;
  std::map<std::pair<int, const Picture*>, Cursor> cursors_;
  SdlVoice voice_;
  SDL_Surface* target_ = nullptr;  // as last shown on; only to be compared
  bool lost_ = false;              // what was on it may be
  bool shown_ = false;
  bool growsFull_;  // once it has shown something
  std::shared_ptr<const Wave> firstSound_;
};

}  // namespace

std::unique_ptr<Host> OpenDesktop(const DesktopOptions& options, std::string& why) {
  // The window's own framebuffer: a renderer would fall back on software GL on machines without a
  // graphics card, which costs three times the start and ten times the memory.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
  SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
#ifdef __linux__
  // With no display server named there is only the console; asking the others would have them
  // complain on stderr.
  if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY"))
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "KMSDRM");
#endif
  // Started with its outputs closed, the program would write its messages to the display server.
  int file = 0;
  while (file >= 0 && file <= 2) file = open("/dev/null", O_RDWR);
  if (file > 2) close(file);
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  auto signals = std::make_unique<Signals>();
  if (SDL_Init(SDL_INIT_VIDEO) != 0) {
    why = SDL_GetError();
    SDL_Quit();
    return nullptr;
  }
  // SDL falls back on drivers that draw into memory where nobody sees it.
  const std::string driver = SDL_GetCurrentVideoDriver();
  if (driver == "offscreen" || driver == "dummy") {
    why = "nessun display";
    SDL_Quit();
    return nullptr;
  }
  Uint32 flags = SDL_WINDOW_RESIZABLE;
  if (options.fullScreen) flags |= SDL_WINDOW_BORDERLESS;
  // Made as large as it is to be: where no window manager runs nobody else would do it.
  SDL_Rect place{SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, kWindowWidth, kWindowHeight};
  if (options.fullScreen) SDL_GetDisplayBounds(0, &place);
  SDL_Window* window =
      SDL_CreateWindow(options.title.c_str(), place.x, place.y, place.w, place.h, flags);
  if (!window) {
    why = SDL_GetError();
    SDL_Quit();
    return nullptr;
  }
  SDL_SetWindowMinimumSize(window, 400, 300);
  return std::make_unique<SdlHost>(window, std::move(signals), options);
}

}  // namespace platform
