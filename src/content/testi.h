// The string table: every text of the game that is read by number.
#pragma once

#include <string_view>

namespace girovia {

// The text with this number, or an empty one where the table has none. The text lives as long as
// the program.
std::string_view LoadResString(int id);

}  // namespace girovia
