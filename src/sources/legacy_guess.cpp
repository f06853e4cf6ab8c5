#include "sources/legacy_guess.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <uchardet.h>

#include "base/line_decoder.h"
#include "base/text_decoder.h"
#include "base/utf8.h"
#include "engine/unicode_traits.h"
#include "sources/converted_source.h"
#include "system/system_decoder.h"

namespace quillomat {
namespace {

struct DetectorCloser {
  void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};
using Detector = std::unique_ptr<uchardet, DetectorCloser>;

struct Utf8Figures {
  /// Of several bytes.
  std::int64_t characters = 0;
  std::int64_t brokenBytes = 0;
};

Utf8Figures FiguresOf(std::string_view bytes) {
  Utf8Decoder decoder;
  std::string text;
  decoder.Decode(bytes, text);
  decoder.End(text);
  const auto leads = std::ranges::count_if(
      text, [](char ch) { return (static_cast<unsigned char>(ch) & 0xC0U) == 0xC0U; });
  const std::int64_t broken = decoder.BytesNotDecoded();
  return {leads - broken, broken};  // each broken byte has become a character
}

/// Whether it has at least twice as many characters of several bytes as bytes that are none of
/// UTF-8. In another set that is as good as impossible.
bool IsNearlyUtf8(std::string_view head) {
  constexpr std::int64_t kCharactersForOneBroken = 2;
  const auto [characters, brokenBytes] = FiguresOf(head);
  return characters > 0 && characters >= brokenBytes * kCharactersForOneBroken;
}

/// Whether a line has bytes beyond ASCII and none of them is of UTF-8: then the lines are of
/// several kinds.
bool HasLineOfAnotherSet(std::string_view head) {
  head.remove_suffix(UnfinishedUtf8Bytes(head));
  while (!head.empty()) {
    const std::size_t lineBytes = std::min(FindLineEnd(head) + 1, head.size());
    const auto [characters, brokenBytes] = FiguresOf(head.substr(0, lineBytes));
    if (characters == 0 && brokenBytes > 0) return true;
    head.remove_prefix(lineBytes);
  }
  return false;
}

/// By what the library knows of languages.
CharacterSet Detected(std::string_view head) {
  const Detector detector(uchardet_new());
  if (uchardet_handle_data(detector.get(), head.data(), head.size()) != 0) {
    return CharacterSet::kAsFound;
  }
  uchardet_data_end(detector.get());
  const std::optional<CharacterSet> set = FindCharacterSet(uchardet_get_charset(detector.get()));
  // It takes short texts in sets that it does not know for UTF-8.
  const bool isGuess = set && set != CharacterSet::kUtf8 && CanDecode(*set);
  return isGuess ? *set : CharacterSet::kAsFound;
}

/// The larger set where the library names one that holds fewer of the same letters: what the head
/// lacks, the rest of the text may have.
CharacterSet Widened(CharacterSet set) {
  switch (set) {
    case CharacterSet::kKoi8R:
      return CharacterSet::kKoi8U;
    case CharacterSet::kIso8859Part1:
      return CharacterSet::kWindows1252;
    case CharacterSet::kIso8859Part8:
      return CharacterSet::kWindows1255;
    case CharacterSet::kIso8859Part9:
      return CharacterSet::kWindows1254;
    default:
      return set;
  }
}

constexpr auto kLatinSets = std::to_array<CharacterSet>(
    {CharacterSet::kWindows1250, CharacterSet::kWindows1252, CharacterSet::kWindows1254,
     CharacterSet::kWindows1257, CharacterSet::kWindows1258, CharacterSet::kIso8859Part2,
     CharacterSet::kIso8859Part3, CharacterSet::kIso8859Part4, CharacterSet::kIso8859Part10,
     CharacterSet::kIso8859Part13, CharacterSet::kIso8859Part14, CharacterSet::kIso8859Part15,
     CharacterSet::kIso8859Part16, CharacterSet::kIbm852});

constexpr auto kSetsOfTwoBytes = std::to_array<CharacterSet>(
    {CharacterSet::kShiftJis, CharacterSet::kEucJp, CharacterSet::kGb18030, CharacterSet::kBig5,
     CharacterSet::kEucKr});

constexpr char32_t kLastOfAscii = 0x7F;

/// Which the library does not know, or hardly; the more frequent ones first.
constexpr auto kOldSets = std::to_array<CharacterSet>(
    {CharacterSet::kIbm850, CharacterSet::kMacRoman, CharacterSet::kIbm852});

bool IsBeyondAscii(char ch) {
  return static_cast<unsigned char>(ch) > 0x7F;
}

std::size_t BytesBeyondAscii(std::string_view head) {
  return static_cast<std::size_t>(std::ranges::count_if(head, IsBeyondAscii));
}

/// What the library says of English with one word in French: few texts are in them.
constexpr auto kRareSets = std::to_array<CharacterSet>(
    {CharacterSet::kIso8859Part3, CharacterSet::kIso8859Part4, CharacterSet::kIso8859Part10,
     CharacterSet::kIso8859Part13, CharacterSet::kIso8859Part16, CharacterSet::kIbm852});

/// Windows-1252 where `set` is a rare one, hardly a byte is beyond ASCII, and each of these is a
/// letter there; otherwise `set`. A page may be markup for the most part, so both count: how few
/// they are, and of how many.
CharacterSet UsualSetIfLikelier(std::string_view head, CharacterSet set) {
  constexpr std::size_t kBytesForOneBeyond = 100;
  constexpr std::size_t kTooFew = 8;
  if (std::ranges::find(kRareSets, set) == kRareSets.end()) return set;
  const std::size_t beyondAscii = BytesBeyondAscii(head);
  const bool isHardlyAny = beyondAscii <= kTooFew && beyondAscii * kBytesForOneBeyond < head.size();
  const bool areLetters = std::ranges::all_of(head, [](char ch) {
    const auto byte = static_cast<unsigned char>(ch);
    return !IsBeyondAscii(ch) || (byte >= 0xC0 && byte < 0xFF);
  });
  return isHardlyAny && areLetters ? CharacterSet::kWindows1252 : set;
}

/// Characters beyond ASCII that do not stand where they do in texts: controls, signs within words,
/// capitals behind small letters.
class OddCharacters {
 public:
  void Take(char32_t character) {
    Settle(IsLetter(character));
    const bool isCapital = IsLetter(character) && traits_.Of(character).toLower != 0;
    if (character > kLastOfAscii) {
      if (IsNone(character) || (isCapital && isBehindSmall_)) Count(character);
      const bool isSign = !IsLetter(character) && !IsNone(character) && !IsUsual(character);
      isSignBehindLetter_ = isSign && isBehindLetter_;
    }
    last_ = character;
    isBehindLetter_ = IsLetter(character);
    isBehindSmall_ = isBehindLetter_ && !isCapital;
  }
  [[nodiscard]] std::size_t Number() const { return number_; }
  /// Different ones.
  [[nodiscard]] std::size_t Kinds() const { return kinds_.size(); }

