// Memory for large pictures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform {

// Reserves room for `count` pixels and, where the system can, has all its pages made at once: on a
// virtual machine a page that is made when it is first touched costs ten times as much, and the
// first picture of the program is tens of megabytes of such pages.
void ReservePixels(std::vector<std::uint32_t>& pixels, std::size_t count);

// Gives what large pictures have left behind back to the system, where that keeps it for the next
// ones; a few megabytes may stay.
void ReturnPages();

}  // namespace platform
