#include "platform/drawing/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace platform {

InputFile OpenInput(const std::string& path) {
  // Without blocking: a pipe that nobody writes to would hold the program at its opening already.
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return nullptr;
  int why = 0;
  struct stat info {};
  if (fstat(file, &info) != 0)
    why = errno;
  else if (!S_ISREG(info.st_mode))
    why = S_ISDIR(info.st_mode) ? EISDIR : EILSEQ;
  std::FILE* opened = why == 0 ? fdopen(file, "rb") : nullptr;
  if (opened) return InputFile(opened);
  if (why == 0) why = errno;
  close(file);
  errno = why;
  return nullptr;
}

bool ReadAll(std::FILE* file, std::string& bytes) {
  constexpr std::size_t kLargestFile = std::size_t(64) << 20;
  char block[1 << 16];
  std::size_t got = 0;
  errno = 0;
  while ((got = std::fread(block, 1, sizeof block, file)) > 0) {
    bytes.append(block, got);
    if (bytes.size() > kLargestFile) {
      errno = EFBIG;
      return false;
    }
  }
  if (std::ferror(file) == 0) return true;
  if (errno == 0) errno = EIO;
  return false;
}

}  // namespace platform
