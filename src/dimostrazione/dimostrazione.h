// A game that plays itself: where there is no display, and for an open day in the window.
#pragma once

#include <string>

#include "platform/hosts/host.h"

namespace girovia {

// Plays a whole game in the headless host and leaves a PNG of each screen that it passes in the
// folder `galleria`, then says where. The program's exit code.
int Dimostrazione(const std::string& cartella, const std::string& galleria);

enum class FineDimostrazione { Toccata, Chiusa, Guasta };

// Plays game after game until somebody touches mouse or key, or closes the window.
FineDimostrazione Dimostra(platform::Host& host, const std::string& cartella);

}  // namespace girovia
