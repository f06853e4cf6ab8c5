// The warning about a words file whose line ends are not what this system writes. It is read all
// the same.
#pragma once

#include "app/messages.h"
#include "sources/line_endings.h"

namespace quillomat {

/// Whether a file of that type can be read but is not what this system's own programs write. DOS
/// files are at home everywhere, Unix files everywhere but on Windows.
[[nodiscard]] bool IsWorthAWarning(LineEndingType type);

/// Tells the user about the line ends. DOS files are never worth a word.
void ShowLineEndingWarning(const Messages& messages, LineEndingType type);

}  // namespace quillomat
