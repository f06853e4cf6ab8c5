#include "system/interruption_watch.h"

#include <atomic>
#include <system_error>
#include <utility>

#include "system/interruption.h"
#include "system/signals.h"

namespace quillomat {
namespace {

/// How often whoever waits was woken. Not constant: all that a signal handler can get at are
/// variables of the process.
std::atomic<unsigned> wakes{0};  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
static_assert(std::atomic<unsigned>::is_always_lock_free);

void Wait(const std::stop_token& stop, const std::function<void()>& onInterruption) {
  for (unsigned seen = wakes; InterruptionStatus() == 0; seen = wakes) {
    if (stop.stop_requested()) return;
    wakes.wait(seen);
  }
  onInterruption();
}

}  // namespace

void WakeWatch() noexcept {
  ++wakes;
  wakes.notify_all();
}

InterruptionWatch::InterruptionWatch(std::function<void()> onInterruption) {
  try {
    thread_ = std::jthread(Wait, std::move(onInterruption));
  } catch (const std::system_error&) {
    return;  // the second interruption ends the program all the same
  }
}

InterruptionWatch::~InterruptionWatch() {
  thread_.request_stop();
  WakeWatch();
}

}  // namespace quillomat
