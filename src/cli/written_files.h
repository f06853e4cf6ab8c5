// What an interruption says of the files that a run in the terminal has written by then.
#pragma once

#include <span>
#include <string>

namespace quillomat {

/// A line with its end, of one path or more.
[[nodiscard]] std::string LineOfWrittenFiles(std::span<const std::string> paths);

}  // namespace quillomat
