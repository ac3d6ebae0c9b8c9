// Forms that look like a clear sheet: what the screen shows under a form, drawn on the form.
#pragma once

#include "platform/forms/form.h"

namespace girovia {

// The form's surface takes what lay under the form before it appeared. To be called at the very
// start of its activation; the next repaint shows it.
void CatturaSchermo(platform::Form& form);

}  // namespace girovia
