#include "app/parameters_panel.h"

#include <cstddef>
#include <string>
#include <utility>

#include "app/count/panel_choices.h"
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
    Control& control = ControlOf(setting, context_.frmMain, context_.frmParams);
    if (setting.entails == Entails::kRescan) {
      ConnectScanningChoice(control);
    } else {
      ConnectListingChoice(control);
    }
  }
}

void ParametersPanel::ConnectScanningChoice(Control& control) {
  if (auto* box = control.As<CheckBox>()) {
    box->Click.Connect([this, box] { OnScanningBoxClick(*box); });
  }
  if (auto* combo = control.As<ComboBox>()) {
    combo->Click.Connect([this, combo, before = combo->ListIndex()]() mutable {
      OnScanningComboClick(*combo, before);
    });
  }
  if (auto* box = control.As<TextBox>()) {
    box->LostFocus.Connect([this, box] {
      box->SetText(std::string(TrimBlanks(box->Text())));
      context_.state.blnWordsGot = false;
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
  const bool checked = &box == &context_.frmParams.chkFoldAccents && !box.IsChecked();
  context_.state.blnInhibitPrompt = true;
  box.SetChecked(checked);
  context_.state.blnInhibitPrompt = false;
}

/// `before` is the item that was selected before.
void ParametersPanel::OnScanningComboClick(ComboBox& combo, int& before) {
  if (MayReadAnew()) {
    before = combo.ListIndex();
    return;
  }
  context_.state.blnInhibitPrompt = true;
  combo.SetListIndex(before);
  context_.state.blnInhibitPrompt = false;
}

/// Whether there is nothing to be read anew, or the user lets it be.
bool ParametersPanel::MayReadAnew() {
  CountState& state = context_.state;
  if (!state.blnStartUpCompleted || state.blnInhibitPrompt || !state.blnWordsGot) return true;
  if (state.Busy()) {
    // The words are being listed: no time for questions, but the next count must know.
    state.blnWordsGot = false;
    return true;
  }
  return ConfirmReRead();
}

bool ParametersPanel::ConfirmReRead() {
  const MainForm& frmMain = context_.frmMain;
  std::string source = "clipboard";
  if (frmMain.optInFile.Value()) source = "file";
  if (frmMain.optFolder.Value()) source = "files";
  const MessageAnswer answer = context_.desktop.ShowMessage(
      {"Changing this entails reading the " + source + " anew.  Is this OK?",
       context_.text.GetText(kProgramTitleText), MessageIcon::kQuestion, MessageButtons::kYesNo});
  if (answer != MessageAnswer::kYes) return false;
  context_.state.blnWordsGot = false;
  return true;
}

void ParametersPanel::FocusClose() {
  ParamsForm& panel = context_.frmParams;
  if (context_.state.blnStartUpCompleted) panel.SetFocus(panel.cmdClose);
}

void ParametersPanel::ConnectWordLists() {
  ParamsForm& panel = context_.frmParams;
  for (std::size_t i = 0; i < 2; ++i) {
    const auto kind = static_cast<WordListKind>(i);
    panel.cmdSelectWordsFile[i].Click.Connect([this, kind] { wordLists_.SelectWordsFile(kind); });
    panel.cmdClearWordsFile[i].Click.Connect([this, kind] { wordLists_.ClearWordsFile(kind); });
    panel.txbWordsFile[i].LostFocus.Connect([this, kind] {
      AfterClickThatLeaves([this, kind] { wordLists_.OnWordsFileLostFocus(kind); });
    });
    panel.txbWordsToIgnoreOrCount[i].LostFocus.Connect([this, kind] {
      AfterClickThatLeaves([this, kind] { wordLists_.OnExtraWordsLostFocus(kind); });
    });
    panel.cmdClearWordsToIgnoreOrCount[i].Click.Connect([this, kind, i] {
      context_.frmParams.txbWordsToIgnoreOrCount[i].SetText("");
      wordLists_.OnExtraWordsLostFocus(kind);
      Close();
    });
  }
}

/// The click may be what mends the box. Only a state is saved with what is in force.
void ParametersPanel::AfterClickThatLeaves(const std::function<void()>& action) {
  ParamsForm& panel = context_.frmParams;
  if (panel.Focused() == &panel.cmdSaveLoadState[0]) return action();
  panel.AfterClick(action);
}

void ParametersPanel::ConnectCommands() {
  ParamsForm& panel = context_.frmParams;
  panel.cmdClearCheckboxes[0].Click.Connect([this] { SetAllCheckBoxes(CheckState::kUnchecked); });
  panel.cmdClearCheckboxes[1].Click.Connect([this] { SetAllCheckBoxes(CheckState::kChecked); });
  panel.cmdRestoreDefaults.Click.Connect([this] {
    SetDefaultValues();
    FocusClose();
  });
  panel.cmdInitialize.Click.Connect([this] {
    initialize_();
    context_.frmParams.lblState.SetCaption("Program reinitialized.");
  });
  panel.cmdClose.Click.Connect([this] { Close(); });
  panel.CloseRequested.Connect([this] { Close(); });
}

void ParametersPanel::Close() {
  context_.frmParams.Hide();
  SetTheFocus(context_.frmMain);
}

void ParametersPanel::SetAllCheckBoxes(CheckState state) const {
  for (CheckBox* box : BoxesInClearingOrder(context_.frmParams)) box->SetValue(state);
}

void ParametersPanel::SetDefaultValues() {
  SetDefaults(true);
  context_.state.settings.SetCommentMarkers("C", ReadScanChoices(context_.frmParams));
  SetDefaults(false);
}

void ParametersPanel::SetDefaults(bool checkBoxes) const {
  for (const Setting& setting : AllSettings()) {
    if (!IsParameter(setting)) continue;
    Control& control = ControlOf(setting, context_.frmMain, context_.frmParams);
    if ((control.Kind() == ControlKind::kCheckBox) == checkBoxes) SetToDefault(setting, control);
  }
}

}  // namespace quillomat
