// What is wrong with the arguments, in words for people, and before the library reads them: it
// would pass over some of it, and name its own parts for the rest.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace quillomat {

/// The first fault of the arguments (without the program's name) by themselves: an option that is
/// unknown, lacks its value, has one although it takes none, or is given once too often.
[[nodiscard]] std::optional<std::string> FindArgumentFault(const CLI::App& app,
                                                           std::span<const std::string> arguments);

/// Takes a whole number from `least` to `most`, and says so of another.
[[nodiscard]] CLI::Validator WholeNumberFrom(std::int32_t least, std::int32_t most);

}  // namespace quillomat
