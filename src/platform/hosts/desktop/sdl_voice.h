// The one voice: the sound that plays, on a device that is open only while it does, because an open
// device wakes the processor many times a second even to play silence; and so does, less often, the
// sound system that looks out for other devices.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/hosts/wave.h"

namespace platform {

// The device is opened, closed and waited for by a thread of its own: a sound system may take its
// time over that, or never answer, and the game must not notice.
class SdlVoice {
 public:
  SdlVoice();
  SdlVoice(const SdlVoice&) = delete;
  SdlVoice& operator=(const SdlVoice&) = delete;
  ~SdlVoice() { Close(); }

  // Cuts off what plays and starts the wave; null is silence. Where there is no device nothing
  // happens, and it is not asked for again.
  void Play(const std::shared_ptr<const Wave>& wave);
  // Closes the device and the whole sound system for good. False if it does not answer: then SDL
  // must be left as it is.
  bool Close();

 private:
  struct Shared;
  static void Run(const std::shared_ptr<Shared>& shared);
  static void Fill(void* shared, unsigned char* stream, int bytes);

  std::shared_ptr<Shared> shared_;  // outlives the voice if the thread is held up
};

}  // namespace platform
