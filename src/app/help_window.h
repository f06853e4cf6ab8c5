// The help window, and what opens it: the Help command and F1.
#pragma once

#include "ui/help_form.h"
#include "ui/main_form.h"

namespace quillomat {

class HelpWindow {
 public:
  /// Both must outlive it.
  HelpWindow(MainForm& frmMain, HelpForm& frmHelp) : frmMain_(frmMain), frmHelp_(frmHelp) {}

  /// Fills the window and connects its commands. Called once.
  void Connect();

  /// Shows the window, or restores it when it is minimized.
  void ShowHelp();

 private:
  void Close();

  MainForm& frmMain_;
  HelpForm& frmHelp_;
};

}  // namespace quillomat
