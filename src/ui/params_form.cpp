#include "ui/params_form.h"

#include <span>
#include <string>
#include <string_view>

#include "base/character_set.h"

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
  constexpr std::string_view kFirstEncodings[] = {"as found", "guess"};
  for (const std::string_view words : kFirstEncodings) cboEncoding.AddItem(std::string(words));
  for (const std::string_view name : std::span(kCharacterSetNames).subspan(2)) {
    cboEncoding.AddItem(std::string(name));
  }
}

}  // namespace quillomat
