// What is wrong with a text to be counted, as far as it can be seen without opening a file.
#pragma once

#include <string>

#include "engine/word_scanner.h"
#include "sources/count_request.h"
#include "sources/count_result.h"

namespace quillomat {

/// kNone if nothing is. Throws RunTimeError when a folder may not be read. Yields while it looks
/// for the files of a folder; what it answers after a stop means nothing.
[[nodiscard]] Refusal FaultOf(const CountSource& source, const std::string& outputPath,
                              ScanYield& yield);

/// Whether the list cannot be written there since the text needs it, for a folder or a list of
/// paths; kNone also for a path that is empty.
[[nodiscard]] Refusal OutputFaultOf(const CountSource& source, const std::string& outputPath);

}  // namespace quillomat
