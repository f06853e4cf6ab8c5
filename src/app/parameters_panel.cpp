#include "app/parameters_panel.h"

#include <algorithm>
#include <array>

#include "listing/set_the_focus.h"
#include "sources/panel_choices.h"

namespace quillomat {
namespace {

constexpr int kDefaultShortWordSizeIndex = 1;
constexpr int kDefaultLongWordSizeIndex = 3;
constexpr int kDefaultThresholdFrequencyIndex = 0;

}  // namespace

void ParametersPanel::Connect() {
  ConnectWordLists();
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
      context_.frmParams.Hide();
      SetTheFocus(context_.frmMain);
    });
  }
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
    box->SetChecked(std::find(checkedByDefault.begin(), checkedByDefault.end(), box) !=
                    checkedByDefault.end());
  }
}

}  // namespace quillomat
