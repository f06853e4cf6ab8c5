// The main window: what its commands and labels do. Its rows for texts and paths are SourceRows.
#pragma once

#include <functional>
#include <utility>

#include "app/count/count_run.h"
#include "app/list/word_lister.h"
#include "app/what_parts_share.h"

namespace quillomat {

class MainWindow {
 public:
  /// All must outlive it.
  MainWindow(const UserSide& user, const RunState& run, const WindowFlags& flags,
             const WordLister& lister, CountRun& countRun)
      : frmMain_(user.frmMain),
        output_(user.output),
        messages_(user.messages),
        run_(run),
        controls_(user.controls),
        lister_(lister),
        countRun_(countRun),
        flags_(flags),
        desktop_(user.desktop) {}

  /// Connects the window's controls with what they do. Called once.
  void Connect();

  /// Fills the combo boxes of word orders and display formats and selects the first items.
  void FillListCombos();

  /// What "Copy to clipboard" copies while something else than the text box is in front: does so,
  /// or returns false for the text box.
  void SetViewCopier(std::function<bool()> copyView) { copyView_ = std::move(copyView); }

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
  std::function<bool()> copyView_;
};

}  // namespace quillomat
