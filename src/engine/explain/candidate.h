// What became of a piece of text, and why: for a user who wants to see what a word is under the
// settings at hand.
#pragma once

#include <cstdint>
#include <string>

namespace quillomat {

/// Why a candidate was cut or left out.
enum class CandidateReason : std::uint8_t {
  kNone,
  // By what it is made of; a candidate is cut for these, too.
  /// Signs that words may not hold.
  kSigns,
  kNumerals,
  /// Letters that the western rule does not know.
  kForeignLetters,
  // By the rules on single words.
  kComment,
  /// Nothing but signs that are taken off the end of every word.
  kSignsAlone,
  /// What an apostrophe leaves of a contraction or a possessive.
  kFragment,
  // By the lists.
  kTypedToIgnore,
  kFileToIgnore,
  kNotCountOnly,
  // By its length, whatever the user chooses.
  kTooLongToStore,
  // By the filters.
  kInfrequent,
  kShort,
  kLong,
  kRepetition,
  kRomanNumeral,
  kNoVowel,
  /// Letters of a script without blanks are cut into words, at no sign.
  kUnspaced,
};

enum class CandidateFate : std::uint8_t {
  kCounted,
  kLeftOut,
  /// The candidates behind it are what was cut out of it.
  kCut,
};

struct Candidate {
  /// As it stands in the text; where that cannot be told, as it is scanned.
  std::string text;
  CandidateFate fate = CandidateFate::kCounted;
  CandidateReason reason = CandidateReason::kNone;
  /// Of a word its final form; where it is counted, as the list spells it. Of a cut candidate the
  /// characters at which it was cut, each once, with blanks between them; one that cannot be seen
  /// by itself as "U+00AD". Nothing where it was cut between letters.
  std::string word;
  /// The final form lacks signs that stood at the end, or a final s.
  bool trimmed = false;
  bool lostFinalS = false;
  /// The list spells it as another word before it, which differs in letter case or accents.
  bool spelledAsBefore = false;

  bool operator==(const Candidate&) const = default;
};

}  // namespace quillomat
