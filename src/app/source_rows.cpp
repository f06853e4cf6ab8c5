#include "app/source_rows.h"

#include <cstddef>
#include <string>

#include "app/count/file_source.h"
#include "app/list/set_the_focus.h"
#include "app/list/summary.h"
#include "system/file_system.h"
#include "text/caption_table.h"

namespace quillomat {

void SourceRows::Connect() {
  ConnectSource();
  ConnectFiles();
  ConnectFolder();
}

void SourceRows::ChooseText(const std::string& path) {
  if (run_.Busy()) return;
  paths_.RememberFolderOf(path);
  if (FolderExists(path)) {
    frmMain_.txbFolder.EnterText(path);
    frmMain_.optFolder.SetValue(true);
  } else {
    frmMain_.txbFile[0].EnterText(path);
    frmMain_.optInFile.SetValue(true);
    const bool found = inputRow_.CheckInputFile(path) == ScanFileResult::kDone;
    if (!found) RefuseMissingInput(messages_, path);
  }
  SetTheFocus(frmMain_);
}

void SourceRows::TakeDrop(const std::vector<std::string>& paths) {
  if (run_.Busy()) return;
  if (paths.size() == 1) return ChooseText(paths.front());
  messages_.Tell(messages_.Text(paths.empty() ? kNoPathDroppedText : kManyPathsDroppedText),
                 messages_.ProgramTitle());
}

/// The focus stays where the user is typing.
void SourceRows::SelectSourceOf(const TextBox& box, OptionButton& source) {
  if (box.Text().empty()) return;
  followingTheHand_ = true;
  source.SetValue(true);
  followingTheHand_ = false;
}

void SourceRows::ConnectSource() {
  frmMain_.txbFile[0].Entered.Connect(
      [this] { SelectSourceOf(frmMain_.txbFile[0], frmMain_.optInFile); });
  frmMain_.txbFolder.Entered.Connect(
      [this] { SelectSourceOf(frmMain_.txbFolder, frmMain_.optFolder); });
  frmMain_.optOnClipboard.Click.Connect([this] {
    if (!flags_.blnStartUpCompleted || run_.Busy()) return;
    output_.ClearOutput();
    ConcealNumWords(frmMain_, true);
    controls_.EnableSourceControls();
    SetTheFocus(frmMain_);
  });
  for (OptionButton* source : {&frmMain_.optInFile, &frmMain_.optFolder}) {
    source->Click.Connect([this] {
      if (!followingTheHand_) SetTheFocus(frmMain_);
    });
  }
}

void SourceRows::ConnectFiles() {
  frmMain_.txbFile[0].Change.Connect([this] {
    if (frmMain_.txbFile[0].Text().empty()) frmMain_.lblFilesize.SetCaption("");
  });
  frmMain_.txbFile[0].LostFocus.Connect([this] {
    TextBox& box = frmMain_.txbFile[0];
    paths_.CompletePathIn(box);
    if (!box.Text().empty()) inputRow_.CheckInputFile(box.Text());
  });
  frmMain_.txbFile[1].LostFocus.Connect([this] { paths_.CompletePathIn(frmMain_.txbFile[1]); });
  frmMain_.cmdFile[0].Click.Connect([this] { ChooseInputFile(); });
  frmMain_.cmdFile[1].Click.Connect([this] { paths_.ChooseOutputFile(frmMain_); });
  frmMain_.cmdClearFile[0].Click.Connect([this] {
    frmMain_.txbFile[0].SetText("");
    SetTheFocus(frmMain_);
  });
  frmMain_.cmdClearFile[1].Click.Connect([this] {
    frmMain_.txbFile[1].SetText("");
    SetTheFocus(frmMain_);
  });
}

void SourceRows::ChooseInputFile() {
  TextBox& box = frmMain_.txbFile[0];
  if (const auto path = paths_.ChooseTextFileFor(box, "Specify file to be scanned")) {
    box.SetText(*path);
    SelectSourceOf(box, frmMain_.optInFile);
    inputRow_.CheckInputFile(*path);
  }
  SetTheFocus(frmMain_);
}

void SourceRows::ConnectFolder() {
  frmMain_.cmdFolder.Click.Connect([this] {
    output_.ClearOutput();
    ConcealNumWords(frmMain_, true);
    TextBox& box = frmMain_.txbFolder;
    if (const auto path = paths_.ChooseFolderFor(box, "Select Folder")) {
      box.SetText(*path);
      SelectSourceOf(box, frmMain_.optFolder);
    }
    SetTheFocus(frmMain_);
  });
  frmMain_.cmdClearFolder.Click.Connect([this] {
    frmMain_.txbFolder.SetText("");
    SetTheFocus(frmMain_);
  });
  frmMain_.txbFolder.LostFocus.Connect([this] {
    paths_.CompletePathIn(frmMain_.txbFolder);
    if (!IsClickingForTheFolder()) AfterClick([this] { CheckFolder(); });
  });
  for (std::size_t i = 0; i < 2; ++i) {
    const auto list = static_cast<ExtensionList>(i);
    const auto leave = [this, list] { LeaveExtensions(list); };
    frmMain_.txbFileExtensions[i].LostFocus.Connect(leave);
    frmMain_.txbFileExtensions[i].KeyDown.Connect([leave](int keyCode) {
      if (keyCode == kEnterKey) leave();
    });
  }
}

void SourceRows::CheckFolder() const {
  const std::string& path = frmMain_.txbFolder.Text();
  if (!path.empty() && !FolderExists(path)) messages_.Refuse("Folder does not exist.", "Error");
}

/// What the box says is in force at once.
void SourceRows::LeaveExtensions(ExtensionList list) {
  const bool fits = extensions_.GetFileExtensions(list);
  const auto tell = [this, list, fits] { extensions_.TellFaultsOnce(list, fits); };
  if (IsClickingForTheFolder()) return tell();
  AfterClick(tell);
}

void SourceRows::AfterClick(const std::function<void()>& action) {
  frmMain_.AfterClick([this, action] {
    if (!run_.Quitting()) action();
  });
}

/// Whether the box is left for a command that looks at the folder itself.
bool SourceRows::IsClickingForTheFolder() const {
  if (!frmMain_.IsInClick()) return false;
  return frmMain_.Focused() == &frmMain_.cmdListFiles ||
         (frmMain_.Focused() == &frmMain_.cmdCountWords && frmMain_.optFolder.Value());
}

}  // namespace quillomat
