#include "engine/final_form.h"

#include "engine/word_rules.h"

namespace quillomat {

FinalForm FinalFormOf(std::string_view token, const ScanChoices& choices) {
  FinalForm form;
  form.trimmed = TrimTrailingChars(token, kTrimmedFromWords);
  form.word = form.trimmed;
  if (IsSet(choices.dropFinalS)) form.word = DropFinalS(form.word, choices.letters);
  const bool dropFragments = choices.AllowWith(AllowFlag::kApostrophe) == CheckState::kUnchecked;
  if (dropFragments && IsApostropheFragment(form.word)) form.word = {};
  return form;
}

}  // namespace quillomat
