// In which files a word occurs, and how often.
#include "engine/file_tally.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "base/run_time_error.h"
#include "engine/word_store.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

class FilesOfWords : public testing::Test {
 protected:
  FilesOfWords() { store.Files().Reset(true); }

  void Meet(const std::string& word, const std::string& path, int times = 1) {
    store.Files().SetFileBeingScanned(path);
    for (int i = 0; i < times; ++i) store.AddWord(word);
  }

  /// Goes on to the file of that number, which is a new one each time.
  void NumberFilesUpTo(std::int32_t number) {
    while (store.Files().CurrentFileNumber() < number) {
      store.Files().SetFileBeingScanned("file " +
                                        std::to_string(store.Files().CurrentFileNumber() + 1));
      store.Files().NoteCurrentFile();
    }
  }

  const FileTally& FilesOf(std::int32_t index) {
    const FileTally* const files = store.FilesOf(index);
    if (files == nullptr) throw std::logic_error("files are not tracked");
    return *files;
  }

  WordStore store;
};

TEST_F(FilesOfWords, OccurrencesAreKeptFileByFile) {
  NumberFilesUpTo(1);
  Meet("dog", "second", 3);
  NumberFilesUpTo(4);
  Meet("dog", "fifth");
  EXPECT_THAT(FilesOf(1).FileNumbers, ElementsAre(2, 5));
  EXPECT_THAT(FilesOf(1).FileCounts, ElementsAre(3, 1));
  EXPECT_EQ(FilesOf(1).NumFiles(), 2);
  EXPECT_EQ(store.At(1).Count, 4);
}

TEST_F(FilesOfWords, FilesAreNumberedFromOneAsTheirFirstWordComes) {
  Meet("dog", "a.txt");
  store.Files().SetFileBeingScanned("without-words.txt");
  Meet("cat", "b.txt");
  EXPECT_THAT(store.Files().FileList(), ElementsAre("", "a.txt", "b.txt"));
  EXPECT_EQ(store.Files().CurrentFileNumber(), 2);
}

TEST_F(FilesOfWords, EachWordHasItsOwnFilesWhateverTheirOrderInTheStore) {
  Meet("zebra", "1.txt");
  Meet("ant", "2.txt", 2);
  Meet("zebra", "2.txt");
  EXPECT_THAT(FilesOf(1).FileNumbers, ElementsAre(2));
  EXPECT_THAT(FilesOf(1).FileCounts, ElementsAre(2));
  EXPECT_THAT(FilesOf(2).FileNumbers, ElementsAre(1, 2));
  EXPECT_THAT(FilesOf(2).FileCounts, ElementsAre(1, 1));
}

TEST_F(FilesOfWords, StoreThatHasBeenLookedAtGoesOnCounting) {
  Meet("zebra", "1.txt");
  Meet("ant", "1.txt");
  EXPECT_EQ(store.At(1).Word, "ant");
  Meet("zebra", "2.txt");
  EXPECT_THAT(FilesOf(2).FileNumbers, ElementsAre(1, 2));
  EXPECT_THAT(FilesOf(1).FileNumbers, ElementsAre(1));
}

TEST_F(FilesOfWords, LongWordNumbersNoFile) {
  Meet(std::string(101, 'a'), "a.txt");
  EXPECT_EQ(store.Files().CurrentFileNumber(), 0);
}

TEST_F(FilesOfWords, SpellingsOfOneWordShareItsFiles) {
  Meet("Café", "1.txt");
  Meet("cafe", "2.txt");
  EXPECT_EQ(FilesOf(1).NumFiles(), 2);
}

