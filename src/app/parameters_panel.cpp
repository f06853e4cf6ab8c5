#include "app/parameters_panel.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/text_helpers.h"
#include "listing/set_the_focus.h"
#include "sources/panel_choices.h"

namespace quillomat {
namespace {

constexpr int kDefaultShortWordSizeIndex = 1;
constexpr int kDefaultLongWordSizeIndex = 3;
constexpr int kDefaultThresholdFrequencyIndex = 0;

/// The boxes that decide how text is scanned: a change of theirs makes the counts on display
/// outdated.
std::vector<CheckBox*> ScanningBoxes(ParamsForm& panel) {
  const auto allow = panel.AllowCheckBoxes();
  std::vector<CheckBox*> boxes(allow.begin(), allow.end());
  boxes.insert(boxes.end(),
               {&panel.chkCaseSignificant, &panel.chkDropFinalS, &panel.chkAllowCommentMarkers});
  return boxes;
}

/// All boxes in the order in which "Clear checkboxes" and "Set checkboxes" go through them.
std::vector<CheckBox*> BoxesInClearingOrder(ParamsForm& panel) {
  const auto allow = panel.AllowCheckBoxes();
  std::vector<CheckBox*> boxes(allow.begin(), allow.end());
  boxes.insert(
      boxes.end(),
      {&panel.chkCaseSignificant, &panel.chkDropFinalS, &panel.chkIgnoreInfrequentWords,
       &panel.chkIgnoreRepetitions, &panel.chkIgnoreRomNum40, &panel.chkIgnoreNoVowelOrY,
       &panel.chkIgnoreShortWords, &panel.chkOutputWithCommas, &panel.chkUseLog10,
       &panel.chkAllowCommentMarkers, &panel.chkWarnOnOverwrite, &panel.chkSaveStateOnQuit});
  return boxes;
}

}  // namespace

void ParametersPanel::Connect(std::function<void()> initialize) {
  initialize_ = std::move(initialize);
  ConnectScanningBoxes();
  ConnectListingChoices();
  ConnectMarkers();
  ConnectWordLists();
  ConnectCommands();
}

void ParametersPanel::ConnectScanningBoxes() {
  for (CheckBox* box : ScanningBoxes(context_.frmParams)) {
    box->Click.Connect([this, box] { OnScanningBoxClick(*box); });
  }
}

void ParametersPanel::OnScanningBoxClick(CheckBox& box) {
  CountState& state = context_.state;
  if (!state.blnStartUpCompleted || state.blnInhibitPrompt || !state.blnWordsGot) return;
  if (state.busy) {
    // The words are being listed: no time for questions, but the next count must know.
    state.blnWordsGot = false;
    return;
  }
  if (ConfirmReRead()) return;
  // No unchecks the box, whichever way it was clicked.
  state.blnInhibitPrompt = true;
  box.SetChecked(false);
  state.blnInhibitPrompt = false;
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

void ParametersPanel::ConnectListingChoices() {
  ParamsForm& panel = context_.frmParams;
  for (CheckBox* box :
       {&panel.chkIgnoreShortWords, &panel.chkIgnoreInfrequentWords, &panel.chkIgnoreRepetitions,
        &panel.chkIgnoreRomNum40, &panel.chkIgnoreNoVowelOrY}) {
    box->Click.Connect([this] { FocusClose(); });
  }
  for (ComboBox* combo :
       {&panel.cboShortWordSize, &panel.cboLongWordSize, &panel.cboThresholdFrequency}) {
    combo->Click.Connect([this] { FocusClose(); });
  }
}

void ParametersPanel::FocusClose() {
  ParamsForm& panel = context_.frmParams;
  if (context_.state.blnStartUpCompleted) panel.SetFocus(panel.cmdClose);
}

void ParametersPanel::ConnectMarkers() {
  ParamsForm& panel = context_.frmParams;
  for (std::size_t pair = 0; pair < 2; ++pair) {
    for (TextBox* box : {&panel.txbStartComment[pair], &panel.txbEndComment[pair]}) {
      box->LostFocus.Connect([this, box] {
        box->SetText(std::string(TrimBlanks(box->Text())));
        context_.state.blnWordsGot = false;
      });
    }
  }
}

void ParametersPanel::ConnectWordLists() {
  ParamsForm& panel = context_.frmParams;
  for (std::size_t i = 0; i < 2; ++i) {
    const auto kind = static_cast<WordListKind>(i);
    panel.cmdSelectWordsFile[i].Click.Connect([this, kind] { wordLists_.SelectWordsFile(kind); });
    panel.cmdClearWordsFile[i].Click.Connect([this, kind] { wordLists_.ClearWordsFile(kind); });
    panel.txbWordsToIgnoreOrCount[i].LostFocus.Connect(
        [this, kind] { wordLists_.OnExtraWordsLostFocus(kind); });
    panel.cmdClearWordsToIgnoreOrCount[i].Click.Connect([this, kind, i] {
      context_.frmParams.txbWordsToIgnoreOrCount[i].SetText("");
      wordLists_.OnExtraWordsLostFocus(kind);
      Close();
    });
  }
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

void ParametersPanel::SetAllCheckBoxes(CheckState state) {
  for (CheckBox* box : BoxesInClearingOrder(context_.frmParams)) box->SetValue(state);
}

void ParametersPanel::SetDefaultValues() {
  SetDefaultCheckBoxes();
  ParamsForm& panel = context_.frmParams;
  context_.state.settings.SetCommentMarkers("C", ReadScanChoices(panel));
  panel.txbStartComment[0].SetText("/*");
  panel.txbEndComment[0].SetText("*/");
  panel.txbStartComment[1].SetText("//");
  panel.txbEndComment[1].SetText("");
  panel.cboShortWordSize.SetListIndex(kDefaultShortWordSizeIndex);
  panel.cboLongWordSize.SetListIndex(kDefaultLongWordSizeIndex);
  panel.cboThresholdFrequency.SetListIndex(kDefaultThresholdFrequencyIndex);
}

void ParametersPanel::SetDefaultCheckBoxes() {
  ParamsForm& panel = context_.frmParams;
  const std::array<const CheckBox*, 7> checkedByDefault = {
      &panel.chkIgnoreRepetitions,    &panel.chkIgnoreRomNum40,
      &panel.chkIgnoreNoVowelOrY,     &panel.chkUseLog10,
      &panel.chkWarnOnOverwrite,      &panel.chkSaveStateOnQuit,
      &panel.chkAllowWordsWithHyphens};
  for (CheckBox* box : panel.AllCheckBoxes()) {
    const bool isChecked =
        std::find(checkedByDefault.begin(), checkedByDefault.end(), box) != checkedByDefault.end();
    box->SetChecked(isChecked);
  }
}

}  // namespace quillomat
