// Run-time errors and what the user reads about them.
#include "base/run_time_error.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

struct NumberedError {
  RunTimeErrorNumber error;
  int number;
  const char* description;
};

constexpr NumberedError kErrors[] = {
    {RunTimeErrorNumber::kOverflow, 6, "Overflow"},
    {RunTimeErrorNumber::kOutOfMemory, 7, "Out of memory"},
    {RunTimeErrorNumber::kTypeMismatch, 13, "Type mismatch"},
    {RunTimeErrorNumber::kFileNotFound, 53, "File not found"},
    {RunTimeErrorNumber::kDeviceIo, 57, "Device I/O error"},
    {RunTimeErrorNumber::kDiskFull, 61, "Disk full"},
    {RunTimeErrorNumber::kInputPastEnd, 62, "Input past end of file"},
    {RunTimeErrorNumber::kPermissionDenied, 70, "Permission denied"},
    {RunTimeErrorNumber::kPathFileAccess, 75, "Path/File access error"},
    {RunTimeErrorNumber::kPathNotFound, 76, "Path not found"},
    {RunTimeErrorNumber::kInvalidPropertyValue, 380, "Invalid property value"},
};

TEST(RunTimeError, EveryErrorHasItsNumberAndDescription) {
  for (const NumberedError& expected : kErrors) {
    const RunTimeError error(expected.error);
    EXPECT_EQ(error.Number(), expected.number);
    EXPECT_EQ(error.Description(), expected.description);
    EXPECT_STREQ(error.what(), expected.description);
    EXPECT_EQ(DescriptionOf(expected.error), expected.description);
  }
}

}  // namespace
}  // namespace quillomat
