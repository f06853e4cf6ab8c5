// The normal form into which text is brought where words may be made of all letters: Normalization
// Form C of Unicode, and besides
//   - the wide forms of ASCII (U+FF01 to U+FF5E) and the Latin ligatures (U+FB00 to U+FB06) are the
//     characters that they stand for. But wide signs that no word may have stay: they separate
//     words anyhow, and are no markup, as in a page U+FF1C begins no tag,
//   - the typographic apostrophes (U+2018, U+2019, U+02BC) are "'", the hyphens U+2010 and U+2011
//     are "-",
//   - soft hyphens, zero-width joiners and non-joiners, byte-order marks and marks of direction are
//     gone, so they separate nothing.
//
// Text is well-formed UTF-8. A text in normal form, which nearly all is, is not copied.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

enum class DottedCapitalI {
  kKept,
  /// U+0130 becomes "i", its small letter: the only letter outside ASCII whose small letter is
  /// within. For text that will be lower-cased, so that what is ASCII is so before and after it.
  kLowered,
};

/// Whether the character is gone in normal form.
[[nodiscard]] bool IsDropped(char32_t codePoint);

/// The typographic apostrophe that Unicode has among its letters.
inline constexpr char32_t kLetterApostrophe = 0x2BC;

/// The result points into `text` or into `scratch`.
[[nodiscard]] std::string_view NormalForm(std::string_view text, DottedCapitalI dotted,
                                          std::string& scratch);

/// The small letters of `text`, by the simple mapping of Unicode. The result may have to be brought
/// into normal form again.
[[nodiscard]] std::string LowerCaseOfAll(std::string_view text);

/// In normal form, lower-cased, and in normal form again.
[[nodiscard]] std::string NormalLowerCase(std::string_view text);

}  // namespace quillomat
