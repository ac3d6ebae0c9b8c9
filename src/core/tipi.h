#pragma once

namespace girovia {

// A flag counts as true by this one value, which is also what the screens store.
using Flag = int;
inline constexpr Flag Vero = -1;
inline constexpr Flag Falso = 0;

// How the texts of the game break a line.
inline constexpr const char* kACapo = "\r\n";

}  // namespace girovia
