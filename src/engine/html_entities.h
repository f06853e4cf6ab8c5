// Named character entities in text. The 62 entities for Latin-1 letters are decoded in every text,
// not only in HTML; all others ("&amp;", "&#233;") are left as they are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

/// Replaces the letter entities of `text`. Names are matched exactly, letter case included. An
/// ampersand without a known entity hides whatever follows up to the next ";".
void DecodeHtmlEntities(std::string& text);

/// The same for every one of `lines`, in which a name counts in any letter case if `anyCase` (as in
/// a line that was lower-cased before). Puts the result into `decoded` and returns true; or returns
/// false when there is nothing to replace.
[[nodiscard]] bool DecodeHtmlEntitiesOfLines(std::string_view lines, bool anyCase,
                                             std::string& decoded);

/// The same for a part of one line, cut where no entity that is decoded lies across. `hidden` says,
/// before and behind the part, whether an ampersand hides what follows up to the next ";".
[[nodiscard]] bool DecodeHtmlEntitiesOfPart(std::string_view part, bool anyCase, bool& hidden,
                                            std::string& decoded);

/// The most characters that HtmlEntityEnd takes for an entity.
inline constexpr std::size_t kLongestHtmlEntity = 20;

/// The position (1-based, in characters) of the ";" that closes an entity at the start of `text`,
/// or 0 when none starts there: "&", then a letter or "#", at least 4 characters up to and with a
/// ";" among the first kLongestHtmlEntity, and no blank before it.
[[nodiscard]] std::size_t HtmlEntityEnd(std::string_view text);

/// The same where nothing but ASCII is met up to that ";", as in nearly all entities; kNotPlain
/// where another character is. (A std::optional would come back by way of the memory, which takes
/// longer than to look.) `text` starts with "&". With `inLines` it holds lines as they stand in a
/// file: no entity goes beyond its line, and two hyphens stand for a blank.
[[nodiscard]] std::size_t EndOfPlainHtmlEntity(std::string_view text, bool inLines);
inline constexpr std::size_t kNotPlain = std::string_view::npos;

}  // namespace quillomat
