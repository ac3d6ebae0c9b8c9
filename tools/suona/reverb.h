#pragma once

#include "sound.h"

namespace suona {

// Adds to `dry` the room in which `send` is heard; the room dies by 60 dB in `seconds`. Damping 0
// leaves the tail as bright as the sound, towards 1 it darkens.
void addReverb(Sound& dry, const Sound& send, double seconds, double damping);

}  // namespace suona
