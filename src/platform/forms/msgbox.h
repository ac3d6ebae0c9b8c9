// The system's plain message box, drawn by the program itself: it needs no picture and no sound, so
// that it can also say why there is none. The forms under it do not notice: none of them is
// activated when it comes or goes.
#pragma once

#include <string>

#include "platform/forms/screen.h"

namespace platform {

enum class MsgButtons { Ok, YesNo };
enum class MsgResult { Ok = 1, Yes = 6, No = 7 };

// Modal, over everything; returns the button clicked.
MsgResult MsgBox(Screen& screen, const std::string& title, const std::string& text,
                 MsgButtons buttons);

}  // namespace platform
