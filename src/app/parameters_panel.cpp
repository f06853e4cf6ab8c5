#include "app/parameters_panel.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "app/list/set_the_focus.h"
#include "app/setting_values.h"
#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// Whether a row is a parameter of the panel: what "Restore defaults" puts to its default.
bool IsParameter(const Setting& setting) {
  return setting.window == SettingWindow::kPanel && setting.resetBy == ResetBy::kRestoreDefaults;
}

}  // namespace

void ParametersPanel::Connect(std::function<void()> initialize) {
  initialize_ = std::move(initialize);
  ConnectParameters();
  ConnectWordLists();
  ConnectCommands();
}

void ParametersPanel::ConnectParameters() {
  for (const Setting& setting : AllSettings()) {
    if (!IsParameter(setting) || setting.entails == Entails::kNothing) continue;
    Control& control = ControlOf(setting, frmMain_, frmParams_);
    if (setting.entails == Entails::kRescan) {
      ConnectScanningChoice(setting, control);
    } else {
      ConnectListingChoice(control);
    }
  }
}

void ParametersPanel::ConnectScanningChoice(const Setting& setting, Control& control) {
  if (auto* box = control.As<CheckBox>()) {
    box->Click.Connect([this, box] { OnScanningBoxClick(*box); });
  }
  if (auto* combo = control.As<ComboBox>()) {
    // Nothing is asked: the keyboard goes through the items one by one.
    combo->Click.Connect([this, &setting] {
      if (!setting.ofFilesAlone || FilesWereRead()) words_.blnWordsGot = false;
    });
  }
  if (auto* box = control.As<TextBox>()) {
    box->LostFocus.Connect([this, box] {
      box->SetText(std::string(TrimBlanks(box->Text())));
      words_.blnWordsGot = false;
    });
  }
}

void ParametersPanel::ConnectListingChoice(Control& control) {
  if (auto* box = control.As<CheckBox>()) box->Click.Connect([this] { FocusClose(); });
  if (auto* combo = control.As<ComboBox>()) combo->Click.Connect([this] { FocusClose(); });
}

void ParametersPanel::OnScanningBoxClick(CheckBox& box) {
  if (MayReadAnew()) return;
  // No unchecks the box, whichever way it was clicked; but for the accents, where it would count
  // other words than are shown.
  const bool checked = &box == &frmParams_.chkFoldAccents && !box.IsChecked();
  flags_.blnInhibitPrompt = true;
  box.SetChecked(checked);
  flags_.blnInhibitPrompt = false;
}

/// For the words on display: text, or lists of words.
bool ParametersPanel::FilesWereRead() const {
  return words_.counted.source != CountedText::Source::kClipboard ||
         std::ranges::any_of(frmParams_.txbWordsFile,
                             [](const TextBox& box) { return !box.Text().empty(); });
}

/// Whether there is nothing to be read anew, or the user lets it be.
bool ParametersPanel::MayReadAnew() {
  if (!flags_.blnStartUpCompleted || flags_.blnInhibitPrompt || !words_.blnWordsGot) return true;
  if (run_.Busy()) {
    // The words are being listed: no time for questions, but the next count must know.
    words_.blnWordsGot = false;
    return true;
  }
  return ConfirmReRead();
}

bool ParametersPanel::ConfirmReRead() {
  std::string source = "clipboard";
  if (frmMain_.optInFile.Value()) source = "file";
  if (frmMain_.optFolder.Value()) source = "files";
  const MessageAnswer answer =
      messages_.Ask("Changing this entails reading the " + source + " anew.  Is this OK?",
                    messages_.ProgramTitle());
  if (answer != MessageAnswer::kYes) return false;
  words_.blnWordsGot = false;
  return true;
}

void ParametersPanel::AllowAllLetters() {
  frmParams_.cboLetters.SetListIndex(static_cast<int>(LetterRule::kAll));
}

void ParametersPanel::FocusClose() {
  if (flags_.blnStartUpCompleted) frmParams_.SetFocus(frmParams_.cmdClose);
}

void ParametersPanel::ConnectWordLists() {
  for (std::size_t i = 0; i < 2; ++i) {
    const auto kind = static_cast<WordListKind>(i);
    frmParams_.cmdSelectWordsFile[i].Click.Connect(
        [this, kind] { wordLists_.SelectWordsFile(kind); });
    frmParams_.cmdClearWordsFile[i].Click.Connect(
        [this, kind] { wordLists_.ClearWordsFile(kind); });
    frmParams_.txbWordsFile[i].LostFocus.Connect([this, kind] {
      AfterClickThatLeaves([this, kind] { wordLists_.OnWordsFileLostFocus(kind); });
    });
    frmParams_.txbWordsToIgnoreOrCount[i].LostFocus.Connect([this, kind] {
      AfterClickThatLeaves([this, kind] { wordLists_.OnExtraWordsLostFocus(kind); });
    });
    frmParams_.cmdClearWordsToIgnoreOrCount[i].Click.Connect([this, kind, i] {
      frmParams_.txbWordsToIgnoreOrCount[i].SetText("");
      wordLists_.OnExtraWordsLostFocus(kind);
      Close();
    });
  }
}

/// The click may be what mends the box. Only a state is saved with what is in force.
void ParametersPanel::AfterClickThatLeaves(const std::function<void()>& action) {
  if (frmParams_.Focused() == &frmParams_.cmdSaveLoadState[0]) return action();
  frmParams_.AfterClick(action);
}

void ParametersPanel::ConnectCommands() {
  frmParams_.cmdClearCheckboxes[0].Click.Connect(
      [this] { SetAllCheckBoxes(CheckState::kUnchecked); });
  frmParams_.cmdClearCheckboxes[1].Click.Connect(
      [this] { SetAllCheckBoxes(CheckState::kChecked); });
  frmParams_.cmdRestoreDefaults.Click.Connect([this] {
    SetDefaultValues();
    FocusClose();
  });
  frmParams_.cmdInitialize.Click.Connect([this] {
    initialize_();
    frmParams_.lblState.SetCaption("Program reinitialized.");
  });
  frmMain_.cmdSetParameters.Click.Connect([this] { Open(); });
  frmParams_.cmdClose.Click.Connect([this] { Close(); });
  frmParams_.CloseRequested.Connect([this] { frmParams_.cmdClose.PerformClick(); });
}

void ParametersPanel::Open() {
  frmParams_.SetState(WindowState::kNormal);  // it may be minimized
  frmParams_.Show();
}

void ParametersPanel::Close() {
  frmParams_.Hide();
  SetTheFocus(frmMain_);
}

void ParametersPanel::SetAllCheckBoxes(CheckState state) const {
  for (CheckBox* box : BoxesInClearingOrder(frmParams_)) box->SetValue(state);
}

void ParametersPanel::SetDefaultValues() const {
  for (const Setting& setting : AllSettings()) {
    if (IsParameter(setting)) SetToDefault(setting, ControlOf(setting, frmMain_, frmParams_));
  }
}

}  // namespace quillomat
