// The files that a run in the terminal writes: the list's, exports, the report, a state. What is
// wrong with them is told before anything is counted, and none is written that is needed.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/count/in_force.h"
#include "app/program.h"
#include "cli/command_line.h"
#include "sources/output_rules.h"

namespace quillomat {

inline constexpr std::string_view kListTarget = "--output";
inline constexpr std::string_view kStateTarget = "--save-state";

struct Target {
  /// That names it.
  std::string_view option;
  std::string path;
};

/// The path that stands for standard output, where exports may go.
[[nodiscard]] bool IsStandardOutput(const std::string& path);

/// The files of a run that lists into `listPath`, "" for standard output; that one comes first.
[[nodiscard]] std::vector<Target> TargetsOf(const CommandLine& options,
                                            const std::string& listPath);

/// Which two of them are one file, however each is spelled and through links; nothing if none are.
/// A device may be written twice.
[[nodiscard]] std::optional<std::string> FindDoubleTarget(std::span<const Target> targets);

/// Why the file cannot be written, and the way out; nothing if it can. Leaves it as it is.
[[nodiscard]] std::optional<std::string> FindWriteFault(const Target& target);

/// Has `write` write the file, unless it is read by the count of `text`, or holds something that
/// the user wants to be warned of. What went wrong, naming the file; nothing if it was written.
[[nodiscard]] std::optional<std::string> WriteTarget(const Target& target, const Program& program,
                                                     const std::function<void()>& write);

/// What WriteTarget would refuse, told before anything is counted: `text` is what will be.
[[nodiscard]] std::optional<std::string> FindLoss(const Target& target, const Program& program,
                                                  const CountedText& text);

}  // namespace quillomat
