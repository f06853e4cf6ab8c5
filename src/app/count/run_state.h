// What the running program is doing, and whether the user wants it to end. The controls follow the
// phase (window_state.h), never the other way.
#pragma once

#include <cstdint>

#include "app/count/run_phase.h"
#include "engine/word_scanner.h"
#include "ui/event.h"
#include "ui/event_pump.h"

namespace quillomat {

/// As the yield of a scan it keeps the windows awake and passes on the user's wish to stop.
class RunState final : public ScanYield {
 public:
  /// `pump` must outlive it.
  explicit RunState(EventPump& pump) : pump_(pump) {}

  [[nodiscard]] RunPhase Phase() const { return phase_; }
  /// Something is at work: nothing else may touch the words now.
  [[nodiscard]] bool Busy() const { return phase_ != RunPhase::kIdle; }

  /// Goes on to another phase of the same run.
  void EnterPhase(RunPhase phase);

  /// Every long loop tests it.
  [[nodiscard]] bool StopRequested() const { return stopRequested_; }
  /// The user asks what is at work to stop. What can be stopped is in the stopping phase from now
  /// on, until it has ended.
  void RequestStop();
  /// The wish was met, or comes to nothing: the run goes on in the phase that was to be stopped.
  /// The wish to quit is never forgotten.
  void ForgetStop();

  /// The user wants to quit: at once, or as soon as the run has ended.
  [[nodiscard]] bool Quitting() const { return quitting_; }
  void RequestQuit();

  /// A file is being scanned. One that is found set when a single file is started is left over from
  /// a scan that ended early.
  [[nodiscard]] bool Scanning() const { return scanning_; }
  void SetScanning(bool scanning) { scanning_ = scanning; }

  /// True when the work shall stop; so do the others of ScanYield.
  bool Yield() override {
    pump_.Yield();
    return stopRequested_;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return pump_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override {
    pump_.YieldFor(calls);
    return stopRequested_;
  }

  /// Another phase has begun.
  Event<> PhaseChanged;
  /// Fired when a run, a listing or the reading of a words file has come to its end.
  Event<> BecameIdle;

 private:
  EventPump& pump_;
  RunPhase phase_ = RunPhase::kIdle;
  /// While in the stopping phase.
  RunPhase stopped_ = RunPhase::kIdle;
  bool stopRequested_ = false;
  bool quitting_ = false;
  bool scanning_ = false;
};

/// While it lives, the program is in a phase; afterwards all is as it was. Inside another phase
/// that one goes on.
class PhaseGuard {
 public:
  PhaseGuard(RunState& run, RunPhase phase) : run_(run), before_(run.Phase()) {
    if (before_ == RunPhase::kIdle) run_.EnterPhase(phase);
  }
  PhaseGuard(const PhaseGuard&) = delete;
  PhaseGuard& operator=(const PhaseGuard&) = delete;
  PhaseGuard(PhaseGuard&&) = delete;
  PhaseGuard& operator=(PhaseGuard&&) = delete;
  ~PhaseGuard() {
    if (before_ == RunPhase::kIdle) run_.EnterPhase(before_);
  }

 private:
  RunState& run_;
  RunPhase before_;
};

}  // namespace quillomat
