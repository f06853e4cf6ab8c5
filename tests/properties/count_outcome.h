// What comes of a case, in words that can be compared and read: everything that the rules say about
// results, and nothing about how they were reached.
#pragma once

#include <string>

#include "properties/count_case.h"

namespace quillomat::properties {

/// How the engine is given its text.
enum class Reading { kByLines, kInBlocks, kInParts, kOnThreads };

/// By the program's own engine and listing.
[[nodiscard]] std::string OutcomeOfProgram(const CountCase& countCase, Reading reading);

/// By the literal engine.
[[nodiscard]] std::string OutcomeOfReference(const CountCase& countCase);

}  // namespace quillomat::properties
