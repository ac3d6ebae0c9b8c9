// A coloured veil over a form.
#pragma once

#include "platform/forms/form.h"

namespace girovia {

// The form's surface becomes what the screen shows in its place, with only those bits left that the
// colour has too: with blue, everything turns to shades of blue.
void Traslucido(platform::Form& form, platform::Color colore);

}  // namespace girovia
