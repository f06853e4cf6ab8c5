// What is said when something is not found in the output text box, which may hold but the first
// words of the list: where in the list it stands.
#pragma once

#include <string>
#include <string_view>

#include "app/list/output_box.h"
#include "listing/display_format.h"
#include "listing/list_line.h"
#include "text/program_text.h"

namespace quillomat {

/// `part`: what the box holds of the list of `words`, which stands in that order. `separator`
/// stands between groups of digits.
[[nodiscard]] std::string NotFoundText(std::string_view wanted, const ListPart& part,
                                       const CountedWords& words, WordOrder order,
                                       const ProgramText& text, std::string_view separator);

}  // namespace quillomat
