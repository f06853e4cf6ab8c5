// What the terminal tells of files and folders that were skipped although they should have been
// read.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "app/messages.h"

namespace quillomat {

/// A line for each of `items`, which say what was skipped and why, and one for how many more there
/// are `inAll`.
void PrintSkipped(std::ostream& err, const std::vector<std::string>& items, std::int64_t inAll,
                  const Messages& messages);

}  // namespace quillomat
