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

/// The position (1-based, in characters) of the ";" that closes an entity at the start of `text`,
/// or 0 when none starts there: "&", then a letter or "#", at least 4 characters up to and with a
/// ";" among the first 20, and no blank before it.
[[nodiscard]] std::size_t HtmlEntityEnd(std::string_view text);

}  // namespace quillomat
