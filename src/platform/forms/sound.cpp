#include "platform/forms/sound.h"

#include "platform/forms/screen.h"

namespace platform {

std::shared_ptr<const Wave> Sounds::Find(const std::string& name) {
  auto [it, isNew] = waves_.try_emplace(name);
  if (isNew) it->second = LoadWave(folder_ + "/" + name + ".wav");
  return it->second;
}

void Sounds::PlayAsync(const std::string& name) {
  screen_.host().PlaySound(Find(name));
  screen_.Heard(name);
}

void Sounds::PlaySync(const std::string& name) {
  PlayAsync(name);
  if (const auto wave = Find(name)) screen_.Wait(double(wave->Micros()) / 1000);
}

}  // namespace platform
