// The windows in the phases of a run: what of them can be used, and what the count command says.
// The table is in run_phase.h.
#pragma once

#include <string_view>
#include <vector>

#include "app/count/run_state.h"
#include "text/program_text.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

inline constexpr std::string_view kStopCaption = "Stop";
/// The number of the program text that the count command bears while nothing can be stopped.
inline constexpr int kCountCaptionText = 21;

class WindowControls {
 public:
  /// All must outlive it. From now on the controls follow the phase of `run`.
  WindowControls(MainForm& frmMain, ParamsForm& frmParams, const ProgramText& text, RunState& run);

  /// The caption that follows from the phase, in the language of the program.
  void ShowCountCaption();

  /// Puts the commands into the running (false) or the idle state (true).
  void EnableControls(bool enable);
  void EnableSourceControls();
  void DisableSourceControls();
  void EnableSourceOptions(bool enable);
  void EnableListOptions(bool enable);

  /// The program that shows the clipboard, or "": then the command for it is never enabled.
  [[nodiscard]] const std::string& ClipboardViewer() const { return clipboardViewer_; }
  void SetClipboardViewer(std::string path);

 private:
  void FollowPhase();
  void EnableWordCommands(bool enable);

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  const ProgramText& text_;
  const RunState& run_;
  /// The one that the controls stand for.
  RunPhase shown_ = RunPhase::kIdle;
  std::string clipboardViewer_;
  /// Of the panel's commands those that the phase has disabled.
  std::vector<Control*> disabled_;
};

}  // namespace quillomat
