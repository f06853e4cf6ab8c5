// The main window: what its commands and labels do. Its rows for texts and paths are SourceRows.
#pragma once

#include "app/count/count_run.h"
#include "app/count/run_state.h"
#include "app/count/window_state.h"
#include "app/list/output_box.h"
#include "app/list/word_lister.h"
#include "app/messages.h"
#include "app/window_flags.h"
#include "ui/desktop.h"
#include "ui/main_form.h"

namespace quillomat {

class MainWindow {
 public:
  /// All must outlive it.
  MainWindow(MainForm& frmMain, OutputBox& output, const Messages& messages, const RunState& run,
             const WindowControls& controls, const WordLister& lister, CountRun& countRun,
             const WindowFlags& flags, Desktop& desktop)
      : frmMain_(frmMain),
        output_(output),
        messages_(messages),
        run_(run),
        controls_(controls),
        lister_(lister),
        countRun_(countRun),
        flags_(flags),
        desktop_(desktop) {}

  /// Connects the window's controls with what they do. Called once.
  void Connect();

  /// Fills the combo boxes of word orders and display formats and selects the first items.
  void FillListCombos();

 private:
  void ConnectOutput();
  void ConnectNotices();
  void CopyOutputToClipboard();
  void OnSuppressWordsClick();

  MainForm& frmMain_;
  OutputBox& output_;
  const Messages& messages_;
  const RunState& run_;
  const WindowControls& controls_;
  const WordLister& lister_;
  CountRun& countRun_;
  const WindowFlags& flags_;
  Desktop& desktop_;
};

}  // namespace quillomat
