// Which characters make up words under given settings.
//
// By the western rule a letter is A-Z, a-z or a Latin-1 letter (U+00C0-U+00FF except the signs
// U+00D7 and U+00F7). By the rule for all languages it is what Unicode calls a letter, with the
// marks behind it, and a digit is a decimal digit of any script. Besides letters a word may hold
// the "extra" characters that the user allows; these are ASCII. No other character is ever part of
// a word.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/utf8.h"
#include "engine/letter_rule.h"
#include "engine/unicode_traits.h"

namespace quillomat {

/// A run of word characters is never counted past this many; the rest starts a word of its own.
inline constexpr std::size_t kMaxWordRun = 65'000;

/// Whether `ch`, a text of one character, is a word character. `extras` is consulted for ASCII
/// only. An empty `ch` is none.
[[nodiscard]] bool IsWordChar(std::string_view ch, bool allowDigits, std::string_view extras);

/// How many consecutive word characters stand in `text` from the character number `start` (1-based)
/// on; at most kMaxWordRun. A mark is one behind a letter.
[[nodiscard]] std::size_t CountWordChars(std::string_view text, std::size_t start, bool allowDigits,
                                         std::string_view extras,
                                         LetterRule letters = LetterRule::kWestern);

/// Whether a decimal digit of any script occurs in `text`.
[[nodiscard]] bool ContainsDigit(std::string_view text);

/// Whether any character of `set` (ASCII) occurs in `text`.
[[nodiscard]] bool ContainsAnyOf(std::string_view text, std::string_view set);

/// IsWordChar for fixed settings, as a table.
class CharClass {
 public:
  /// The class that knows letters only.
  CharClass() : CharClass(false, {}) {}
  CharClass(bool allowDigits, std::string_view extras, LetterRule letters = LetterRule::kWestern);

  /// The number of bytes of the word character that starts at byte `position` of `text`, or 0 when
  /// no word character starts there. `position` is inside `text`. Marks are none by themselves.
  [[nodiscard]] std::size_t WordCharBytes(std::string_view text, std::size_t position) const {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte < 0x80) return kinds_[byte] & kInside;
    return letters_ == LetterRule::kAll ? WideCharBytes(text, position)
                                        : LatinLetterBytes(text, position);
  }

  /// How many bytes the run of word characters has that starts at `position`; at most kMaxWordRun
  /// characters belong to one. A mark belongs to it behind a letter, or behind another mark there.
  [[nodiscard]] std::size_t RunBytes(std::string_view text, std::size_t position) const;

  /// Whether a word may start with the character at byte `position` of `text`: letters may, and of
  /// the extra characters all but "-'.,()".
  [[nodiscard]] bool MayStartWord(std::string_view text, std::size_t position) const {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte < 0x80) return (kinds_[byte] & kStart) != 0;
    return WordCharBytes(text, position) != 0;
  }

 private:
  static constexpr std::uint8_t kInside = 1;
  static constexpr std::uint8_t kStart = 2;

  /// 2 when a Latin-1 letter of U+00C0-U+00FF starts at `position`, else 0. In UTF-8 these are the
  /// lead byte C3 with 80-BF behind it; 97 and B7 are the multiplication and the division sign.
  static std::size_t LatinLetterBytes(std::string_view text, std::size_t position) {
    if (static_cast<unsigned char>(text[position]) != 0xC3 || position + 1 >= text.size()) return 0;
    const auto next = static_cast<unsigned char>(text[position + 1]);
    return (next & 0xC0U) == 0x80 && next != 0x97 && next != 0xB7 ? 2 : 0;
  }

  [[nodiscard]] std::size_t WideCharBytes(std::string_view text, std::size_t position) const {
    const Utf8Character character = CharacterAt(text, position);
    return UnicodeTraits::Get().Is(character.codePoint, wideKinds_) ? character.bytes : 0;
  }
  [[nodiscard]] std::size_t WideRunBytes(std::string_view text, std::size_t position) const;

  std::array<std::uint8_t, 128> kinds_{};
  LetterRule letters_;
  /// What is a word character, of those above 127.
  std::uint8_t wideKinds_;
};

}  // namespace quillomat
