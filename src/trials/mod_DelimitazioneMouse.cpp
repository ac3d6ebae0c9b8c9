#include "trials/mod_DelimitazioneMouse.h"

#include "platform/forms/screen.h"

namespace girovia {

void DelimitaMouse(platform::Form& form, const platform::PictureBox& picOriginale,
                   const Recinto& recinto) {
  const platform::Rect& p = picOriginale.place();
  form.screen().ClipCursor(form, {p.left + recinto.left, p.top + recinto.top,
                                  recinto.right - recinto.left, recinto.bottom - recinto.top});
}

void LiberaMouse(platform::Form& form) { form.screen().FreeCursor(); }

}  // namespace girovia
