// The running program and its environment, as the system sees them.
#pragma once

#include <optional>
#include <string>

namespace quillomat {

/// Nothing when the variable is not set, or empty.
[[nodiscard]] std::optional<std::string> EnvironmentVariable(const std::string& name);

/// The path of the running program's file; "" when the system does not tell.
[[nodiscard]] std::string ProgramPath();

}  // namespace quillomat
