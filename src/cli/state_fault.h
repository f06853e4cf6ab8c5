// Why a file cannot be used as a state, in words for people.
#pragma once

#include <string>

namespace quillomat {

/// `description` is that of the run-time error; where the file could be read, but holds something
/// else than a state, that is said, too.
[[nodiscard]] std::string StateFaultText(const std::string& description);

}  // namespace quillomat
