// Scans whole lines of a text that is at hand, each in the quickest way that it allows.
#pragma once

#include <string_view>

#include "engine/long_line.h"

namespace quillomat {

/// Scans `text`, whole lines as they stand in a file, to its end or to a stop. Throws RunTimeError
/// 6 when a counter overflows.
void ScanWholeLines(const LongLine::Scan& scan, std::string_view text);

}  // namespace quillomat
