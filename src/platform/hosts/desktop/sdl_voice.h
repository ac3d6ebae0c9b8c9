// The one voice: the sound that plays, on a device that is open only while it does, because an open
// device wakes the processor many times a second even to play silence.
#pragma once

#include <SDL.h>

#include <cstdint>
#include <memory>

#include "platform/hosts/wave.h"

namespace platform {

class SdlVoice {
 public:
  SdlVoice() = default;
  SdlVoice(const SdlVoice&) = delete;
  SdlVoice& operator=(const SdlVoice&) = delete;
  ~SdlVoice() { Close(); }

  // Cuts off what plays and starts the wave; null is silence. Where there is no device nothing
  // happens, and it is not asked for again.
  void Play(const std::shared_ptr<const Wave>& wave, std::int64_t nowMicros);
  // When the device may be closed; INT64_MAX while none is open.
  std::int64_t idleAt() const { return device_ ? idleAtMicros_ : INT64_MAX; }
  void Close();

 private:
  static void Fill(void* self, Uint8* stream, int bytes);
  bool Open(int rate, int channels);

  SDL_AudioDeviceID device_ = 0;
  bool absent_ = false;
  int rate_ = 0;
  int channels_ = 0;
  std::int64_t idleAtMicros_ = 0;
  // Shared with the audio thread, under SDL_LockAudioDevice.
  std::shared_ptr<const Wave> wave_;
  std::size_t at_ = 0;
};

}  // namespace platform
