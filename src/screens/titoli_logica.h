// The words of the credits that rise on the start screen.
#pragma once

#include <string>
#include <vector>

namespace girovia {

// 25 lines, each with two blanks before it, and the empty ones between them. As they rise; and once
// they have come to rest, when the game's name is in capitals and two empty lines follow.
std::vector<std::string> RigheTitoli(bool fermi);

}  // namespace girovia
