// Files that the program reads: regular ones only.
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace platform {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using InputFile = std::unique_ptr<std::FILE, FileCloser>;

// Null if there is nothing to read, with the reason in errno: EISDIR for a folder, EILSEQ for a
// pipe or a device, which would keep the program waiting or never end.
InputFile OpenInput(const std::string& path);

// Appends the rest of the file. False, with the reason in errno, if it cannot be read or is larger
// than anything the program was given.
bool ReadAll(std::FILE* file, std::string& bytes);

}  // namespace platform
