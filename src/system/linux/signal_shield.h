// Keeps signals away from writes. For the files of this folder.
#pragma once

#include <cerrno>
#include <csignal>
#include <ctime>

namespace quillomat {

/// While it lives, a write that would end the program by a signal (a pipe without a reader, a file
/// beyond the user's limit) just fails. Only this thread is concerned, and nothing stays changed.
class SignalShield {
 public:
  SignalShield() {
    sigemptyset(&signals_);
    sigaddset(&signals_, SIGPIPE);
    sigaddset(&signals_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
  }
  SignalShield(const SignalShield&) = delete;
  SignalShield& operator=(const SignalShield&) = delete;
  SignalShield(SignalShield&&) = delete;
  SignalShield& operator=(SignalShield&&) = delete;
  ~SignalShield() {
    const timespec atOnce{};
    while (sigtimedwait(&signals_, nullptr, &atOnce) >= 0 || errno == EINTR) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signals_{};
  sigset_t before_{};
};

}  // namespace quillomat