TEST_F(FilesOfWords, WordMetTooOftenInOneFileIsAnOverflow) {
  Meet("dog", "a.txt", 32'767);
  EXPECT_THAT(FilesOf(1).FileCounts, ElementsAre(32'767));
  try {
    store.AddWord("dog");
    FAIL() << "the 32,768th occurrence was counted";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
}

TEST_F(FilesOfWords, WithoutAListOfFilesAWordMayOccurAnyNumberOfTimesInOne) {
  store.Files().Reset(true, TallyUse::kUnlisted);
  Meet("dog", "a.txt", 32'768);
  Meet("dog", "b.txt", 70'000);
  EXPECT_THAT(FilesOf(1).FileCounts, ElementsAre(32'768, 70'000));
}

TEST_F(FilesOfWords, AnotherFileStartsItsOwnCount) {
  Meet("dog", "a.txt", 32'767);
  Meet("dog", "b.txt", 2);
  EXPECT_THAT(FilesOf(1).FileCounts, ElementsAre(32'767, 2));
}

TEST_F(FilesOfWords, AllFilesOfAWordAreKept) {
  for (int file = 1; file <= 8001; ++file) Meet("dog", "file " + std::to_string(file), 2);
  EXPECT_EQ(FilesOf(1).NumFiles(), 8001);
  EXPECT_EQ(FilesOf(1).FileNumbers.back(), 8001);
  EXPECT_EQ(FilesOf(1).FileCounts.back(), 2);
  EXPECT_EQ(store.At(1).Count, 16'002);
}

// The record of them that display formats show.

TEST_F(FilesOfWords, RecordIsFullWithEightThousandFiles) {
  for (int file = 1; file <= 8001; ++file) Meet("dog", "file " + std::to_string(file));
  EXPECT_EQ(FilesOf(1).ListedFiles(), 8000U);
  EXPECT_EQ(store.At(1).Count, 8001);
}

TEST_F(FilesOfWords, FullRecordCountsNoMoreInItsLastFileEither) {
  for (int file = 1; file < 8000; ++file) Meet("dog", "file " + std::to_string(file), 3);
  Meet("dog", "the last", 5);
  EXPECT_EQ(FilesOf(1).ListedFiles(), 8000U);
  EXPECT_EQ(FilesOf(1).ListedCount(7998), 3);
  EXPECT_EQ(FilesOf(1).ListedCount(7999), 1);
  EXPECT_EQ(FilesOf(1).FileCounts.back(), 5);
}

TEST_F(FilesOfWords, FullRecordIsNoLimit) {
  for (int file = 1; file < 8000; ++file) Meet("dog", "file " + std::to_string(file));
  Meet("dog", "the last", 32'768);
  Meet("dog", "one more", 32'768);
  EXPECT_EQ(FilesOf(1).FileCounts.back(), 32'768);
}

TEST_F(FilesOfWords, ManyOccurrencesAtOnceAreLikeOneAfterTheOther) {
  FileTally together;
  FileTally oneByOne;
  for (std::int32_t file = 1; file <= 8002; ++file) {
    const std::int32_t times = file % 3;
    together.CountWordInFile(file, times);
    for (std::int32_t i = 0; i < times; ++i) oneByOne.CountWordInFile(file);
  }
  EXPECT_EQ(together.FileNumbers, oneByOne.FileNumbers);
  EXPECT_EQ(together.FileCounts, oneByOne.FileCounts);
}

TEST_F(FilesOfWords, RecordTakesSoManyOccurrencesInOneFile) {
  FileTally tally;
  EXPECT_FALSE(tally.ExceedsRecord());
  tally.CountWordInFile(1, 32'767);
  EXPECT_FALSE(tally.ExceedsRecord());
  tally.CountWordInFile(1);
  EXPECT_TRUE(tally.ExceedsRecord());
  tally.CountWordInFile(2);
  EXPECT_FALSE(tally.ExceedsRecord());
}

TEST_F(FilesOfWords, FileNumberOfFiveDigitsIsTheLastInTheRecord) {
  NumberFilesUpTo(99'998);
  Meet("dog", "the last");
  Meet("dog", "one more", 32'768);
  Meet("cat", "one more", 2);
  EXPECT_EQ(store.Files().CurrentFileNumber(), 100'000);
  EXPECT_THAT(FilesOf(2).FileNumbers, ElementsAre(99'999, 100'000));
  EXPECT_EQ(FilesOf(2).ListedFiles(), 1U);
  EXPECT_EQ(FilesOf(2).FileCounts.back(), 32'768);
  EXPECT_THAT(FilesOf(1).FileNumbers, ElementsAre(100'000));
  EXPECT_EQ(FilesOf(1).ListedFiles(), 0U);
  EXPECT_EQ(store.At(1).Count, 2);
}

TEST_F(FilesOfWords, ResetForgetsTheFiles) {
  Meet("dog", "a.txt");
  store.Clear();
  store.Files().Reset(true);
  EXPECT_THAT(store.Files().FileList(), ElementsAre(""));
  EXPECT_EQ(store.Files().CurrentFileNumber(), 0);
  Meet("dog", "b.txt");
  EXPECT_THAT(FilesOf(1).FileNumbers, ElementsAre(1));
}

TEST(UntrackedFiles, AreNeitherNumberedNorKept) {
  WordStore store;
  store.Files().SetFileBeingScanned("a.txt");
  store.AddWord("dog");
  EXPECT_FALSE(store.Files().IsOn());
  EXPECT_EQ(store.FilesOf(1), nullptr);
  EXPECT_EQ(store.Files().CurrentFileNumber(), 0);
}

}  // namespace
}  // namespace quillomat
