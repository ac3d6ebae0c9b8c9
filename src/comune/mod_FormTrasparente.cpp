#include "comune/mod_FormTrasparente.h"

#include "platform/forms/screen.h"

namespace girovia {

void CatturaSchermo(platform::Form& form) { form.SetSurface(form.screen().CaptureUnder(form)); }

}  // namespace girovia
