// Who waits for an interruption without asking again and again.
#pragma once

#include <functional>
#include <thread>

namespace quillomat {

/// While it lives, and an Interruption whose first is noted (interruption.h).
class InterruptionWatch {
 public:
  /// Calls `onInterruption` once, on a thread of its own, when there is an interruption or has been
  /// one. Without a thread to be had nobody is called.
  explicit InterruptionWatch(std::function<void()> onInterruption);
  InterruptionWatch(const InterruptionWatch&) = delete;
  InterruptionWatch& operator=(const InterruptionWatch&) = delete;
  InterruptionWatch(InterruptionWatch&&) = delete;
  InterruptionWatch& operator=(InterruptionWatch&&) = delete;
  /// Waits for a call that is under way.
  ~InterruptionWatch();

 private:
  std::jthread thread_;
};

}  // namespace quillomat
