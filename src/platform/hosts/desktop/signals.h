// The system's wish that the program end, by SIGTERM, SIGINT or SIGHUP.
#pragma once

#include <signal.h>

#include <thread>
#include <vector>

namespace platform {

// While one lives such a signal counts as the window being closed, in whatever the program does at
// the moment. Should the program be held up, by a device that does not answer, it is ended all the
// same: nothing of it is saved, and the display frees the pointer by itself.
class Signals {
 public:
  Signals();
  ~Signals();
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;

 private:
  void Watch();

  struct Before {
    int number;
    struct sigaction action;
  };
  std::vector<Before> before_;
  int pipe_[2] = {-1, -1};
  std::thread watcher_;  // sleeps in the pipe, and costs nothing there
};

}  // namespace platform
