#include "sources/refusal_text.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

const RunTimeError kDenied(RunTimeErrorNumber::kPermissionDenied);

TEST(RefusalText, TellsTheErrorOnlyWhereItSaysMore) {
  EXPECT_EQ(RefusalInColumn(Refusal::kNotFound, kDenied), "not found");
  EXPECT_EQ(RefusalInColumn(Refusal::kCannotBeOpened, kDenied),
            "cannot be opened: Permission denied");
  EXPECT_EQ(RefusalInColumn(Refusal::kFolderUnreadable, std::nullopt), "folder cannot be read");
  EXPECT_EQ(RefusalBehindName(Refusal::kReadFailed, kDenied), "cannot be read: Permission denied");
  EXPECT_EQ(RefusalBehindName(Refusal::kIsFolder, kDenied), "is a folder");
  EXPECT_EQ(RefusalBehindName(Refusal::kFolderNotFound, kDenied), "does not exist; check the path");
}

TEST(RefusalText, OfWhatARunPassesOverTheErrorIsTold) {
  EXPECT_EQ(RefusalInRun(Refusal::kReadFailed, kDenied), "Permission denied");
  EXPECT_EQ(RefusalInRun(Refusal::kFolderUnreadable, kDenied),
            "the folder cannot be read: Permission denied");
  EXPECT_EQ(RefusalInRun(Refusal::kCannotBeOpened, kDenied),
            "the file cannot be opened: Permission denied");
  EXPECT_EQ(RefusalInRun(Refusal::kCannotBeOpened, std::nullopt), "the file cannot be opened");
}

}  // namespace
}  // namespace quillomat
