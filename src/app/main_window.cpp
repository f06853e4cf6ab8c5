#include "app/main_window.h"

#include <string>

#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "text/caption_table.h"
#include "text/help_text.h"
#include "text/shell_helpers.h"

namespace quillomat {
namespace {

constexpr std::string_view kBuildDate = "20070708";

}  // namespace

void MainWindow::Connect() {
  ConnectOutput();
  ConnectNotices();
  frmMain_.cmdCountWords.Click.Connect([this] { countRun_.OnCountClick(); });
  frmMain_.cmdListFiles.Click.Connect([this] { countRun_.OnListFilesClick(); });
  frmMain_.cboWordOrder.Click.Connect([this] { countRun_.OnListChoiceChanged(); });
  frmMain_.cboDisplayFormat.Click.Connect([this] { countRun_.OnListChoiceChanged(); });
}

void MainWindow::FillListCombos() {
  for (const std::string_view name : kWordOrderNames) {
    frmMain_.cboWordOrder.AddItem(std::string(name));
  }
  for (const std::string_view name : kDisplayFormatNames) {
    frmMain_.cboDisplayFormat.AddItem(std::string(name));
  }
  frmMain_.cboWordOrder.SetListIndex(0);
  frmMain_.cboDisplayFormat.SetListIndex(0);
  frmMain_.cboDisplayFormat.SetReasonAgainst([this](int listIndex) {
    const bool served = lister_.CanServe(static_cast<DisplayFormat>(listIndex));
    return served ? std::string() : messages_.Text(kFormatNotServedText);
  });
}

void MainWindow::ConnectOutput() {
  frmMain_.cmdClearOutput.Click.Connect([this] {
    output_.ClearOutput();
    ConcealNumWords(frmMain_, true);
    if (flags_.blnStartUpCompleted) SetTheFocus(frmMain_);
  });
  frmMain_.cmdCopyToClipboard.Click.Connect([this] { CopyOutputToClipboard(); });
  frmMain_.chkDisableOutputToFile.Click.Connect([this] { countRun_.OnDisableOutputClick(); });
  frmMain_.chkSuppressWords.Click.Connect([this] { OnSuppressWordsClick(); });
}

void MainWindow::CopyOutputToClipboard() {
  if (copyView_ && copyView_()) return;
  try {
    desktop_.ClearClipboard();
    desktop_.PutClipboardText(frmMain_.txbOutput.Text());
  } catch (const RunTimeError& error) {
    messages_.Refuse(error.Description(), messages_.ProgramTitle());
  }
}

void MainWindow::ConnectNotices() {
  frmMain_.txbOutput.Change.Connect([this] {
    if (!output_.IsEmpty()) {
      HideNoticeLabels(frmMain_);
    } else if (!run_.Busy()) {
      ShowNoticeLabels(frmMain_);
    }
  });
  frmMain_.lblOrvandelSystems.Click.Connect(
      [this] { LaunchBrowser(desktop_, messages_.Text(kMakerAddressText)); });
  frmMain_.lblOnlineDocumentation.Click.Connect(
      [this] { LaunchBrowser(desktop_, std::string(kOnlineDocumentation)); });
  frmMain_.lblCopyrightNotice.DoubleClick.Connect([this] {
    messages_.Tell(std::string(kBuildDate.substr(kBuildDate.size() - 5)), "", MessageIcon::kNone);
  });
  frmMain_.cmdClipboardViewer.Click.Connect(
      [this] { OpenDocument(desktop_, controls_.ClipboardViewer(), false); });
}

void MainWindow::OnSuppressWordsClick() {
  CheckBox& box = frmMain_.chkSuppressWords;
  output_.SetSuppressedByItself(false);
  if (box.IsChecked()) {
    box.SetToolTip("");
    if (!output_.IsEmpty() && output_.DisplayingWords()) {
      output_.OutputToTxb(kCrLf);
    }
  } else {
    box.SetToolTip("Check this box for faster processing.");
  }
  SetTheFocus(frmMain_);
}

}  // namespace quillomat
