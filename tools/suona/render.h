#pragma once

#include "score.h"
#include "sound.h"

namespace suona {

// The score as it is played, before it is finished. The same score gives the same samples.
Sound render(const Score& score);

}  // namespace suona
