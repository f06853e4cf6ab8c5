// The line above a folder's list, and the text in place of a list without words.
#include <gtest/gtest.h>
#include <string>

#include "listing/list_walk.h"

namespace quillomat {
namespace {

TEST(ScanHeaderText, OneFileWas) {
  EXPECT_EQ(ScanHeaderText(1, 1, ","), "1 file (in 1 folder) was scanned.");
}

TEST(ScanHeaderText, TwoFilesWere) {
  EXPECT_EQ(ScanHeaderText(2, 1, ","), "2 files (in 1 folder) were scanned.");
}

TEST(ScanHeaderText, NoFileWereByTheTwoDifferentTests) {
  EXPECT_EQ(ScanHeaderText(0, 0, ","), "0 file (in 0 folder) were scanned.");
  EXPECT_EQ(ScanHeaderText(0, 1, ","), "0 file (in 1 folder) were scanned.");
}

TEST(ScanHeaderText, OneFileInSeveralFolders) {
  EXPECT_EQ(ScanHeaderText(1, 2, ","), "1 file (in 2 folders) was scanned.");
}

TEST(ScanHeaderText, NumbersAreGrouped) {
  EXPECT_EQ(ScanHeaderText(1'234'567, 1'000, "."),
            "1.234.567 files (in 1.000 folders) were scanned.");
}

TEST(NoWordsMessage, StoreWithoutWords) {
  NoWordsChoices choices;
  choices.shortWordSizeIndex = 3;
  choices.ignoreInfrequentWords = true;
  EXPECT_EQ(NoWordsMessage(choices), "No words satisfying the conditions were found.");
}

NoWordsChoices SomeWords() {
  NoWordsChoices choices;
  choices.numDifferentWords = 7;
  return choices;
}

TEST(NoWordsMessage, OneLetterIsSingular) {
  EXPECT_EQ(NoWordsMessage(SomeWords()),
            "No words with more than 1 letter\r\noccur at least once.");
}

TEST(NoWordsMessage, ShortSizeIsTheIndexPlusOne) {
  NoWordsChoices choices = SomeWords();
  choices.shortWordSizeIndex = 1;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 2 letters\r\noccur at least once.");
  choices.shortWordSizeIndex = 7;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 8 letters\r\noccur at least once.");
}

TEST(NoWordsMessage, ThresholdHasNoEffectUnlessInfrequentWordsAreIgnored) {
  NoWordsChoices choices = SomeWords();
  choices.thresholdFrequencyIndex = 5;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 1 letter\r\noccur at least once.");
}

TEST(NoWordsMessage, LowestThresholdIsTwice) {
  NoWordsChoices choices = SomeWords();
  choices.ignoreInfrequentWords = true;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 1 letter\r\noccur at least twice.");
}

TEST(NoWordsMessage, OtherThresholdsAreTheIndexPlusOne) {
  NoWordsChoices choices = SomeWords();
  choices.ignoreInfrequentWords = true;
  choices.thresholdFrequencyIndex = 1;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 1 letter\r\noccur at least 2 times.");
  choices.thresholdFrequencyIndex = 7;
  EXPECT_EQ(NoWordsMessage(choices), "No words with more than 1 letter\r\noccur at least 8 times.");
}

}  // namespace
}  // namespace quillomat
