// The main window in the phases of a run: what of it can be used, and what its count command says.
// The table is in run_phase.h.
#pragma once

#include <string_view>
#include <vector>

#include "app/count/run_context.h"
#include "app/count/run_phase.h"

namespace quillomat {

inline constexpr std::string_view kStopCaption = "Stop";
/// The number of the program text that the count command bears while nothing can be stopped.
inline constexpr int kCountCaptionText = 21;

/// While it lives, the program is in a phase, and the commands of the panel that would touch the
/// words are disabled; afterwards all is as it was. Inside another phase that one goes on.
class PhaseGuard {
 public:
  PhaseGuard(const RunContext& context, RunPhase phase);
  PhaseGuard(const PhaseGuard&) = delete;
  PhaseGuard& operator=(const PhaseGuard&) = delete;
  PhaseGuard(PhaseGuard&&) = delete;
  PhaseGuard& operator=(PhaseGuard&&) = delete;
  ~PhaseGuard();

 private:
  const RunContext& context_;
  RunPhase before_;
  /// Those that were enabled.
  std::vector<Control*> disabled_;
};

/// Goes on to another phase of the same run.
void EnterPhase(const RunContext& context, RunPhase phase);

/// The caption that follows from the phase, in the language of the program.
void ShowCountCaption(const RunContext& context);

/// Puts the commands into the running (false) or the idle state (true).
void EnableControls(const RunContext& context, bool enable);
void EnableSourceControls(const RunContext& context);
void DisableSourceControls(const RunContext& context);
void EnableSourceOptions(MainForm& frmMain, bool enable);
void EnableListOptions(MainForm& frmMain, bool enable);

}  // namespace quillomat
