#include "app/list/set_the_focus.h"

namespace quillomat {
namespace {

void FocusIfEnabled(MainForm& frmMain, CommandButton& command) {
  if (command.Enabled()) frmMain.SetFocus(command);
}

/// `choose` while `chosen` is empty and it can be used, else the count command.
void FocusSourceOrCount(MainForm& frmMain, const TextBox& chosen, CommandButton& choose) {
  const bool mustChoose = chosen.Text().empty() && choose.Enabled();
  FocusIfEnabled(frmMain, mustChoose ? choose : frmMain.cmdCountWords);
}

}  // namespace

void SetTheFocus(MainForm& frmMain) {
  if (!frmMain.Visible()) return;
  if (frmMain.optOnClipboard.Value()) {
    FocusIfEnabled(frmMain, frmMain.cmdCountWords);
  } else if (frmMain.optInFile.Value()) {
    FocusSourceOrCount(frmMain, frmMain.txbFile[0], frmMain.cmdFile[0]);
  } else if (frmMain.optFolder.Value()) {
    FocusSourceOrCount(frmMain, frmMain.txbFolder, frmMain.cmdFolder);
  }
}

}  // namespace quillomat
