#include "app/count/line_ending_warning.h"

#include <string>

#include "base/text_helpers.h"

namespace quillomat {

bool IsWorthAWarning(LineEndingType type) {
  const bool unixAtHome = kPlatformLineBreak == "\n";
  return type == LineEndingType::kZeroLength || type == LineEndingType::kMacintosh ||
         (type == LineEndingType::kUnix && !unixAtHome);
}

void ShowLineEndingWarning(const Messages& messages, LineEndingType type) {
  const std::string title = "Warning";
  switch (type) {
    case LineEndingType::kDos:
      return;
    case LineEndingType::kZeroLength:
      return messages.Warn("This is a zero-length file.", title);
    case LineEndingType::kUnix:
      return messages.Warn("This file has Unix/Linux line endings.", title);
    case LineEndingType::kMacintosh:
      return messages.Warn("This file has Macintosh line endings.", title);
    default:
      return messages.Warn("This file has line endings of an unknown type.", title);
  }
}

}  // namespace quillomat
