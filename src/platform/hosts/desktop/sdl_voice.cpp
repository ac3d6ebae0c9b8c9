#include "platform/hosts/desktop/sdl_voice.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace platform {
namespace {

// Effects often follow each other: the device stays open for a while after each.
constexpr std::int64_t kKeepOpenMicros = 3'000'000;

// The sound library of the system tells on stderr, in a dozen lines, that there is no device; the
// game takes no notice of that, and neither shall who plays.
class QuietStderr {
 public:
  QuietStderr() : saved_(dup(2)) {
    const int null = open("/dev/null", O_WRONLY);
    if (null < 0) return;
    dup2(null, 2);
    close(null);
  }
  ~QuietStderr() {
    if (saved_ < 0) return;
    dup2(saved_, 2);
    close(saved_);
  }
  QuietStderr(const QuietStderr&) = delete;
  QuietStderr& operator=(const QuietStderr&) = delete;

 private:
  int saved_;
};

}  // namespace

void SdlVoice::Fill(void* self, Uint8* stream, int bytes) {
  auto& voice = *static_cast<SdlVoice*>(self);
  std::size_t given = 0;
  const auto wanted = std::size_t(bytes);
  if (voice.wave_) {
    const std::size_t left = (voice.wave_->samples.size() - voice.at_) * 2;
    given = std::min(wanted, left);
    std::memcpy(stream, voice.wave_->samples.data() + voice.at_, given);
    voice.at_ += given / 2;
  }
  std::memset(stream + given, 0, wanted - given);
}

bool SdlVoice::Open(int rate, int channels) {
  if (device_ && rate == rate_ && channels == channels_) return true;
  Close();
  const QuietStderr quiet;
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  SDL_AudioSpec want{};
  want.freq = rate;
  want.format = AUDIO_S16SYS;
  want.channels = Uint8(channels);
  want.samples = 1024;
  want.callback = Fill;
  want.userdata = this;
  device_ = SDL_OpenAudioDevice(nullptr, 0, &want, nullptr, 0);
  rate_ = rate;
  channels_ = channels;
  if (!device_) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  SDL_PauseAudioDevice(device_, 0);
  return true;
}

void SdlVoice::Rest() {
  idleAtMicros_ = INT64_MAX;
  if (!device_) return;
  closing_ = std::thread([device = std::exchange(device_, 0)] {
    SDL_CloseAudioDevice(device);
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
  });
}

void SdlVoice::Close() {
  Rest();
  if (closing_.joinable()) closing_.join();
  wave_.reset();  // until here the device may have asked for it
}

void SdlVoice::Play(const std::shared_ptr<const Wave>& wave, std::int64_t nowMicros) {
  if (absent_ || (!wave && !device_)) return;
  if (wave && !Open(wave->rate, wave->channels)) {
    absent_ = true;
    return;
  }
  SDL_LockAudioDevice(device_);
  wave_ = wave;
  at_ = 0;
  SDL_UnlockAudioDevice(device_);
  idleAtMicros_ = nowMicros + (wave ? wave->Micros() : 0) + kKeepOpenMicros;
}

}  // namespace platform
