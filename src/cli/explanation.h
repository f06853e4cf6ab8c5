// --explain: what becomes of every piece of a text, in place of a list.
#pragma once

#include <span>
#include <string>

#include "engine/explain/candidate.h"
#include "engine/word_filters.h"
#include "text/program_text.h"

namespace quillomat {

/// A line for each of the candidates, which were explained with `filters`: the candidate, what
/// became of it, and the word as it is listed, or why it was cut or left out; then, where the word
/// is another than the candidate, how it came to be. Tabs stand between them; those of the text,
/// and its line breaks, are blanks.
[[nodiscard]] std::string ExplanationLines(std::span<const Candidate> candidates,
                                           const FilterChoices& filters, const ProgramText& texts);

}  // namespace quillomat
