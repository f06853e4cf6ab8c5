#include "sources/line_endings.h"

#include <gtest/gtest.h>
#include <string>

#include "support/permissions.h"
#include "support/temporary_folder.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

using Type = LineEndingType;

constexpr std::size_t kMaximum = 10'240;

class LineEndings : public ::testing::Test {
 protected:
  [[nodiscard]] Type TypeOf(const std::string& contents, std::size_t maximum = kMaximum) const {
    return GetLineEndingType(folder_.Write("text.txt", contents), maximum);
  }

  TemporaryFolder folder_;
};

TEST_F(LineEndings, TheTypesHaveTheirCodes) {
  EXPECT_EQ(static_cast<int>(Type::kDos), 1);
  EXPECT_EQ(static_cast<int>(Type::kUnix), 2);
  EXPECT_EQ(static_cast<int>(Type::kMacintosh), 3);
  EXPECT_EQ(static_cast<int>(Type::kNotText), 0);
  EXPECT_EQ(static_cast<int>(Type::kNotFound), -1);
  EXPECT_EQ(static_cast<int>(Type::kZeroLength), -2);
  EXPECT_EQ(static_cast<int>(Type::kCannotBeOpened), -3);
}

TEST_F(LineEndings, AreToldFromTheBreaksThatOccur) {
  EXPECT_EQ(TypeOf("one\r\ntwo\r\n"), Type::kDos);
  EXPECT_EQ(TypeOf("one\ntwo\n"), Type::kUnix);
  EXPECT_EQ(TypeOf("one\rtwo\r"), Type::kMacintosh);
  EXPECT_EQ(TypeOf("no break at all"), Type::kDos);
  EXPECT_EQ(TypeOf("one\rtwo\nthree"), Type::kDos);
}

TEST_F(LineEndings, EveryControlCharacterButTabAndBreaksMakesItNoText) {
  for (int code = 0; code < 32; ++code) {
    const bool harmless = code == 9 || code == 10 || code == 13;
    const std::string contents = "text" + std::string(1, static_cast<char>(code)) + "text";
    EXPECT_EQ(TypeOf(contents) != Type::kNotText, harmless) << code;
  }
}

TEST_F(LineEndings, HighBytesAreText) {
  EXPECT_EQ(TypeOf("caf\xE9\x7F\x80\xFF\n"), Type::kUnix);
  EXPECT_EQ(TypeOf("café\n"), Type::kUnix);
}

TEST_F(LineEndings, OnlyTheFirstCharactersAreLookedAt) {
  const std::string clean(kMaximum, 'a');
  EXPECT_EQ(TypeOf(clean + '\x01'), Type::kDos);
  EXPECT_EQ(TypeOf(clean.substr(1) + '\x01'), Type::kNotText);
  EXPECT_EQ(TypeOf(clean + '\n'), Type::kDos);
  EXPECT_EQ(TypeOf(clean.substr(1) + '\n'), Type::kUnix);
}

TEST_F(LineEndings, AMaximumBeyondOnePieceIsReadPieceByPiece) {
  const std::string clean(40'000, 'a');
  EXPECT_EQ(TypeOf(clean + '\x01', 40'000), Type::kDos);
  EXPECT_EQ(TypeOf(clean + '\x01', 40'001), Type::kNotText);
  EXPECT_EQ(TypeOf(clean + '\n', 50'000), Type::kUnix);
}

TEST_F(LineEndings, AMissingFileAFolderAndAnEmptyFileAreTold) {
  EXPECT_EQ(GetLineEndingType(folder_ / "nowhere.txt", kMaximum), Type::kNotFound);
  EXPECT_EQ(GetLineEndingType(folder_.Path(), kMaximum), Type::kNotFound);
  EXPECT_EQ(GetLineEndingType("", kMaximum), Type::kNotFound);
  EXPECT_EQ(TypeOf(""), Type::kZeroLength);
}

TEST_F(LineEndings, AFileThatMayNotBeReadCannotBeOpened) {
  const std::string path = folder_.Write("secret.txt", "text");
  const ClosedFile closed(path);
  const int type =
      AsOrdinaryUser([&] { return static_cast<int>(GetLineEndingType(path, kMaximum)) & 0xFF; });
  EXPECT_EQ(type, static_cast<int>(Type::kCannotBeOpened) & 0xFF);
}

TEST_F(LineEndings, Utf16IsJudgedAsTheTextThatItIs) {
  const std::string little(
      "\xFF\xFE"
      "a\0\n\0b\0",
      8);
  const std::string big(
      "\xFE\xFF"
      "\0a\0\r\0b",
      8);
  const std::string control(
      "\xFF\xFE"
      "a\0\x01\0",
      6);
  EXPECT_EQ(TypeOf(little), Type::kUnix);
  EXPECT_EQ(TypeOf(big), Type::kMacintosh);
  EXPECT_EQ(TypeOf(control), Type::kNotText);
}

}  // namespace
}  // namespace quillomat
