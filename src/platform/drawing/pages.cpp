#include "platform/drawing/pages.h"

#ifdef __linux__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace platform {

void ReservePixels(std::vector<std::uint32_t>& pixels, std::size_t count) {
  constexpr std::size_t kLarge = std::size_t(1) << 18;  // pixels; a megabyte
  if (count < kLarge || count <= pixels.capacity()) {
    pixels.reserve(count);
    return;
  }
  pixels.reserve(count);
#if defined(__linux__) && defined(MADV_POPULATE_WRITE)
  // The whole pages inside; an old kernel refuses, and nothing is lost.
  const auto page = std::uintptr_t(sysconf(_SC_PAGESIZE));
  const auto start = reinterpret_cast<std::uintptr_t>(pixels.data());
  const std::uintptr_t first = (start + page - 1) / page * page;
  const std::uintptr_t last = (start + count * sizeof(std::uint32_t)) / page * page;
  if (last > first) madvise(reinterpret_cast<void*>(first), last - first, MADV_POPULATE_WRITE);
#endif
}

void ReturnPages() {
#if defined(__GLIBC__)
#if __GLIBC_PREREQ(2, 33)
  constexpr std::size_t kMayStay = std::size_t(8) << 20;
  if (mallinfo2().fordblks > kMayStay) malloc_trim(0);
#endif
#endif
}

}  // namespace platform
