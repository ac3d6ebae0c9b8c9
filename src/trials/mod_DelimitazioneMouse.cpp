#include "trials/mod_DelimitazioneMouse.h"

#include "platform/forms/screen.h"

namespace girovia {

void DelimitaMouse(platform::Form& form, const platform::PictureBox& picOriginale,
                   const Recinto& recinto) {
  const platform::Rect f = form.PlaneRect();
  const platform::Rect& p = picOriginale.place();
  form.screen().ClipCursor(platform::Rect{f.left + p.left + recinto.left,
                                          f.top + p.top + recinto.top, recinto.right - recinto.left,
                                          recinto.bottom - recinto.top});
}

void LiberaMouse(platform::Form& form) { form.screen().ClipCursor(std::nullopt); }

}  // namespace girovia
