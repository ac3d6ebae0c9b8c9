// Bytes as a file, for readers that want a path.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Only in memory, and gone with the object.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* bytes, std::size_t size) : file_(memfd_create("fuzz", 0)) {
    if (file_ < 0 || write(file_, bytes, size) != static_cast<ssize_t>(size)) std::abort();
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};
