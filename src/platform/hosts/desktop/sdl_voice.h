// The one voice: the sound that plays, on a device that is open only while it does, because an open
// device wakes the processor many times a second even to play silence; and so does, less often, the
// sound system that looks out for other devices.
#pragma once

#include <SDL.h>

#include <cstdint>
#include <memory>
#include <thread>

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
  // When Rest is to be called; INT64_MAX if never.
  std::int64_t idleAt() const { return idleAtMicros_; }
  // Closes the device and the whole sound system. It takes a tenth of a second, for which nobody
  // waits but the next sound.
  void Rest();
  void Close();  // likewise, and waits for it

 private:
  static void Fill(void* self, Uint8* stream, int bytes);
  bool Open(int rate, int channels);

  SDL_AudioDeviceID device_ = 0;
  std::thread closing_;
  bool absent_ = false;
  int rate_ = 0;
  int channels_ = 0;
  std::int64_t idleAtMicros_ = INT64_MAX;
  // Shared with the audio thread, under SDL_LockAudioDevice.
  std::shared_ptr<const Wave> wave_;
  std::size_t at_ = 0;
};

}  // namespace platform
