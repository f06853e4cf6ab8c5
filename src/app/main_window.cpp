#include "app/main_window.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "app/count/path_boxes.h"
#include "app/count/window_state.h"
#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "system/file_system.h"
#include "text/caption_table.h"
#include "text/help_text.h"
#include "text/shell_helpers.h"

namespace quillomat {
namespace {

constexpr std::string_view kBuildDate = "20070708";

}  // namespace

void MainWindow::Connect() {
  ConnectSource();
  ConnectFiles();
  ConnectFolder();
  ConnectOutput();
  ConnectNotices();
  MainForm& frmMain = context_.frmMain;
  frmMain.cmdCountWords.Click.Connect([this] { countRun_.OnCountClick(); });
  frmMain.cmdSetParameters.Click.Connect([this] {
    context_.frmParams.SetState(WindowState::kNormal);  // it may be minimized
    context_.frmParams.Show();
  });
  frmMain.cboWordOrder.Click.Connect([this] { countRun_.OnListChoiceChanged(); });
  frmMain.cboDisplayFormat.Click.Connect([this] { countRun_.OnListChoiceChanged(); });
  countRun_.File().SetOutputFileChooser([this] { ChooseOutputFile(); });
}

void MainWindow::FillListCombos() {
  MainForm& frmMain = context_.frmMain;
  for (const std::string_view name : kWordOrderNames) {
    frmMain.cboWordOrder.AddItem(std::string(name));
  }
  for (const std::string_view name : kDisplayFormatNames) {
    frmMain.cboDisplayFormat.AddItem(std::string(name));
  }
  frmMain.cboWordOrder.SetListIndex(0);
  frmMain.cboDisplayFormat.SetListIndex(0);
  frmMain.cboDisplayFormat.SetReasonAgainst([this](int listIndex) {
    const bool served = context_.lister.CanServe(static_cast<DisplayFormat>(listIndex));
    return served ? std::string() : context_.text.GetText(kFormatNotServedText);
  });
}

void MainWindow::ChooseText(const std::string& path) {
  if (context_.state.Busy()) return;
  MainForm& frmMain = context_.frmMain;
  RememberFolderOf(path, context_);
  if (FolderExists(path)) {
    frmMain.txbFolder.EnterText(path);
    frmMain.optFolder.SetValue(true);
  } else {
    frmMain.txbFile[0].EnterText(path);
    frmMain.optInFile.SetValue(true);
    const bool found = countRun_.File().CheckInputFile(path) == ScanFileResult::kDone;
    if (!found) Refuse(context_, "Input file does not exist.", "File not found");
  }
  SetTheFocus(frmMain);
}

void MainWindow::TakeDrop(const std::vector<std::string>& paths) {
  if (context_.state.Busy()) return;
  if (paths.size() == 1) return ChooseText(paths.front());
  Tell(context_, context_.text.GetText(paths.empty() ? kNoPathDroppedText : kManyPathsDroppedText),
       context_.text.GetText(kProgramTitleText), MessageIcon::kInformation);
}

std::string MainWindow::NotFoundText() const {
  const ListPart part = context_.output.Part();
  if (!part.IsCut()) return context_.text.GetText(kNotFoundText);
  std::string text = context_.text.GetText(kNotFoundInPartText);
  for (const auto& [sign, number] : {std::pair("%1", part.shown), std::pair("%2", part.all)}) {
    const std::size_t place = text.find(sign);
    if (place != std::string::npos) text.replace(place, 2, Grouped(context_, number));
  }
  return text;
}

/// The focus stays where the user is typing.
void MainWindow::SelectSourceOf(const TextBox& box, OptionButton& source) {
  if (box.Text().empty()) return;
  followingTheHand_ = true;
  source.SetValue(true);
  followingTheHand_ = false;
}

void MainWindow::ConnectSource() {
  MainForm& frmMain = context_.frmMain;
  frmMain.txbFile[0].Entered.Connect(
      [this, &frmMain] { SelectSourceOf(frmMain.txbFile[0], frmMain.optInFile); });
  frmMain.txbFolder.Entered.Connect(
      [this, &frmMain] { SelectSourceOf(frmMain.txbFolder, frmMain.optFolder); });
  frmMain.optOnClipboard.Click.Connect([this] {
    if (!context_.state.blnStartUpCompleted || context_.state.Busy()) return;
    context_.output.ClearOutput();
    ConcealNumWords(context_.frmMain, true);
    EnableSourceControls(context_);
    SetTheFocus(context_.frmMain);
  });
  for (OptionButton* source : {&frmMain.optInFile, &frmMain.optFolder}) {
    source->Click.Connect([this] {
      if (!followingTheHand_) SetTheFocus(context_.frmMain);
    });
  }
}

void MainWindow::ConnectFiles() {
  MainForm& frmMain = context_.frmMain;
  frmMain.txbFile[0].Change.Connect([&frmMain] {
    if (frmMain.txbFile[0].Text().empty()) frmMain.lblFilesize.SetCaption("");
  });
  frmMain.txbFile[0].LostFocus.Connect([this] {
    TextBox& box = context_.frmMain.txbFile[0];
    CompletePathIn(box, context_);
    if (!box.Text().empty()) countRun_.File().CheckInputFile(box.Text());
  });
  frmMain.txbFile[1].LostFocus.Connect(
      [this] { CompletePathIn(context_.frmMain.txbFile[1], context_); });
  frmMain.cmdFile[0].Click.Connect([this] { ChooseInputFile(); });
  frmMain.cmdFile[1].Click.Connect([this] { ChooseOutputFile(); });
  frmMain.cmdClearFile[0].Click.Connect([this] {
    context_.frmMain.txbFile[0].SetText("");
    SetTheFocus(context_.frmMain);
  });
  frmMain.cmdClearFile[1].Click.Connect([this] {
    context_.frmMain.txbFile[1].SetText("");
    SetTheFocus(context_.frmMain);
  });
}

void MainWindow::ChooseInputFile() {
  FileDialog dialog;
  dialog.title = "Specify file to be scanned";
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.pathMustExist = true;
  dialog.fileMustExist = true;
  dialog.hideReadOnly = true;
  TextBox& box = context_.frmMain.txbFile[0];
  if (const auto path = ChooseFileFor(box, dialog, context_)) {
    box.SetText(*path);
    SelectSourceOf(box, context_.frmMain.optInFile);
    countRun_.File().CheckInputFile(*path);
  }
  SetTheFocus(context_.frmMain);
}

/// The list asks before it overwrites, so the dialog does not.
void MainWindow::ChooseOutputFile() {
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kSave;
  dialog.title = "Specify output file";
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.pathMustExist = true;
  dialog.hideReadOnly = true;
  dialog.noReadOnlyReturn = true;
  TextBox& box = context_.frmMain.txbFile[1];
  if (const auto path = ChooseFileFor(box, dialog, context_)) box.SetText(*path);
  SetTheFocus(context_.frmMain);
}

void MainWindow::ConnectFolder() {
  MainForm& frmMain = context_.frmMain;
  frmMain.cmdFolder.Click.Connect([this] {
    context_.output.ClearOutput();
    ConcealNumWords(context_.frmMain, true);
    TextBox& box = context_.frmMain.txbFolder;
    if (const auto path = ChooseFolderFor(box, "Select Folder", context_)) {
      box.SetText(*path);
      SelectSourceOf(box, context_.frmMain.optFolder);
    }
    SetTheFocus(context_.frmMain);
  });
  frmMain.cmdClearFolder.Click.Connect([this] {
    context_.frmMain.txbFolder.SetText("");
    SetTheFocus(context_.frmMain);
  });
  frmMain.txbFolder.LostFocus.Connect([this] {
    CompletePathIn(context_.frmMain.txbFolder, context_);
    if (!IsClickingForTheFolder()) AfterClick([this] { CheckFolder(); });
  });
  for (std::size_t i = 0; i < 2; ++i) {
    const auto list = static_cast<ExtensionList>(i);
    const auto leave = [this, list] { LeaveExtensions(list); };
    frmMain.txbFileExtensions[i].LostFocus.Connect(leave);
    frmMain.txbFileExtensions[i].KeyDown.Connect([leave](int keyCode) {
      constexpr int kEnter = 13;
      if (keyCode == kEnter) leave();
    });
  }
  frmMain.cmdListFiles.Click.Connect([this] { countRun_.OnListFilesClick(); });
}

void MainWindow::CheckFolder() {
  const std::string& path = context_.frmMain.txbFolder.Text();
  if (!path.empty() && !FolderExists(path)) Refuse(context_, "Folder does not exist.", "Error");
}

/// What the box says is in force at once.
void MainWindow::LeaveExtensions(ExtensionList list) {
  FileExtensions& extensions = countRun_.Extensions();
  const bool fits = extensions.GetFileExtensions(list);
  const auto tell = [&extensions, list, fits] { extensions.TellFaultsOnce(list, fits); };
  if (IsClickingForTheFolder()) return tell();
  AfterClick(tell);
}

void MainWindow::AfterClick(const std::function<void()>& action) {
  context_.frmMain.AfterClick([this, action] {
    if (!context_.state.quitting) action();
  });
}

/// Whether the box is left for a command that looks at the folder itself.
bool MainWindow::IsClickingForTheFolder() const {
  const MainForm& frmMain = context_.frmMain;
  if (!frmMain.IsInClick()) return false;
  return frmMain.Focused() == &frmMain.cmdListFiles ||
         (frmMain.Focused() == &frmMain.cmdCountWords && frmMain.optFolder.Value());
}

void MainWindow::ConnectOutput() {
  MainForm& frmMain = context_.frmMain;
  frmMain.cmdClearOutput.Click.Connect([this] {
    context_.output.ClearOutput();
    ConcealNumWords(context_.frmMain, true);
    if (context_.state.blnStartUpCompleted) SetTheFocus(context_.frmMain);
  });
  frmMain.cmdCopyToClipboard.Click.Connect([this] { CopyOutputToClipboard(); });
  frmMain.chkDisableOutputToFile.Click.Connect([this] { countRun_.OnDisableOutputClick(); });
  frmMain.chkSuppressWords.Click.Connect([this] { OnSuppressWordsClick(); });
}

void MainWindow::CopyOutputToClipboard() {
  try {
    context_.desktop.ClearClipboard();
    context_.desktop.PutClipboardText(context_.frmMain.txbOutput.Text());
  } catch (const RunTimeError& error) {
    Refuse(context_, error.Description(), context_.text.GetText(kProgramTitleText));
  }
}

void MainWindow::ConnectNotices() {
  MainForm& frmMain = context_.frmMain;
  frmMain.txbOutput.Change.Connect([this] {
    if (!context_.output.IsEmpty()) {
      HideNoticeLabels(context_.frmMain);
    } else if (!context_.state.Busy()) {
      ShowNoticeLabels(context_.frmMain);
    }
  });
  frmMain.lblOrvandelSystems.Click.Connect(
      [this] { LaunchBrowser(context_.desktop, context_.text.GetText(kMakerAddressText)); });
  frmMain.lblOnlineDocumentation.Click.Connect(
      [this] { LaunchBrowser(context_.desktop, std::string(kOnlineDocumentation)); });
  frmMain.lblCopyrightNotice.DoubleClick.Connect([this] {
    Tell(context_, std::string(kBuildDate.substr(kBuildDate.size() - 5)), "", MessageIcon::kNone);
  });
  frmMain.cmdClipboardViewer.Click.Connect(
      [this] { OpenDocument(context_.desktop, context_.state.clipboardViewerPath, false); });
}

void MainWindow::OnSuppressWordsClick() {
  CheckBox& box = context_.frmMain.chkSuppressWords;
  if (box.IsChecked()) {
    box.SetToolTip("");
    if (!context_.output.IsEmpty() && context_.state.displayingWords) {
      context_.output.OutputToTxb(kCrLf);
    }
  } else {
    box.SetToolTip("Check this box for faster processing.");
  }
  SetTheFocus(context_.frmMain);
}

}  // namespace quillomat
