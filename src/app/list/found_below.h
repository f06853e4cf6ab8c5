// What is said of a word that the list holds below the output text box, which may have room but for
// the first words: where in the list it stands.
#pragma once

#include <string>
#include <string_view>

#include "app/list/output_box.h"
#include "listing/display_format.h"
#include "listing/list_line.h"
#include "text/program_text.h"

namespace quillomat {

/// "rank 2,412, frequency 19, below the end of this text", of the word itself, else of the first
/// one that holds what is wanted; "" where the list has neither below. `part`: what the box holds
/// of the list of `words`, which stands in that order. `separator` stands between groups of digits.
[[nodiscard]] std::string FoundBelowText(std::string_view wanted, const ListPart& part,
                                         const CountedWords& words, WordOrder order,
                                         const ProgramText& text, std::string_view separator);

}  // namespace quillomat
