// The system's error codes as run-time errors: the one place where they are translated.
#pragma once

#include <string>
#include <system_error>

#include "base/run_time_error.h"

namespace quillomat {

/// What was being done: something missing means another thing to a reader than to a writer.
enum class FileAction {
  kOpenToRead,  // missing: "File not found", or "Path not found" when its folder is missing as well
  kOpenToWrite,  // missing: "Path not found"
  kUseFolder,    // missing, or not a folder: "Path not found"
  kTransfer      // reading, writing, closing an open file
};

/// `path` may be empty for kTransfer.
[[nodiscard]] RunTimeError ToRunTimeError(const std::error_code& code, FileAction action,
                                          const std::string& path = {});

}  // namespace quillomat
