// The text that an interruption leaves on standard error (see interruption.h). For the files of
// this folder.
#pragma once

#include <string_view>

namespace quillomat {

/// Of SetLastWords. May be called by a signal handler.
[[nodiscard]] std::string_view LastWords() noexcept;

}  // namespace quillomat
