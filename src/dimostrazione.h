// A game that plays itself where there is no display.
#pragma once

#include <string>

namespace girovia {

// Plays a whole game in the headless host and leaves a PNG of each screen that it passes in the
// folder `galleria`, then says where. The program's exit code.
int Dimostrazione(const std::string& cartella, const std::string& galleria);

}  // namespace girovia
