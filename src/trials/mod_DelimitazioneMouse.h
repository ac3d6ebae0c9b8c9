// Keeps the pointer where a carried tile stays on its picture.
#pragma once

#include "platform/forms/form.h"
#include "trials/griglia.h"

namespace girovia {

// `recinto` counts from the outer corner of the picture box.
void DelimitaMouse(platform::Form& form, const platform::PictureBox& picOriginale,
                   const Recinto& recinto);

// To be called whenever a tile is put down and whenever the form unloads.
void LiberaMouse(platform::Form& form);

}  // namespace girovia
