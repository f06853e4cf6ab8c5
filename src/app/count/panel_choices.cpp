#include "app/count/panel_choices.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>

#include "system/system_segmenter.h"

namespace quillomat {
namespace {

/// Nothing chosen is the first item.
LetterRule ReadLetterRule(const ParamsForm& frmParams) {
  return static_cast<LetterRule>(std::max(frmParams.cboLetters.ListIndex(), 0));
}

}  // namespace

ScanChoices ReadScanChoices(ParamsForm& frmParams) {
  ScanChoices choices;
  const auto boxes = frmParams.AllowCheckBoxes();
  for (std::size_t flag = 0; flag < boxes.size(); ++flag) {
    choices.allowWordsWith[flag] = boxes[flag]->Value();
  }
  choices.caseSignificant = frmParams.chkCaseSignificant.Value();
  choices.letters = ReadLetterRule(frmParams);
  choices.makeSegmenter = MakeSystemSegmenter;
  choices.foldAccents = frmParams.chkFoldAccents.Value();
  choices.dropFinalS = frmParams.chkDropFinalS.Value();
  choices.allowCommentMarkers = frmParams.chkAllowCommentMarkers.Value();
  for (std::size_t pair = 0; pair < 2; ++pair) {
    choices.startComment[pair] = frmParams.txbStartComment[pair].Text();
    choices.endComment[pair] = frmParams.txbEndComment[pair].Text();
  }
  return choices;
}

KeyRule ReadKeyRule(const ParamsForm& frmParams) {
  return {ReadLetterRule(frmParams), !frmParams.chkFoldAccents.IsChecked()};
}

CharacterSet ReadEncoding(const ParamsForm& frmParams) {
  return static_cast<CharacterSet>(std::max(frmParams.cboEncoding.ListIndex(), 0));
}

ListForm ReadListForm(const ParamsForm& frmParams) {
  return {ReadKeyRule(frmParams), ReadEncoding(frmParams)};
}

FilterChoices ReadFilterChoices(const ParamsForm& frmParams) {
  FilterChoices choices;
  choices.ignoreInfrequentWords = frmParams.chkIgnoreInfrequentWords.Value();
  choices.thresholdFrequencyIndex = frmParams.cboThresholdFrequency.ListIndex();
  choices.ignoreShortWords = frmParams.chkIgnoreShortWords.Value();
  choices.shortWordSizeIndex = frmParams.cboShortWordSize.ListIndex();
  choices.ignoreRepetitions = frmParams.chkIgnoreRepetitions.Value();
  choices.ignoreRomNum40 = frmParams.chkIgnoreRomNum40.Value();
  choices.ignoreNoVowelOrY = frmParams.chkIgnoreNoVowelOrY.Value();
  choices.letters = ReadLetterRule(frmParams);
  const std::string longest = frmParams.cboLongWordSize.Text();
  choices.longWordSize = 0;  // what no selection reads as
  std::from_chars(longest.data(), longest.data() + longest.size(), choices.longWordSize);
  return choices;
}

}  // namespace quillomat
