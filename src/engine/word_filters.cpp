#include "engine/word_filters.h"

#include <algorithm>
#include <cstddef>

#include "base/utf8.h"
#include "engine/char_class.h"
#include "engine/word_rules.h"

namespace quillomat {
namespace {

/// Whether the word has fewer characters than `characters`. Bytes are at least as many as
/// characters and at most four times as many, so most words need no counting.
bool IsShorterThan(std::string_view word, std::int32_t characters) {
  constexpr std::size_t kMostBytes = 4;
  const auto limit = static_cast<std::size_t>(std::max(characters, 0));
  if (word.size() < limit) return true;
  return word.size() < kMostBytes * limit && CharacterCount(word) < limit;
}

bool IsExcludedRepetition(std::string_view word, LetterRule letters) {
  const bool startsWithDigit =
      (word[0] >= '0' && word[0] <= '9') ||
      (letters == LetterRule::kAll && ContainsDigit(word.substr(0, CharacterAt(word, 0).bytes)));
  return !startsWithDigit && IsRepetition(word) && !IsShorterThan(word, 2);
}

}  // namespace

WordFilter FilterThatExcludes(const WordRec& record, const FilterChoices& choices) {
  using enum WordFilter;
  if (IsSet(choices.ignoreInfrequentWords) &&
      record.Count < choices.thresholdFrequencyIndex + kFirstListedNumber) {
    return kInfrequent;
  }
  if (IsSet(choices.ignoreShortWords) &&
      IsShorterThan(record.Word, choices.shortWordSizeIndex + kFirstListedNumber)) {
    return kShort;
  }
  if (!IsShorterThan(record.Word, choices.longWordSize + 1)) return kLong;
  if (IsSet(choices.ignoreRepetitions) && IsExcludedRepetition(record.Word, choices.letters)) {
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
