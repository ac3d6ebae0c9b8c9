// The date line of the newspaper and of the help page.
#pragma once

#include <ctime>
#include <string>

namespace girovia {

// "Lunedì, 4 maggio 2026", a line break, "sono le 09,05."
std::string DataGiornale(const std::tm& ora);

// "Lunedì, 4 maggio 2026. Sono le 09,05."
std::string DataInfo(const std::tm& ora);

}  // namespace girovia
