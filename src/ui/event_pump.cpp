#include "ui/event_pump.h"

#include <algorithm>
#include <utility>

#include "ui/desktop.h"

namespace quillomat {
namespace {

constexpr std::chrono::nanoseconds kTimeBetweenLooks = std::chrono::milliseconds(1);

}  // namespace

EventPump::EventPump(Desktop& desktop, Clock clock)
    : desktop_(desktop), clock_(std::move(clock)), lastLook_(clock_()), lastPump_(lastLook_) {}

void EventPump::YieldNow() {
  Pump();
}

void EventPump::LookAtClock() {
  const TimePoint now = clock_();
  callsPerLook_ = CallsUntilNextLook(now - lastLook_);
  callsLeft_ = callsPerLook_;
  lastLook_ = now;
  if (now - lastPump_ >= kInterval) Pump();
}

/// As many calls as came in a millisecond lately, but growing at most twofold from look to look: a
/// few quick calls do not make a rate.
std::uint32_t EventPump::CallsUntilNextLook(std::chrono::nanoseconds sinceLastLook) const {
  const std::uint32_t most = std::min(2 * callsPerLook_, kMostCallsPerLook);
  if (sinceLastLook <= std::chrono::nanoseconds::zero()) return most;
  const auto calls = callsPerLook_ * kTimeBetweenLooks.count() / sinceLastLook.count();
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(calls, 1, most));
}

/// Events may take long (a message box waits for its answer); the time in here is not the work's.
void EventPump::Pump() {
  desktop_.PumpEvents();
  desktop_.Repaint();
  lastPump_ = clock_();
  lastLook_ = lastPump_;
}

}  // namespace quillomat
