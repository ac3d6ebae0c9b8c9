#include "comune/mod_Translucent.h"

#include "platform/forms/screen.h"

namespace girovia {

void Traslucido(platform::Form& form, platform::Color colore) {
  const double W = form.width(), H = form.height();
  form.surface().BitBlt(0, 0, W, H, form.screen().Capture(form), 0, 0, platform::RasterOp::SrcCopy);
  form.surface().FillBoxAnd(0, 0, W, H, colore);
  form.Invalidate();
}

}  // namespace girovia
