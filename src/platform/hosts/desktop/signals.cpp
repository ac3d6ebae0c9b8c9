#include "platform/hosts/desktop/signals.h"

#include <SDL.h>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>

namespace platform {
namespace {

constexpr char kEnd = 'e';
constexpr char kNoMore = 'n';
constexpr std::chrono::milliseconds kPatience(700);

std::atomic<int> theWritingEnd = -1;

void Tell(int) {
  const int error = errno;
  [[maybe_unused]] const auto written = write(theWritingEnd, &kEnd, 1);
  errno = error;
}

}  // namespace

Signals::Signals() {
  if (pipe2(pipe_, O_CLOEXEC) != 0) return;
  fcntl(pipe_[1], F_SETFL, O_NONBLOCK);  // a flood of signals must not hold the program up either
  theWritingEnd = pipe_[1];
  watcher_ = std::thread([this] { Watch(); });
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) {
    Before before{number, {}};
    sigaction(number, nullptr, &before.action);
    // Started so that it outlives its terminal, say.
    if (before.action.sa_handler == SIG_IGN) continue;
    struct sigaction action {};
    // Whoever read what the program writes, a sound device say, may have gone.
    action.sa_handler = number == SIGPIPE ? SIG_IGN : Tell;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
    before_.push_back(before);
  }
}

Signals::~Signals() {
  for (const Before& before : before_) sigaction(before.number, &before.action, nullptr);
  if (!watcher_.joinable()) return;
  // The pipe may be full of signals: then the watcher knows already, and wants room.
  while (write(pipe_[1], &kNoMore, 1) < 0 && errno == EAGAIN) std::this_thread::yield();
  watcher_.join();
  theWritingEnd = -1;
  for (const int end : pipe_) close(end);
}

void Signals::Watch() {
  using Clock = std::chrono::steady_clock;
  bool told = false;
  Clock::time_point end;
  for (;;) {
    int left = -1;
    if (told) {
      const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
      left = std::max(0, int(rest.count()));
    }
    pollfd waits{pipe_[0], POLLIN, 0};
    const int ready = poll(&waits, 1, left);
    if (ready == 0 || left == 0) _exit(0);
    char what = 0;
    if (ready < 0 || read(pipe_[0], &what, 1) != 1) continue;
    if (what == kNoMore) return;
    if (told) continue;
    told = true;
    end = Clock::now() + kPatience;
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
  }
}

}  // namespace platform
