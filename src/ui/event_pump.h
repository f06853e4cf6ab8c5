// Keeps the windows awake during long work. The work calls Yield after every little step; that
// costs about a nanosecond, and only when some 15 ms have passed are pending events handled and the
// windows painted.
//
// Yield counts its calls down and looks at the clock only when the count is used up; how far it
// counts follows from how fast the calls came lately, so that about a millisecond lies between two
// looks, at most kMostCallsPerLook calls. When calls that came fast suddenly come slowly, the count
// that is running is still used up once; call YieldNow before a step that is known to be slow.
//
// What the user does is handled inside Yield: its handlers run there, and may throw through it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace quillomat {

class Desktop;

class EventPump {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;
  using Clock = std::function<TimePoint()>;

  /// Time between two pumps.
  static constexpr std::chrono::milliseconds kInterval{15};
  /// Reading the clock takes some 25 ns; spread over so many calls that is less than half a
  /// nanosecond.
  static constexpr std::uint32_t kMostCallsPerLook = 128;

  /// `desktop` must outlive the pump. Tests give a clock of their own.
  explicit EventPump(Desktop& desktop, Clock clock = std::chrono::steady_clock::now);

  void Yield() {
    if (--callsLeft_ == 0) LookAtClock();
  }

  /// For work in larger steps: how many calls may be put off, and what makes up for them. `calls`
  /// is 1 to CallsLeft().
  [[nodiscard]] std::uint32_t CallsLeft() const { return callsLeft_; }
  void YieldFor(std::uint32_t calls) {
    callsLeft_ -= calls - 1;
    Yield();
  }

  /// Handles pending events and paints, however little time has passed.
  void YieldNow();

 private:
  void LookAtClock();
  [[nodiscard]] std::uint32_t CallsUntilNextLook(std::chrono::nanoseconds sinceLastLook) const;
  void Pump();

  Desktop& desktop_;
  Clock clock_;
  TimePoint lastLook_;
  TimePoint lastPump_;
  std::uint32_t callsPerLook_ = 1;
  std::uint32_t callsLeft_ = 1;
};

}  // namespace quillomat
