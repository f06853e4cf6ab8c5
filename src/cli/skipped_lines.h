// What the terminal tells of files and folders that were not read.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "app/messages.h"
#include "sources/count_result.h"

namespace quillomat {

/// Of what should have been read: a line for each of `items`, which say what was skipped and why,
/// and one for how many more there are `inAll`.
void PrintSkipped(std::ostream& err, const std::vector<std::string>& items, std::int64_t inAll,
                  const Messages& messages);

/// One line for all files that were left out by design, if there are any.
void PrintLeftOut(std::ostream& err, const LeftOut& leftOut, const Messages& messages);

}  // namespace quillomat
