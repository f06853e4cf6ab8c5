// The help window, and what opens it: the Help command and F1.
#pragma once

#include "app/count/run_context.h"
#include "ui/help_form.h"

namespace quillomat {

class HelpWindow {
 public:
  HelpWindow(const RunContext& context, HelpForm& frmHelp) : context_(context), frmHelp_(frmHelp) {}

  /// Fills the window and connects its commands. Called once.
  void Connect();

  /// Shows the window, or restores it when it is minimized.
  void ShowHelp();

 private:
  void Close();

  const RunContext& context_;
  HelpForm& frmHelp_;
};

}  // namespace quillomat
