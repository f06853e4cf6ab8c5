#include "app/help_window.h"

#include "app/list/set_the_focus.h"
#include "text/help_text.h"

namespace quillomat {
namespace {

constexpr int kF1 = 112;

}  // namespace

void HelpWindow::Connect() {
  frmHelp_.txbHelpScreen.SetText(HelpText());
  frmHelp_.cmdClose.Click.Connect([this] { Close(); });
  frmHelp_.CloseRequested.Connect([this] { Close(); });
  MainForm& frmMain = context_.frmMain;
  frmMain.cmdHelp.Click.Connect([this] { ShowHelp(); });
  const auto onKey = [this](int keyCode) {
    if (keyCode == kF1) ShowHelp();
  };
  for (CommandButton* command :
       {&frmMain.cmdHelp, &frmMain.cmdFile[0], &frmMain.cmdFile[1], &frmMain.cmdCountWords}) {
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
  SetTheFocus(context_.frmMain);
}

}  // namespace quillomat
