#include "engine/word_filters.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/in_parts.h"
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

/// A bit for a letter of ASCII, the same for its capital.
constexpr std::uint32_t BitOf(char letter) {
  constexpr unsigned kLetterBits = 0x1F;
  return 1U << (static_cast<unsigned>(letter) & kLetterBits);
}

constexpr std::uint32_t BitsOf(std::string_view letters) {
  std::uint32_t bits = 0;
  for (const char letter : letters) bits |= BitOf(letter);
  return bits;
}

/// Whether the first letters of a word tell that it passes all filters that ask for its letters, as
/// those of nearly all words do: there is a vowel or y, a letter that is no sign of a small Roman
/// numeral, and another. Without a branch for each letter: which is the first vowel cannot be
/// foreseen.
bool HasUsualLetters(std::string_view word) {
  constexpr std::size_t kLooked = 8;
  constexpr unsigned kToSmall = 0x20;
  std::uint32_t bits = 0;
  const auto look = [&bits](char ch) {
    const unsigned small = static_cast<unsigned char>(ch) | kToSmall;
    bits |= small - 'a' <= 'z' - 'a' ? BitOf(ch) : 0;
  };
  if (word.size() >= kLooked) {
    for (std::size_t i = 0; i < kLooked; ++i) look(word[i]);
  } else {
    for (const char ch : word) look(ch);
  }
  const bool areTwo = (bits & (bits - 1)) != 0;
  return areTwo && (bits & BitsOf("aeiouy")) != 0 && (bits & ~BitsOf("ivx")) != 0;
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
  if (HasUsualLetters(record.Word)) return kNone;
  if (IsSet(choices.ignoreRepetitions) && IsExcludedRepetition(record.Word, choices.letters)) {
    return kRepetition;
  }
  if (IsSet(choices.ignoreRomNum40) && IsRomanNumeral(record.Word, true)) return kRomanNumeral;
  const bool needsVowel = IsSet(choices.ignoreNoVowelOrY);
  return needsVowel && LacksVowel(record.Word, true, choices.letters) ? kNoVowel : kNone;
}

void ApplyWordFilters(WordStore& store, const FilterChoices& choices, std::size_t threads) {
  store.Sort(threads);
  const auto words = static_cast<std::size_t>(store.NumDifferentWords());
  ForEachPart(PartsOf(words, threads), [&](const Part& part, std::size_t /*number*/) {
    for (std::size_t place = part.begin; place < part.end; ++place) {
      const auto index = static_cast<std::int32_t>(place + 1);
      const WordFilter filter = FilterThatExcludes(store.At(index), choices);
      store.SetIncluded(index, filter == WordFilter::kNone);
    }
  });
}

}  // namespace quillomat
