// Run-time errors: the failures that the operating system or the arithmetic reports while the
// program works, each with the number and the description that the user is shown. They are the only
// exceptions that cross a module's border; whoever starts a piece of work decides whether to trap
// them.
#pragma once

#include <stdexcept>
#include <string>

namespace quillomat {

enum class RunTimeErrorNumber {
  kOverflow = 6,
  kOutOfMemory = 7,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kDeviceIo = 57,
  kDiskFull = 61,
  kInputPastEnd = 62,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kInvalidPropertyValue = 380,
};

/// The description that belongs to a number, e.g. "Disk full" for 61.
[[nodiscard]] std::string DescriptionOf(RunTimeErrorNumber number);

class RunTimeError : public std::runtime_error {
 public:
  explicit RunTimeError(RunTimeErrorNumber number);
  /// With a description that says more than that of the number.
  RunTimeError(RunTimeErrorNumber number, const std::string& description);

  [[nodiscard]] int Number() const { return static_cast<int>(number_); }
  [[nodiscard]] std::string Description() const { return what(); }

 private:
  RunTimeErrorNumber number_;
};

[[nodiscard]] inline bool IsOutOfMemory(const RunTimeError& error) {
  return error.Number() == static_cast<int>(RunTimeErrorNumber::kOutOfMemory);
}

}  // namespace quillomat