 private:
  void Count(char32_t character) {
    ++number_;
    kinds_.insert(character);
  }
  /// A sign is within a word if a letter follows.
  void Settle(bool isLetterBehind) {
    if (isSignBehindLetter_ && isLetterBehind) Count(last_);
    isSignBehindLetter_ = false;
  }
  [[nodiscard]] bool IsLetter(char32_t character) const {
    constexpr char32_t kCircumflex = 0x2C6;  // a letter by name alone
    return character != kCircumflex && traits_.Is(character, CodePointTraits::kLetter);
  }
  static bool IsNone(char32_t character) {
    return character == kReplacementCharacter || (character >= 0x80 && character < 0xA0);
  }
  /// Signs that texts have between letters.
  static bool IsUsual(char32_t character) {
    constexpr std::u32string_view kUsual =
        U"\u00A0\u00A3\u00A6\u00A9\u00AB\u00AD\u00AE\u00B0\u00B4\u00B7\u00BB\u00D7"
        U"\u2013\u2014\u2018\u2019\u201C\u201D\u2022\u2026\u2122";
    return kUsual.find(character) != kUsual.npos;
  }

  const UnicodeTraits& traits_ = UnicodeTraits::Get();
  bool isBehindLetter_ = false;
  bool isBehindSmall_ = false;
  bool isSignBehindLetter_ = false;
  char32_t last_ = 0;
  std::size_t number_ = 0;
  std::set<char32_t> kinds_;
};

/// A set, with what would be odd in it.
struct JudgedSet {
  CharacterSet set;
  std::size_t odd;
  std::size_t kinds;
};

JudgedSet Judged(std::string_view head, CharacterSet set) {
  OddCharacters odd;
  const std::string text = ConvertedHead(head, set);
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Character character = CharacterAt(text, at);
    odd.Take(character.codePoint);
    at += character.bytes;
  }
  return {set, odd.Number(), odd.Kinds()};
}

/// A set that has the letters of another in other places. What is a letter in one is a control, a
/// sign or a capital within words in the other, which the library does not ask.
struct Sibling {
  CharacterSet set;
  CharacterSet other;
};
constexpr auto kSiblings = std::to_array<Sibling>({
    {CharacterSet::kWindows1250, CharacterSet::kIso8859Part2},
    {CharacterSet::kIso8859Part2, CharacterSet::kWindows1250},
    {CharacterSet::kWindows1252, CharacterSet::kIso8859Part15},
    {CharacterSet::kIso8859Part15, CharacterSet::kWindows1252},
    {CharacterSet::kIso8859Part4, CharacterSet::kWindows1252},
});

/// The sibling where that has hardly an odd character and the judged one has some.
JudgedSet SiblingIfLikelier(std::string_view head, const JudgedSet& judged) {
  constexpr std::size_t kFewest = 2;
  constexpr std::size_t kTimesAsMany = 4;
  const auto* const found = std::ranges::find(kSiblings, judged.set, &Sibling::set);
  if (found == kSiblings.end() || judged.odd < kFewest || !CanDecode(found->other)) {
    return judged;
  }
  const JudgedSet sibling = Judged(head, found->other);
  return sibling.odd * kTimesAsMany < judged.odd ? sibling : judged;
}

bool IsAsciiLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

/// Whether a text that is taken for Chinese, Japanese or Korean is one of Latin letters: an
/// accented letter and the one behind it can be a character of such a set, which then stands
/// between two letters.
bool IsOfLatinLetters(std::string_view head, CharacterSet set) {
  constexpr std::size_t kOfHowManyOneIsBetween = 3;
  if (std::ranges::find(kSetsOfTwoBytes, set) == kSetsOfTwoBytes.end()) return false;
  const std::string text = ConvertedHead(head, set);
  std::size_t beyondAscii = 0;
  std::size_t between = 0;
  bool wasLetter = false;
  bool isBehindLetter = false;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Character character = CharacterAt(text, at);
    at += character.bytes;
    const bool isLetter = IsAsciiLetter(character.codePoint);
    if (isBehindLetter && isLetter) ++between;
    isBehindLetter = character.codePoint > kLastOfAscii && wasLetter;
    if (character.codePoint > kLastOfAscii) ++beyondAscii;
    wasLetter = isLetter;
  }
  return between * kOfHowManyOneIsBetween > beyondAscii;
}

