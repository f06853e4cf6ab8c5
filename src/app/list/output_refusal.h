// What the user is told when an output file is refused, and asked when it exists.
#pragma once

#include <string>
#include <string_view>

#include "app/messages.h"
#include "sources/output_rules.h"
#include "ui/desktop.h"

namespace quillomat {

void RefuseOutputFile(const Messages& messages, NeededAs neededAs);

/// The title of OverwriteQuestion.
inline constexpr std::string_view kOverwriteTitle = "The output file exists.";

/// Whether the file at `path` may be overwritten, or which one is written instead. `cancelText` is
/// the line that says what "Cancel" does.
[[nodiscard]] InputBox OverwriteQuestion(const std::string& path, const std::string& cancelText);

}  // namespace quillomat
