// Which text the command line has named, checked as far as that can be done without reading any of
// it: a pipe must be opened once only.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "sources/output_rules.h"

namespace quillomat {

struct InputChoice {
  enum class Kind {
    kFile,
    kFolder,
    /// Files, folders and standard input, counted together.
    kPaths,
    kClipboard,
  };

  Kind kind = Kind::kPaths;
  /// One, but for kPaths. "-" is standard input, except as a folder. To be explained: the text.
  std::vector<std::string> paths;

  /// For messages.
  [[nodiscard]] std::string Name() const;
  /// Whether the user has named that very file, not just a folder that it is in.
  [[nodiscard]] bool IsNamed(const std::string& path) const;
  /// What a count of it reads.
  [[nodiscard]] CountedText AsText(bool withSubfolders) const;
};

/// A single path of a folder is as good as --folder.
[[nodiscard]] InputChoice InputOf(const CommandLine& options);

[[nodiscard]] bool IsStandardInput(const std::string& path);
/// The path, or what standard input is called in messages.
[[nodiscard]] std::string NameOf(const std::string& path);

/// Why it cannot be counted, and the way out; more than the window would say.
[[nodiscard]] std::optional<std::string> FindInputFault(const InputChoice& input);

}  // namespace quillomat
