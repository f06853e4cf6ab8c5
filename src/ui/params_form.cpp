#include "ui/params_form.h"

#include <string>

namespace quillomat {
namespace {

void AddNumbers(ComboBox& combo, int first, int last, int step) {
  for (int number = first; number <= last; number += step) combo.AddItem(std::to_string(number));
}

}  // namespace

ParamsForm::ParamsForm() : Form("frmParams", "QLAV: Set parameters") {}

std::array<CheckBox*, ParamsForm::kAllowFlagCount> ParamsForm::AllowCheckBoxes() {
  return {&chkAllowWordsWithHyphens,     &chkAllowWordsWithApostrophes,
          &chkAllowWordsWithUnderscores, &chkAllowWordsWithColons,
          &chkAllowWordsWithBackslashes, &chkAllowWordsWithForwardslashes,
          &chkAllowWordsWithParentheses, &chkAllowWordsWithPeriods,
          &chkAllowWordsWithCommas,      &chkAllowWordsWithAtSigns,
          &chkAllowWordsWithNumerals};
}

void ParamsForm::FillCombos() {
  AddNumbers(cboShortWordSize, 2, 9, 1);
  AddNumbers(cboLongWordSize, 20, 100, 10);
  AddNumbers(cboThresholdFrequency, 2, 9, 1);
  cboLetters.AddItem("Western European");
  cboLetters.AddItem("of all languages");
}

}  // namespace quillomat
