// The bytes of a text in memory.
#include "base/byte_source.h"

#include <array>
#include <gtest/gtest.h>
#include <string_view>

namespace quillomat {
namespace {

TEST(TextSource, FillsTheFrontOfTheBufferAndGoesOnWhereItStopped) {
  TextSource source("abcde");
  std::array<char, 3> buffer{};
  EXPECT_EQ(source.Read(buffer), 3U);
  EXPECT_EQ(std::string_view(buffer.data(), 3), "abc");
  EXPECT_EQ(source.Read(buffer), 2U);
  EXPECT_EQ(std::string_view(buffer.data(), 2), "de");
}

TEST(TextSource, GivesNothingAtTheEndHoweverOftenAsked) {
  TextSource source("a");
  std::array<char, 4> buffer{};
  EXPECT_EQ(source.Read(buffer), 1U);
  EXPECT_EQ(source.Read(buffer), 0U);
  EXPECT_EQ(source.Read(buffer), 0U);
}

TEST(TextSource, AnEmptyTextGivesNothing) {
  TextSource source({});
  std::array<char, 4> buffer{};
  EXPECT_EQ(source.Read(buffer), 0U);
}

TEST(TextSource, AnEmptyBufferTakesNothingFromTheText) {
  TextSource source("ab");
  EXPECT_EQ(source.Read({}), 0U);
  std::array<char, 4> buffer{};
  EXPECT_EQ(source.Read(buffer), 2U);
}

TEST(TextSource, GivesZeroBytesToo) {
  using std::string_view_literals::operator""sv;
  TextSource source("a\0b"sv);
  std::array<char, 4> buffer{};
  ASSERT_EQ(source.Read(buffer), 3U);
  EXPECT_EQ(std::string_view(buffer.data(), 3), "a\0b"sv);
}

}  // namespace
}  // namespace quillomat
