#include "app/help_window.h"

#include "app/list/set_the_focus.h"
#include "text/help_text.h"

namespace quillomat {

void HelpWindow::Connect() {
  frmHelp_.txbHelpScreen.SetText(HelpText());
  frmHelp_.cmdClose.Click.Connect([this] { Close(); });
  frmHelp_.CloseRequested.Connect([this] { Close(); });
  frmMain_.cmdHelp.Click.Connect([this] { ShowHelp(); });
  const auto onKey = [this](int keyCode) {
    if (keyCode == kF1Key) ShowHelp();
  };
  for (CommandButton* command :
       {&frmMain_.cmdHelp, &frmMain_.cmdFile[0], &frmMain_.cmdFile[1], &frmMain_.cmdCountWords}) {
    command->KeyDown.Connect(onKey);
  }
}

void HelpWindow::ShowHelp() {
  if (frmHelp_.State() == WindowState::kMinimized) {
    frmHelp_.SetState(WindowState::kNormal);
  }
  frmHelp_.Show();  // it may have been closed while it was minimized
}

void HelpWindow::Close() {
  frmHelp_.Hide();
  SetTheFocus(frmMain_);
}

}  // namespace quillomat
