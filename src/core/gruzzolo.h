// The display of the purses. Whoever changes a purse does so first and calls this afterwards.
#pragma once

namespace girovia {

// Runs the figure of the player in turn up to his purse, colours both and plays the cash sound.
void RicalcolaGruzzolo();

// Yellow where the purses are equal, otherwise green for the greater and red for the lesser. Goes
// by the full values, so two figures that look alike may differ in colour.
void ColoraGruzzoli();

}  // namespace girovia
