// The desktop window, on SDL2. The only folder that includes SDL.
#pragma once

#include <memory>
#include <string>

#include "platform/hosts/host.h"

namespace platform {

struct DesktopOptions {
  std::string title;
  std::string iconPath;    // PNG; may be missing
  bool fullScreen = true;  // at the display's own resolution
};

// Null if there is no display to open a window on; `why` then says it in one sentence.
// The window takes F11 and Alt+Enter for itself: they toggle between full screen and a window that
// can be resized.
std::unique_ptr<Host> OpenDesktop(const DesktopOptions& options, std::string& why);

}  // namespace platform
