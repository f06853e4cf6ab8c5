// What the user's choices mean to the scanner.
#include "engine/scan_settings.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillomat {
namespace {

using Markers = std::array<std::string, 2>;

std::size_t Number(AllowFlag flag) {
  return static_cast<std::size_t>(flag);
}

bool AllSet(const AllowFlagSet& flags) {
  return std::all_of(flags.begin(), flags.end(), [](bool flag) { return flag; });
}

bool NoneSet(const AllowFlagSet& flags) {
  return std::none_of(flags.begin(), flags.end(), [](bool flag) { return flag; });
}

/// The flags that the words of a words file leave set.
AllowFlagSet FlagsNotedFor(std::string_view word) {
  ScanSettings settings;
  settings.NoteListWordChars(word);
  return settings.ListCharFlags;
}

class ScanSettingsTest : public testing::Test {
 protected:
  ScanSettingsTest() {
    choices.startComment = {"begin", "rem"};
    choices.endComment = {"end", ""};
  }

  ScanChoices choices;
  ScanSettings settings;
};

TEST_F(ScanSettingsTest, EachBoxSetsItsOwnFlag) {
  for (std::size_t box = 0; box < kAllowFlagCount; ++box) {
    choices.allowWordsWith.fill(CheckState::kUnchecked);
    choices.allowWordsWith[box] = CheckState::kChecked;
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
    for (std::size_t flag = 0; flag < kAllowFlagCount; ++flag) {
      EXPECT_EQ(settings.AllowFlags[flag], flag == box);
    }
    EXPECT_EQ(settings.ExtraWordChars, kAllowFlagChars[box]);
  }
}

TEST_F(ScanSettingsTest, FlagsStandForTheirCharactersInTheFixedOrder) {
  const std::array<std::string_view, kAllowFlagCount> expected = {
      "-", "'", "_", ":", "\\", "/", "()", ".", ",", "@", "0123456789"};
  EXPECT_EQ(kAllowFlagChars, expected);
  EXPECT_EQ(Number(AllowFlag::kHyphen), 0U);
  EXPECT_EQ(Number(AllowFlag::kApostrophe), 1U);
  EXPECT_EQ(Number(AllowFlag::kUnderscore), 2U);
  EXPECT_EQ(Number(AllowFlag::kColon), 3U);
  EXPECT_EQ(Number(AllowFlag::kBackslash), 4U);
  EXPECT_EQ(Number(AllowFlag::kForwardSlash), 5U);
  EXPECT_EQ(Number(AllowFlag::kParentheses), 6U);
  EXPECT_EQ(Number(AllowFlag::kPeriod), 7U);
  EXPECT_EQ(Number(AllowFlag::kComma), 8U);
  EXPECT_EQ(Number(AllowFlag::kAtSign), 9U);
  EXPECT_EQ(Number(AllowFlag::kNumerals), 10U);
}

TEST_F(ScanSettingsTest, CheckboxInTheGreyStateCountsAsClear) {
  choices.allowWordsWith.fill(CheckState::kGrayed);
  settings.SetAllowWordsFlags(choices);
  settings.BuildExtraWordChars();
  EXPECT_TRUE(NoneSet(settings.AllowFlags));
  EXPECT_EQ(settings.ExtraWordChars, "");
}

TEST_F(ScanSettingsTest, ClearedBoxClearsTheFlagOfTheLastCount) {
  settings.AllowFlags.fill(true);
  settings.SetAllowWordsFlags(choices);
  EXPECT_TRUE(NoneSet(settings.AllowFlags));
}

TEST_F(ScanSettingsTest, WordsFileMayHoldEveryCharacterWhateverIsChecked) {
  settings.ReadingWordList = true;
  settings.SetAllowWordsFlags(choices);
  EXPECT_TRUE(AllSet(settings.AllowFlags));
}

TEST_F(ScanSettingsTest, EveryFlagPutsItsCharactersInFront) {
  settings.AllowFlags.fill(true);
  settings.BuildExtraWordChars();
  EXPECT_EQ(settings.ExtraWordChars, "0123456789@,.()/\\:_'-");
}

TEST_F(ScanSettingsTest, ExtraCharactersAreBuiltAnew) {
  settings.ExtraWordChars = "?";
  settings.AllowFlags[Number(AllowFlag::kUnderscore)] = true;
  settings.BuildExtraWordChars();
  EXPECT_EQ(settings.ExtraWordChars, "_");
}

TEST_F(ScanSettingsTest, HtmlPresetHidesTagsAndEntities) {
  settings.SetCommentMarkers("HTML", choices);
  EXPECT_EQ(settings.CommentStart, (Markers{"<", "&"}));
  EXPECT_EQ(settings.CommentEnd, (Markers{">", ";"}));
}

TEST_F(ScanSettingsTest, CPresetHidesBlockAndLineComments) {
  settings.SetCommentMarkers("C", choices);
  EXPECT_EQ(settings.CommentStart, (Markers{"/*", "//"}));
  EXPECT_EQ(settings.CommentEnd, (Markers{"*/", ""}));
}

TEST_F(ScanSettingsTest, EmptyPresetClearsTheMarkers) {
  settings.SetCommentMarkers("C", choices);
  settings.SetCommentMarkers("", choices);
  EXPECT_EQ(settings.CommentStart, (Markers{}));
  EXPECT_EQ(settings.CommentEnd, (Markers{}));
}

TEST_F(ScanSettingsTest, PresetNamesAreComparedExactly) {
  for (const std::string_view preset : {"html", "Html", "c", "HTML ", "user"}) {
    settings.SetCommentMarkers("HTML", choices);
    settings.SetCommentMarkers(preset, choices);
    EXPECT_EQ(settings.CommentStart, (Markers{"begin", "rem"})) << preset;
    EXPECT_EQ(settings.CommentEnd, (Markers{"end", ""})) << preset;
  }
}

TEST_F(ScanSettingsTest, NewMarkersLeaveAnOpenCommentOpen) {
  settings.OpenComment = 1;
  for (const std::string_view preset : {"HTML", "C", "", "user"}) {
    settings.SetCommentMarkers(preset, choices);
    EXPECT_EQ(settings.OpenComment, 1) << preset;
  }
}

TEST_F(ScanSettingsTest, StartsOutsideComments) {
  EXPECT_EQ(settings.OpenComment, -1);
}

TEST_F(ScanSettingsTest, EachClassIsNotedForAnyOfItsCharacters) {
  for (std::size_t noted = 0; noted < kAllowFlagCount; ++noted) {
    for (const char ch : kAllowFlagChars[noted]) {
      const AllowFlagSet flags = FlagsNotedFor(std::string("a") + ch + "b");
      for (std::size_t flag = 0; flag < kAllowFlagCount; ++flag) {
        EXPECT_EQ(flags[flag], flag == noted) << ch;
      }
    }
  }
}

TEST_F(ScanSettingsTest, PlainWordNotesNothing) {
  EXPECT_TRUE(NoneSet(FlagsNotedFor("café")));
}

TEST_F(ScanSettingsTest, NotedClassesAddUpUntilTheyAreCleared) {
  settings.NoteListWordChars("e-mail");
  settings.NoteListWordChars("o'clock");
  settings.NoteListWordChars("plain");
  EXPECT_TRUE(settings.ListCharFlags[Number(AllowFlag::kHyphen)]);
  EXPECT_TRUE(settings.ListCharFlags[Number(AllowFlag::kApostrophe)]);
  EXPECT_EQ(std::count(settings.ListCharFlags.begin(), settings.ListCharFlags.end(), true), 2);
  settings.ClearListCharFlags();
  EXPECT_TRUE(NoneSet(settings.ListCharFlags));
}

TEST_F(ScanSettingsTest, NotingWordsAllowsNothingByItself) {
  settings.NoteListWordChars("e-mail");
  EXPECT_TRUE(NoneSet(settings.AllowFlags));
}

}  // namespace
}  // namespace quillomat
