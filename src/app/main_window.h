// The main window: what its commands, boxes and labels do.
#pragma once

#include "sources/count_run.h"
#include "sources/run_context.h"

namespace quillomat {

class MainWindow {
 public:
  MainWindow(const RunContext& context, CountRun& countRun)
      : context_(context), countRun_(countRun) {}

  /// Connects the window's controls with what they do. Called once.
  void Connect();

  /// Fills the combo boxes of word orders and display formats and selects the first items.
  void FillListCombos();

 private:
  void ConnectSource();
  void ConnectFiles();
  void ConnectFolder();
  void ConnectOutput();
  void ConnectNotices();
  void CopyOutputToClipboard();
  void OnSuppressWordsClick();
  void ChooseInputFile();
  void ChooseOutputFile();

  const RunContext& context_;
  CountRun& countRun_;
};

}  // namespace quillomat
