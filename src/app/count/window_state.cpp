#include "app/count/window_state.h"

#include "app/list/set_the_focus.h"

namespace quillomat {

void EnableControls(const RunContext& context, bool enable) {
  if (enable) {
    EnableSourceControls(context);
  } else {
    DisableSourceControls(context);
  }
  MainForm& frmMain = context.frmMain;
  frmMain.cmdClipboardViewer.SetEnabled(enable && !context.state.clipboardViewerPath.empty());
  frmMain.cmdHelp.SetEnabled(enable);
  frmMain.cmdSetParameters.SetEnabled(enable);
  frmMain.cmdClearOutput.SetEnabled(enable);
  frmMain.cmdSaveState.SetEnabled(enable);
  frmMain.cmdListFiles.SetEnabled(enable);
  for (TextBox& box : frmMain.txbFileExtensions) box.SetEnabled(enable);
}

void DisableSourceControls(const RunContext& context) {
  MainForm& frmMain = context.frmMain;
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.cmdFile[i].SetEnabled(false);
    frmMain.txbFile[i].SetEnabled(false);
    frmMain.cmdClearFile[i].SetEnabled(false);
  }
  frmMain.cmdFolder.SetEnabled(false);
  frmMain.txbFolder.SetEnabled(false);
  frmMain.cmdClearFolder.SetEnabled(false);
  frmMain.chkIncludeSubfolders.SetEnabled(false);
  frmMain.chkDisableOutputToFile.SetEnabled(false);
}

void EnableSourceControls(const RunContext& context) {
  MainForm& frmMain = context.frmMain;
  for (std::size_t i = 0; i < 2; ++i) {
    frmMain.cmdFile[i].SetEnabled(true);
    frmMain.txbFile[i].SetEnabled(true);
    frmMain.cmdClearFile[i].SetEnabled(true);
    frmMain.txbFileExtensions[i].SetEnabled(true);
  }
  frmMain.lblFilesize.SetEnabled(true);
  frmMain.cmdFolder.SetEnabled(true);
  frmMain.txbFolder.SetEnabled(true);
  frmMain.cmdClearFolder.SetEnabled(true);
  frmMain.chkIncludeSubfolders.SetEnabled(true);
  frmMain.lblFileExtensions.SetEnabled(true);
  frmMain.lblInclude.SetEnabled(true);
  frmMain.lblExclude.SetEnabled(true);
  frmMain.cmdListFiles.SetEnabled(true);
  frmMain.chkDisableOutputToFile.SetEnabled(true);
  frmMain.cmdCountWords.SetCaption(context.text.GetText(kCountCaptionText));
  frmMain.lblTwirler.SetCaption(" ");
  SetTheFocus(frmMain);
}

void EnableSourceOptions(MainForm& frmMain, bool enable) {
  frmMain.optOnClipboard.SetEnabled(enable);
  frmMain.optInFile.SetEnabled(enable);
  frmMain.optFolder.SetEnabled(enable);
}

void EnableListOptions(MainForm& frmMain, bool enable) {
  frmMain.cboWordOrder.SetEnabled(enable);
  frmMain.cboDisplayFormat.SetEnabled(enable);
}

}  // namespace quillomat
