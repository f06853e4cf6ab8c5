// HTML character entities in a text: the ones that stand for letters are decoded, and in HTML files
// the others are skipped as comments.
#pragma once

#include <cstddef>

#include "reference/literal_text.h"

namespace quillomat::reference {

/// The position of the ";" that closes an entity at the start of `text`; 0 when none stands there.
[[nodiscard]] std::size_t HtmlEntityEnd(const Characters& text);

/// Puts the letter in the place of every letter entity.
void DecodeHtmlEntities(Characters& text);

}  // namespace quillomat::reference
