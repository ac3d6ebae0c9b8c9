// The true-or-false card: which of a city's four statements is shown.
#pragma once

#include "content/quiz.h"

namespace girovia {

// The slot, 0 to 3. It is rounded and not cut off, so the two middle slots come twice as often.
int PostoAffermazione(double u);

// Number of the statement in the string table.
int IdAffermazione(int posto, int citta);

Affermazione EstraiAffermazione(double u, int citta);

}  // namespace girovia
