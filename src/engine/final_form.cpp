#include "engine/final_form.h"

#include "engine/word_rules.h"

namespace quillomat {

FinalForm FinalFormOf(std::string_view token, const ScanChoices& choices) {
  const std::string_view trimmed = TrimTrailingChars(token, kTrimmedFromWords);
  std::string_view word = trimmed;
  if (IsSet(choices.dropFinalS)) word = DropFinalS(word, choices.letters);
  const bool dropFragments = choices.AllowWith(AllowFlag::kApostrophe) == CheckState::kUnchecked;
  if (dropFragments && IsApostropheFragment(word)) word = {};
  return {trimmed, word};
}

}  // namespace quillomat
