// The main window's two states: running, where only "Stop" and what does no harm can be used, and
// idle.
#pragma once

#include <string_view>

#include "app/count/run_context.h"

namespace quillomat {

inline constexpr std::string_view kStopCaption = "Stop";
/// The number of the program text that the count command bears while no count runs.
inline constexpr int kCountCaptionText = 21;

/// Puts the commands into the running (false) or the idle state (true).
void EnableControls(const RunContext& context, bool enable);
void EnableSourceControls(const RunContext& context);
void DisableSourceControls(const RunContext& context);
void EnableSourceOptions(MainForm& frmMain, bool enable);
void EnableListOptions(MainForm& frmMain, bool enable);

}  // namespace quillomat
