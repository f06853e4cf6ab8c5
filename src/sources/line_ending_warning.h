// The warning about a words file whose line ends are not what this system writes. It is read all
// the same.
#pragma once

#include "sources/line_endings.h"
#include "sources/run_context.h"

namespace quillomat {

/// Whether files of that type are what this system's own programs write: DOS files everywhere, Unix
/// files everywhere but on Windows.
[[nodiscard]] bool IsNativeLineEnding(LineEndingType type);

/// Tells the user about the line ends. DOS files are never worth a word.
void ShowLineEndingWarning(const RunContext& context, LineEndingType type);

}  // namespace quillomat
