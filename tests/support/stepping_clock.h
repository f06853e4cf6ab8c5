// A clock for EventPump that moves on with every reading, so that with the default step every Yield
// pumps: what happens at the n-th pump is then the same on every machine.
#pragma once

#include <chrono>

#include "ui/event_pump.h"

namespace quillomat {

class SteppingClock {
 public:
  explicit SteppingClock(std::chrono::nanoseconds step = EventPump::kInterval) : step_(step) {}

  EventPump::TimePoint operator()() { return now_ += step_; }

 private:
  std::chrono::nanoseconds step_;
  EventPump::TimePoint now_{};
};

}  // namespace quillomat
