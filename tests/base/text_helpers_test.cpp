// Blanks, padding, replacing, digit grouping.
#include "base/text_helpers.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillomat {
namespace {

TEST(TrimBlanks, TakesBlanksOffBothEnds) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
}

TEST(TrimBlanks, TakesNothingButBlanks) {
  EXPECT_EQ(TrimBlanks("\t a\r\n"), "\t a\r\n");
  EXPECT_EQ(TrimBlanks(" \u00A0 "), "\u00A0");
}

TEST(TrimBlanks, LeavesNothingOfBlanksAlone) {
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimBlanks(""), "");
}

TEST(TrimRightBlanks, TakesBlanksOffTheEndOnly) {
  EXPECT_EQ(TrimRightBlanks("  a  "), "  a");
  EXPECT_EQ(TrimRightBlanks("a\t  "), "a\t");
  EXPECT_EQ(TrimRightBlanks("   "), "");
  EXPECT_EQ(TrimRightBlanks(""), "");
}

TEST(Padding, FillsUpToTheWidth) {
  EXPECT_EQ(PadLeft("42", 5), "   42");
}

TEST(Padding, NeverCuts) {
  EXPECT_EQ(PadLeft("12345", 3), "12345");
  EXPECT_EQ(PadLeft("123", 3), "123");
}

TEST(Padding, CountsCharactersNotBytes) {
  EXPECT_EQ(PadLeft("né", 4), "  né");
}

TEST(Padding, FillsAnEmptyText) {
  EXPECT_EQ(PadLeft("", 2), "  ");
}

TEST(ReplaceAll, ReplacesFromLeftToRightWithoutOverlap) {
  EXPECT_EQ(ReplaceAll("a---b", "--", " "), "a -b");
  EXPECT_EQ(ReplaceAll("----", "--", " "), "  ");
}

TEST(ReplaceAll, DoesNotLookAtWhatItPutIn) {
  EXPECT_EQ(ReplaceAll("aa", "a", "aa"), "aaaa");
}

TEST(ReplaceAll, LeavesATextWithoutMatches) {
  EXPECT_EQ(ReplaceAll("a-b", "--", " "), "a-b");
  EXPECT_EQ(ReplaceAll("", "--", " "), "");
}

TEST(ReplaceAll, ReplacesAtBothEnds) {
  EXPECT_EQ(ReplaceAll("--a--", "--", ""), "a");
}

TEST(JoinWithBlanks, PutsSingleBlanksBetweenTheItems) {
  EXPECT_EQ(JoinWithBlanks(std::vector<std::string>{"dog", "cat", "e-mail"}), "dog cat e-mail");
  EXPECT_EQ(JoinWithBlanks(std::vector<std::string>{"dog"}), "dog");
  EXPECT_EQ(JoinWithBlanks({}), "");
}

TEST(JoinWithBlanks, EmptyItemsKeepTheirPlace) {
  EXPECT_EQ(JoinWithBlanks(std::vector<std::string>{"", "dog", ""}), " dog ");
}

TEST(OnOneLine, RunOfLineBreaksBecomesOneBlank) {
  EXPECT_EQ(OnOneLine("one\r\ntwo\nthree\rfour"), "one two three four");
  EXPECT_EQ(OnOneLine("one\r\n\r\ntwo"), "one two");
}

TEST(OnOneLine, NothingIsLeftOfBreaksAndBlanksAtTheEnd) {
  EXPECT_EQ(OnOneLine("one two  \r\n"), "one two");
  EXPECT_EQ(OnOneLine("\r\n"), "");
}

TEST(OnOneLine, LeavesBlanksInsideALine) {
  EXPECT_EQ(OnOneLine("one  two"), "one  two");
}

TEST(GroupDigits, PutsTheSeparatorBetweenGroupsOfThree) {
  EXPECT_EQ(GroupDigits(1'234'567, ","), "1,234,567");
  EXPECT_EQ(GroupDigits(1'000, "."), "1.000");
  EXPECT_EQ(GroupDigits(2'147'483'647, ","), "2,147,483,647");
}

TEST(GroupDigits, LeavesUpToThreeDigits) {
  EXPECT_EQ(GroupDigits(0, ","), "0");
  EXPECT_EQ(GroupDigits(999, ","), "999");
}

TEST(GroupDigits, TakesAnySeparator) {
  EXPECT_EQ(GroupDigits(12'345, "\u00A0"), "12\u00A0345");
  EXPECT_EQ(GroupDigits(12'345, ""), "12345");
}

TEST(LineBreaks, AreThoseOfTheWindowAndOfThePlatform) {
  EXPECT_EQ(kCrLf, "\r\n");
#ifdef _WIN32
  EXPECT_EQ(kPlatformLineBreak, "\r\n");
#else
  EXPECT_EQ(kPlatformLineBreak, "\n");
#endif
}

}  // namespace
}  // namespace quillomat
