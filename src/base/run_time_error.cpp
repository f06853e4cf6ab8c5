#include "base/run_time_error.h"

namespace quillomat {

std::string DescriptionOf(RunTimeErrorNumber number) {
  switch (number) {
    case RunTimeErrorNumber::kOverflow:
      return "Overflow";
    case RunTimeErrorNumber::kOutOfMemory:
      return "Out of memory";
    case RunTimeErrorNumber::kTypeMismatch:
      return "Type mismatch";
    case RunTimeErrorNumber::kFileNotFound:
      return "File not found";
    case RunTimeErrorNumber::kDeviceIo:
      return "Device I/O error";
    case RunTimeErrorNumber::kDiskFull:
      return "Disk full";
    case RunTimeErrorNumber::kInputPastEnd:
      return "Input past end of file";
    case RunTimeErrorNumber::kPermissionDenied:
      return "Permission denied";
    case RunTimeErrorNumber::kPathFileAccess:
      return "Path/File access error";
    case RunTimeErrorNumber::kPathNotFound:
      return "Path not found";
    case RunTimeErrorNumber::kInvalidPropertyValue:
      return "Invalid property value";
  }
  return "Unknown error";
}

RunTimeError::RunTimeError(RunTimeErrorNumber number)
    : RunTimeError(number, DescriptionOf(number)) {}

RunTimeError::RunTimeError(RunTimeErrorNumber number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

}  // namespace quillomat
