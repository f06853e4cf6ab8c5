// The filters: which of the counted words are listed. They act on the finished store and look at
// the spelling that was first met; an excluded word keeps its count.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/check_state.h"
#include "engine/letter_rule.h"
#include "engine/word_store.h"

namespace quillomat {

/// The numbers of the lists below begin with it.
inline constexpr std::int32_t kFirstListedNumber = 2;

/// The user's choices about the list, as the parameters panel stands when the filters run. The two
/// `...Index` values are places in lists of numbers.
struct FilterChoices {
  CheckState ignoreInfrequentWords = CheckState::kUnchecked;
  std::int32_t thresholdFrequencyIndex = 0;
  CheckState ignoreShortWords = CheckState::kUnchecked;
  std::int32_t shortWordSizeIndex = 0;
  /// In characters; words longer than this are never listed.
  std::int32_t longWordSize = 50;
  CheckState ignoreRepetitions = CheckState::kUnchecked;
  CheckState ignoreRomNum40 = CheckState::kUnchecked;
  CheckState ignoreNoVowelOrY = CheckState::kUnchecked;
  /// As of the scan.
  LetterRule letters = LetterRule::kWestern;
};

/// The filters in the order in which they are asked.
enum class WordFilter : std::uint8_t {
  /// The word passes all of them.
  kNone,
  kInfrequent,
  kShort,
  kLong,
  kRepetition,
  kRomanNumeral,
  kNoVowel,
};

/// The first filter by which the word of a record is not listed.
[[nodiscard]] WordFilter FilterThatExcludes(const WordRec& record, const FilterChoices& choices);

/// Sets `Included` of every record; on so many threads, if there are many words.
void ApplyWordFilters(WordStore& store, const FilterChoices& choices, std::size_t threads = 1);

}  // namespace quillomat
