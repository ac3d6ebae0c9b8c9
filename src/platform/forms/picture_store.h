// Pictures by file, each decoded once while somebody shows it.
#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/forms/control.h"

namespace platform {

// A picture that cannot be had. `what()` is the system's message; nobody handles it but the
// program's last words.
class PictureError : public std::runtime_error {
 public:
  PictureError(int number, std::string source, std::string path, const std::string& description)
      : std::runtime_error(description),
        number_(number),
        source_(std::move(source)),
        path_(std::move(path)) {}
  int number() const { return number_; }  // system code OR 10000
  const std::string& source() const { return source_; }
  const std::string& path() const { return path_; }

 private:
  int number_;
  std::string source_;
  std::string path_;
};

class PictureStore {
 public:
  // `program` is the program's file name, which errors carry in their source.
  PictureStore(std::string folder, std::string program)
      : folder_(std::move(folder)), program_(std::move(program)) {}

  // The picture of a file, to be shown at a logical size. Throws PictureError.
  SizedPicture Load(const std::string& relativePath, int width, int height);
  bool Exists(const std::string& relativePath) const;
  const std::string& folder() const { return folder_; }

 private:
  std::string folder_;
  std::string program_;
  std::map<std::string, std::weak_ptr<const Picture>> pictures_;
};

// The system's message for an error code, in Italian.
std::string SystemMessage(int code);

}  // namespace platform
