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

/// Whether the output file at `path` may be overwritten, or which one is written instead. All of it
/// is English, as its text is, which names its commands.
[[nodiscard]] InputBox OverwriteQuestion(const std::string& path);

}  // namespace quillomat
