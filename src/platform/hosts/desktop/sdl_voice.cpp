#include "platform/hosts/desktop/sdl_voice.h"

#include <SDL.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <thread>

namespace platform {
namespace {

// Effects often follow each other: the device stays open for a while after each.
constexpr std::chrono::seconds kKeepOpen(3);
// How long the end of the program waits for the device.
constexpr std::chrono::milliseconds kPatience(400);

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

using Clock = std::chrono::steady_clock;

// An open device, or none.
class Device {
 public:
  Device() = default;
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;
  ~Device() { Close(); }

  explicit operator bool() const { return device_ != 0; }

  bool Open(const Wave& wave, SDL_AudioCallback fill, void* data) {
    if (device_ && wave.rate == rate_ && wave.channels == channels_) return true;
    Close();
    const QuietStderr quiet;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    SDL_AudioSpec want{};
    want.freq = rate_ = wave.rate;
    want.channels = Uint8(channels_ = wave.channels);
    want.format = AUDIO_S16SYS;
    want.samples = 1024;
    want.callback = fill;
    want.userdata = data;
    device_ = SDL_OpenAudioDevice(nullptr, 0, &want, nullptr, 0);
    if (!device_) {
      SDL_QuitSubSystem(SDL_INIT_AUDIO);
      return false;
    }
    SDL_PauseAudioDevice(device_, 0);
    return true;
  }

  void Close() {
    if (!device_) return;
    SDL_CloseAudioDevice(device_);
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    device_ = 0;
  }

 private:
  SDL_AudioDeviceID device_ = 0;
  int rate_ = 0;
  int channels_ = 0;
};

}  // namespace

struct SdlVoice::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  bool running = false;  // the thread
  bool ending = false;
  bool absent = false;  // the device
  std::shared_ptr<const Wave> wave;
  std::size_t at = 0;
  bool fresh = false;  // the thread has not yet looked at the wave
};

SdlVoice::SdlVoice() : shared_(std::make_shared<Shared>()) {}

void SdlVoice::Fill(void* data, unsigned char* stream, int bytes) {
  auto& shared = *static_cast<Shared*>(data);
  std::size_t given = 0;
  const auto wanted = std::size_t(bytes);
  const std::scoped_lock lock(shared.mutex);
  // A wave that has just come may be of another rate, and the device soon another one.
  if (shared.wave && !shared.fresh) {
    const std::size_t left = (shared.wave->samples.size() - shared.at) * 2;
    given = std::min(wanted, left);
    std::memcpy(stream, shared.wave->samples.data() + shared.at, given);
    shared.at += given / 2;
  }
  std::memset(stream + given, 0, wanted - given);
}

void SdlVoice::Run(const std::shared_ptr<Shared>& shared) {
  {
    Device device;
    Clock::time_point idleAt;
    std::unique_lock lock(shared->mutex);
    const auto called = [&] { return shared->fresh || shared->ending; };
    while (!shared->ending) {
      if (!device) {
        shared->changed.wait(lock, called);
      } else if (!shared->changed.wait_until(lock, idleAt, called)) {
        lock.unlock();
        device.Close();
        lock.lock();
        continue;
      }
      const std::shared_ptr<const Wave> wave = shared->wave;
      if (!shared->ending && wave) {
        lock.unlock();
        const bool open = device.Open(*wave, Fill, shared.get());
        lock.lock();
        if (!open) {
          shared->absent = true;
          break;
        }
        if (shared->wave != wave) continue;  // another one by now
      }
      shared->fresh = false;
      idleAt = Clock::now() + kKeepOpen + std::chrono::microseconds(wave ? wave->Micros() : 0);
    }
    lock.unlock();
    device.Close();
  }
  const std::scoped_lock lock(shared->mutex);
  shared->running = false;
  shared->changed.notify_all();
}

bool SdlVoice::Close() {
  std::unique_lock lock(shared_->mutex);
  shared_->ending = true;
  shared_->changed.notify_all();
  return shared_->changed.wait_for(lock, kPatience, [this] { return !shared_->running; });
}

void SdlVoice::Play(const std::shared_ptr<const Wave>& wave) {
  const std::scoped_lock lock(shared_->mutex);
  if (shared_->absent || (!wave && !shared_->wave)) return;
  shared_->wave = wave;
  shared_->at = 0;
  shared_->fresh = true;
  shared_->changed.notify_all();
  if (shared_->running) return;
  shared_->running = true;
  std::thread([shared = shared_] { Run(shared); }).detach();
}

}  // namespace platform
