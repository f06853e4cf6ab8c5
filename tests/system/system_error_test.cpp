#include "system/system_error.h"

#include <array>

#include "system/desktop_test.h"

namespace quillomat {
namespace {

int NumberFor(std::errc condition, FileAction action) {
  return ToRunTimeError(make_error_code(condition), action, "/tmp/x").Number();
}

TEST(SystemError, EachConditionHasItsNumber) {
  struct Case {
    std::errc condition;
    int number;
  };
  constexpr std::array<Case, 12> kCases{{{std::errc::no_space_on_device, 61},
                                         {std::errc::file_too_large, 61},
                                         {std::errc::permission_denied, 70},
                                         {std::errc::operation_not_permitted, 70},
                                         {std::errc::text_file_busy, 70},
                                         {std::errc::read_only_file_system, 75},
                                         {std::errc::is_a_directory, 75},
                                         {std::errc::too_many_files_open, 75},
                                         {std::errc::not_a_directory, 76},
                                         {std::errc::not_enough_memory, 7},
                                         {std::errc::broken_pipe, 57},
                                         {std::errc::io_error, 57}}};
  for (const Case& each : kCases) {
    EXPECT_EQ(NumberFor(each.condition, FileAction::kTransfer), each.number);
  }
}

TEST(SystemError, MissingMeansWhatWasAskedFor) {
  constexpr auto kMissing = std::errc::no_such_file_or_directory;
  EXPECT_EQ(NumberFor(kMissing, FileAction::kOpenToRead), 53);
  EXPECT_EQ(NumberFor(kMissing, FileAction::kOpenToWrite), 76);
  EXPECT_EQ(NumberFor(kMissing, FileAction::kUseFolder), 76);
}

TEST(SystemError, UnknownErrorIsOneOfTheDevice) {
  const std::error_code code(1, std::iostream_category());
  EXPECT_EQ(ToRunTimeError(code, FileAction::kTransfer).Number(), 57);
}

}  // namespace
}  // namespace quillomat
