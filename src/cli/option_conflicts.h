// Options that do not go together, since one would have no effect on what the other asks for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/command_line.h"

namespace quillomat {

struct OptionConflict {
  std::string option;
  /// "does not go with --list-files", to be read behind the option.
  std::string why;
};

/// Whether an option was given, by its name: one of what the run does, or one of a setting that was
/// not given as its opposite.
[[nodiscard]] bool IsGiven(const CommandLine& options, std::string_view name);

/// The first conflict; nothing where all go together. What the text itself decides is not known
/// yet.
[[nodiscard]] std::optional<OptionConflict> FindConflict(const CommandLine& options);

}  // namespace quillomat
