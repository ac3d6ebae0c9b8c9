#include "comune/mod_FormTrasparente.h"

#include "platform/forms/screen.h"

namespace girovia {

void CatturaSchermo(platform::Form& form) {
  form.surface().BitBlt(0, 0, form.width(), form.height(), form.screen().CaptureUnder(form), 0, 0,
                        platform::RasterOp::SrcCopy);
}

}  // namespace girovia
