// --explain: what becomes of every piece of a text, in place of a list.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "sources/count_request.h"
#include "text/program_text.h"

namespace quillomat {

/// How the text is scanned.
enum class ExplainedAs : std::uint8_t { kOnePiece, kLines };

/// A line for each candidate of `text` under the choices and lists of `request`, whose source does
/// not matter: the candidate, what became of it, and the word as it is listed, or why it was cut or
/// left out; then, where the word is another than the candidate, how it came to be. Tabs stand
/// between them; those of the text, and its line breaks, are blanks.
[[nodiscard]] std::string ExplanationLines(std::string_view text, ExplainedAs as,
                                           const CountRequest& request, const ProgramText& texts);

}  // namespace quillomat
