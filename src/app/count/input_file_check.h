// Whether a path can be that of an input file. Nothing is shown, and nothing opened.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillomat {

enum class ScanFileResult {
  kDone = 0,
  kFolderNotFile = 1,
  kNotFound = 2,
  kNotSpecified = 3,
  kOutputIsInput = 4,
  kCancelled = 5,
  kNotText = 6,
  kZeroLength = 7,
  kRunTimeError = 9,
  kCannotBeOpened = 11,
};

struct InputFileCheck {
  /// kDone, kFolderNotFile for a path that ends with a separator, or kNotFound.
  ScanFileResult result = ScanFileResult::kDone;
  /// The file's length; nothing where there is none, as of a pipe.
  std::optional<std::int64_t> bytes;
};

/// Blanks around the path do not count.
[[nodiscard]] InputFileCheck CheckInputPath(const std::string& path);

}  // namespace quillomat
