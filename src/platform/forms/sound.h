// Sounds by name: one WAV file each in a folder.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/hosts/wave.h"

namespace platform {

class Screen;

class Sounds {
 public:
  // `folder` holds <name>.wav for each name.
  Sounds(Screen& screen, std::string folder) : screen_(screen), folder_(std::move(folder)) {}

  // Starts the sound, cutting off one that plays, and returns at once.
  void PlayAsync(const std::string& name);
  // Returns when the sound has ended, also where nothing can be heard: the length is the file's.
  // A missing file is silence and takes no time.
  void PlaySync(const std::string& name);

 private:
  std::shared_ptr<const Wave> Find(const std::string& name);

  Screen& screen_;
  std::string folder_;
  std::map<std::string, std::shared_ptr<const Wave>> waves_;
};

}  // namespace platform
