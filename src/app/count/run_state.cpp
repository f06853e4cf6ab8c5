#include "app/count/run_state.h"

namespace quillomat {

void RunState::EnterPhase(RunPhase phase) {
  if (phase == phase_) return;
  phase_ = phase;
  PhaseChanged.Fire();
}

void RunState::RequestStop() {
  stopRequested_ = true;
  if (!RulesOf(phase_).stops) return;
  stopped_ = phase_;
  EnterPhase(RunPhase::kStopping);
}

void RunState::ForgetStop() {
  if (quitting_) return;  // that wish stands
  stopRequested_ = false;
  if (phase_ == RunPhase::kStopping) EnterPhase(stopped_);
}

void RunState::RequestQuit() {
  quitting_ = true;
  if (Busy()) RequestStop();
}

}  // namespace quillomat
