// The system's error numbers, as the rest of the program takes them.
#pragma once

#include <string>
#include <system_error>

namespace quillomat {

/// A value of std::errc where there is one for it, so that it means the same as on other systems.
[[nodiscard]] std::error_code ErrorCodeOf(unsigned long windowsError);

/// The error of the system's last call in this thread.
[[nodiscard]] std::error_code LastErrorCode();

/// The system's words for it, on one line, without a line break at the end.
[[nodiscard]] std::string ErrorText(unsigned long windowsError);

}  // namespace quillomat
