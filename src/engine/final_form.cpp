#include "engine/final_form.h"

#include "engine/word_rules.h"

namespace quillomat {

namespace {

/// Most tokens do, and need no trimming.
bool EndsInSmallLetter(std::string_view token) {
  return !token.empty() && token.back() >= 'a' && token.back() <= 'z';
}

}  // namespace

FinalForm FinalFormOf(std::string_view token, const ScanChoices& choices) {
  const std::string_view trimmed =
      EndsInSmallLetter(token) ? token : TrimTrailingChars(token, kTrimmedFromWords);
  std::string_view word = trimmed;
  if (IsSet(choices.dropFinalS)) word = DropFinalS(word, choices.letters);
  const bool dropFragments = choices.AllowWith(AllowFlag::kApostrophe) == CheckState::kUnchecked;
  if (dropFragments && IsApostropheFragment(word)) word = {};
  return {trimmed, word};
}

}  // namespace quillomat