/// The old set in which hardly a character is odd, where too many are in the judged one.
CharacterSet OldSetIfLikelier(std::string_view head, const JudgedSet& judged) {
  constexpr std::size_t kFewest = 4;
  constexpr std::size_t kFewestKinds = 2;
  constexpr std::size_t kBytesForOneOdd = 5;
  constexpr std::size_t kTimesAsMany = 4;
  const std::size_t odd = judged.odd;
  const std::size_t beyondAscii = BytesBeyondAscii(head);
  // One sign alone may stand between words.
  if (judged.kinds < kFewestKinds || odd < kFewest || odd * kBytesForOneOdd < beyondAscii) {
    return judged.set;
  }
  CharacterSet best = judged.set;
  std::size_t fewest = odd;
  for (const CharacterSet old : kOldSets) {
    if (!CanDecode(old)) continue;
    const std::size_t oddInOld = Judged(head, old).odd;
    if (oddInOld * kTimesAsMany >= odd || oddInOld >= fewest) continue;
    fewest = oddInOld;
    best = old;
  }
  return best;
}

/// By what would be odd in it; other sets than Latin ones stay.
CharacterSet LikeliestBeside(std::string_view head, CharacterSet set) {
  if (std::ranges::find(kLatinSets, set) == kLatinSets.end()) return set;
  return OldSetIfLikelier(head, SiblingIfLikelier(head, Judged(head, set)));
}

}  // namespace

CharacterSet GuessLegacySet(std::string_view head) {
  if (IsNearlyUtf8(head)) {
    return HasLineOfAnotherSet(head) ? CharacterSet::kAsFound : CharacterSet::kUtf8;
  }
  constexpr CharacterSet kSetOfOtherLines = CharacterSet::kWindows1252;
  const CharacterSet detected = UsualSetIfLikelier(head, Widened(Detected(head)));
  const bool isKnown = detected != CharacterSet::kAsFound && !IsOfLatinLetters(head, detected);
  const CharacterSet likeliest = LikeliestBeside(head, isKnown ? detected : kSetOfOtherLines);
  return isKnown || likeliest != kSetOfOtherLines ? likeliest : CharacterSet::kAsFound;
}

}  // namespace quillomat
