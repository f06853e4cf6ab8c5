// What became of a candidate of an explained text, in words for the user.
#pragma once

#include <string>

#include "engine/explain/candidate.h"
#include "engine/word_filters.h"
#include "text/program_text.h"

namespace quillomat {

/// "counted", "left out" or "cut".
[[nodiscard]] std::string FateText(CandidateFate fate, const ProgramText& text);

/// Why a candidate was left out, or at which characters it was cut and why; "" for one that was
/// counted. `filters` are those that it was explained with.
[[nodiscard]] std::string ReasonText(const Candidate& candidate, const FilterChoices& filters,
                                     const ProgramText& text);

/// How the final form of a word came to differ from the candidate; "" where there is nothing to
/// tell.
[[nodiscard]] std::string ChangeText(const Candidate& candidate, const ProgramText& text);

}  // namespace quillomat
