#include "engine/word_filters.h"

#include "base/utf8.h"
#include "engine/char_class.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

bool IsExcludedRepetition(std::string_view word, std::int32_t length, LetterRule letters) {
  const bool startsWithDigit =
      (word[0] >= '0' && word[0] <= '9') ||
      (letters == LetterRule::kAll && ContainsDigit(word.substr(0, CharacterAt(word, 0).bytes)));
  return length > 1 && !startsWithDigit && IsRepetition(word);
}

}  // namespace

WordFilter FilterThatExcludes(const WordRec& record, const FilterChoices& choices) {
  using enum WordFilter;
  const auto length = static_cast<std::int32_t>(CharacterCount(record.Word));
  if (IsSet(choices.ignoreInfrequentWords) &&
      record.Count < choices.thresholdFrequencyIndex + kFirstListedNumber) {
    return kInfrequent;
  }
  if (IsSet(choices.ignoreShortWords) && length < choices.shortWordSizeIndex + kFirstListedNumber) {
    return kShort;
  }
  if (length > choices.longWordSize) return kLong;
  if (IsSet(choices.ignoreRepetitions) &&
      IsExcludedRepetition(record.Word, length, choices.letters)) {
    return kRepetition;
  }
  if (IsSet(choices.ignoreRomNum40) && IsRomanNumeral(record.Word, true)) return kRomanNumeral;
  const bool needsVowel = IsSet(choices.ignoreNoVowelOrY);
  return needsVowel && LacksVowel(record.Word, true, choices.letters) ? kNoVowel : kNone;
}

void ApplyWordFilters(WordStore& store, const FilterChoices& choices) {
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    const WordFilter filter = FilterThatExcludes(store.At(index), choices);
    store.SetIncluded(index, filter == WordFilter::kNone);
  }
}

}  // namespace quillomat
