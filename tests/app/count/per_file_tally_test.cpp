// Count-only words from a folder: in how many files, and in which, each word occurs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PerFileTally : public SourcesFixture {
 protected:
  void Put(const std::string& name, const std::string& contents) {
    static_cast<void>(folder.Write("texts/" + name, contents));
  }

  void CountTexts() {
    Main().txbFile[1].SetText(folder / "list.txt");
    Panel().chkWarnOnOverwrite.SetChecked(false);
    CountFolder(folder / "texts");
  }

  void ListAs(DisplayFormat format) {
    Main().cboDisplayFormat.SetListIndex(static_cast<int>(format));
  }

  [[nodiscard]] std::string ListFile() const { return TextOf(folder / "list.txt"); }

  [[nodiscard]] const FileTally& TallyOf(const std::string& word) {
    for (std::int32_t i = 1; i <= Words().store.NumDifferentWords(); ++i) {
      const FileTally* files = Words().store.FilesOf(i);
      if (Words().store.At(i).Word == word && files != nullptr) return *files;
    }
    ADD_FAILURE() << word << " has no files";
    return none_;
  }
  [[nodiscard]] const std::vector<std::string>& FileList() {
    return Words().store.Files().FileList();
  }

 private:
  FileTally none_;
};

TEST_F(PerFileTally, EachWordHasItsFilesAndItsOccurrencesInEach) {
  TypeWords(WordListKind::kCountOnly, "cat dog");
  Put("1.txt", "nothing of it");
  Put("2.txt", "cat Cat dog CAT");
  Put("3.txt", "dog");
  Put("4.txt", "mouse");
  Put("5.txt", "cat");
  CountTexts();
  EXPECT_THAT(FileList(), ElementsAre("", folder / "texts/2.txt", folder / "texts/3.txt",
                                      folder / "texts/5.txt"));
  EXPECT_THAT(TallyOf("cat").FileNumbers, ElementsAre(1, 3));
  EXPECT_THAT(TallyOf("cat").FileCounts, ElementsAre(3, 1));
  EXPECT_THAT(TallyOf("dog").FileNumbers, ElementsAre(1, 2));
  EXPECT_THAT(TallyOf("dog").FileCounts, ElementsAre(1, 1));
  EXPECT_EQ(Words().folder.filesScanned, 5);
}

TEST_F(PerFileTally, TheNumberOfFilesIsListedBesideTheFrequency) {
  TypeWords(WordListKind::kCountOnly, "cat dog");
  Put("a.txt", "cat cat dog");
  Put("b.txt", "cat");
  ListAs(DisplayFormat::kWordFreqNoFiles);
  CountTexts();
  const std::string header = "2 files (in 1 folder) were scanned.\r\n";
  EXPECT_EQ(Output(), header +
                          "  Word     Freq   No. files\r\n"
                          "  cat         3    2\r\n"
                          "  dog         1    1\r\n");
}

TEST_F(PerFileTally, TheFilesOfEachWordAreListedWithinTheFolder) {
  TypeWords(WordListKind::kCountOnly, "cat dog");
  Put("a.txt", "cat cat dog");
  Put("sub/b.txt", "cat");
  IncludeSubfolders();
  ListAs(DisplayFormat::kWordFileList);
  CountTexts();
  const std::string header =
      "2 files (in 2 folders) were scanned.\r\n\r\n{Folder} = " + (folder / "texts") + "\r\n\r\n";
  EXPECT_EQ(Output(),
            header + NativePaths("cat\r\n    {Folder}/a.txt\r\n    {Folder}/sub/b.txt\r\n\r\n"
                                 "dog\r\n    {Folder}/a.txt\r\n\r\n"));
  ListAs(DisplayFormat::kWordFileListFreq);
  EXPECT_EQ(Output(),
            header + NativePaths("cat\r\n    2 {Folder}/a.txt\r\n    1 {Folder}/sub/b.txt\r\n\r\n"
                                 "dog\r\n    1 {Folder}/a.txt\r\n\r\n"));
}

#ifndef _WIN32  // where names hold neither line breaks nor bytes that are no characters
TEST_F(PerFileTally, NamesWithStrangeBytesAreListedAsTheyAre) {
  TypeWords(WordListKind::kCountOnly, "cat");
  Put(" two\nlines \xE9.txt", "cat");
  ListAs(DisplayFormat::kWordFileList);
  CountTexts();
  EXPECT_TRUE(Has(Output(), "cat\r\n    {Folder}/ two\nlines \xE9.txt\r\n"));
  EXPECT_TRUE(Has(ListFile(), "cat\n    {Folder}/ two\nlines \xE9.txt\n"));
}
#endif

TEST_F(PerFileTally, AWordsFileAndTypedWordsAreTalliedAlike) {
  desktop.AnswerFile(folder.Write("words.txt", "dog"));
  Panel().cmdSelectWordsFile[1].PerformClick();
  TypeWords(WordListKind::kCountOnly, "cat");
  Put("a.txt", "cat dog dog mouse");
  CountTexts();
  EXPECT_THAT(TallyOf("cat").FileCounts, ElementsAre(1));
  EXPECT_THAT(TallyOf("dog").FileCounts, ElementsAre(2));
  EXPECT_EQ(StoredWords(), "cat dog*2");
}

TEST_F(PerFileTally, WordsWithOneKeyShareTheirTally) {
  TypeWords(WordListKind::kCountOnly, "müller mueller");
  Put("a.txt", "Müller Mueller");
  Put("b.txt", "mueller");
  CountTexts();
  EXPECT_THAT(TallyOf("müller").FileNumbers, ElementsAre(1, 2));
  EXPECT_THAT(TallyOf("müller").FileCounts, ElementsAre(2, 1));
}

TEST_F(PerFileTally, TheNextCountStartsWithNoFiles) {
  TypeWords(WordListKind::kCountOnly, "cat");
  Put("a.txt", "cat");
  Put("b.txt", "cat");
  CountTexts();
  TypeOnly("htm");
  Put("c.htm", "cat cat");
  CountTexts();
  EXPECT_THAT(FileList(), ElementsAre("", folder / "texts/c.htm"));
  EXPECT_THAT(TallyOf("cat").FileNumbers, ElementsAre(1));
  EXPECT_THAT(TallyOf("cat").FileCounts, ElementsAre(2));
}

TEST_F(PerFileTally, ReadingAWordsFileForgetsTheFiles) {
  TypeWords(WordListKind::kCountOnly, "cat");
  Put("a.txt", "cat");
  CountTexts();
  desktop.AnswerFile(folder.Write("words.txt", "dog"));
  Panel().cmdSelectWordsFile[1].PerformClick();
  EXPECT_THAT(FileList(), ElementsAre(""));
  EXPECT_EQ(Words().store.FilesOf(1), nullptr);
}

TEST_F(PerFileTally, WithoutCountOnlyWordsNoFilesAreKept) {
  Put("a.txt", "cat");
  CountTexts();
  EXPECT_EQ(Words().store.FilesOf(1), nullptr);
  EXPECT_THAT(FileList(), ElementsAre(""));
}

TEST_F(PerFileTally, ASingleFileKeepsNoFilesEither) {
  TypeWords(WordListKind::kCountOnly, "cat");
  Put("a.txt", "cat");
  CountTexts();
  CountFile(folder / "texts/a.txt");
  EXPECT_EQ(Words().store.FilesOf(1), nullptr);
}

TEST_F(PerFileTally, FilesAreToldForWordsInOneInTwoAndInMoreThan8000Files) {
  constexpr int kFiles = 8'001;
  TypeWords(WordListKind::kCountOnly, "all one two");
  for (int i = 1; i <= kFiles; ++i) {
    std::string text = "all";
    if (i == 7'000) text += " one";
    if (i == 1 || i == kFiles) text += " two two";
    if (i >= 8'000) text += " all";
    Put(std::to_string(10'000 + i) + ".txt", text);
  }
  ListAs(DisplayFormat::kWordFreqNoFiles);
  CountTexts();
  EXPECT_TRUE(
      Has(ListFile(), "  all      8003 8000\n  two         4    2\n  one         1    1\n"));
  EXPECT_EQ(TallyOf("all").NumFiles(), 8'001);
  EXPECT_EQ(TallyOf("all").FileCounts.back(), 2);
  EXPECT_THAT(TallyOf("two").FileNumbers, ElementsAre(1, kFiles));
  EXPECT_THAT(TallyOf("two").FileCounts, ElementsAre(2, 2));
  EXPECT_THAT(TallyOf("one").FileNumbers, ElementsAre(7'000));
  EXPECT_EQ(Words().folder.filesScanned, kFiles);

  ListAs(DisplayFormat::kWordFileListFreq);
  EXPECT_TRUE(ListFile().ends_with(
      NativePaths("\ntwo\n    2 {Folder}/10001.txt\n    2 {Folder}/18001.txt\n\n"
                  "one\n    1 {Folder}/17000.txt\n\n")));
  EXPECT_TRUE(
      Has(ListFile(), NativePaths("\nall\n    1 {Folder}/10001.txt\n    1 {Folder}/10002.txt\n")));
  EXPECT_TRUE(Has(ListFile(), NativePaths("    1 {Folder}/18000.txt\n\ntwo\n")));
  EXPECT_FALSE(Has(ListFile(), NativePaths("    2 {Folder}/18000.txt")));
  ListAs(DisplayFormat::kWordFileList);
  EXPECT_TRUE(
      Has(ListFile(), NativePaths("\ntwo\n    {Folder}/10001.txt\n    {Folder}/18001.txt\n\n")));
}

// 32,767 is the greatest number of occurrences in one file.

TEST_F(PerFileTally, AWordMayOccur32767TimesInEachFile) {
  TypeWords(WordListKind::kCountOnly, "cat");
  std::string text;
  for (int i = 0; i < 32'767; ++i) text += i % 10 == 9 ? "cat\n" : "cat ";
  Put("a.txt", text);
  Put("b.txt", text);
  CountTexts();
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_THAT(TallyOf("cat").FileCounts, ElementsAre(32'767, 32'767));
  EXPECT_EQ(StoredWords(), "cat*65534");
}

class OverflowInAFile : public PerFileTally {
 protected:
  void CountTooMany() {
    TypeWords(WordListKind::kCountOnly, "cat");
    std::string text;
    for (int i = 0; i < 32'768; ++i) text += i % 10 == 9 ? "cat\n" : "cat ";
    Put("a.txt", "cat");
    Put("b.txt", text);
    Put("c.txt", "cat");
    CountTexts();
  }
};

TEST_F(OverflowInAFile, EndsTheRunWithAReport) {
  CountTooMany();
  ExpectMessage(OnlyMessage(),
                "Error 6: Overflow: the word \"cat\" occurs more than 32,767 times in " +
                    (folder / "texts/b.txt") +
                    ", the most that lists of files take.  Count that file by itself, in a "
                    "display format without files.",
                "Problem", MessageIcon::kExclamation);
  EXPECT_EQ(ListFile(), "");
}

TEST_F(OverflowInAFile, LeavesTheWindowIdle) {
  Main().txbFile[0].SetText("mine.txt");
  CountTooMany();
  ExpectIdle();
  EXPECT_FALSE(program.State().Scanning());
  EXPECT_EQ(Main().txbFile[0].Text(), "mine.txt");
}

TEST_F(OverflowInAFile, DoesNotDisturbTheNextCount) {
  CountTooMany();
  TypeWords(WordListKind::kCountOnly, "");
  desktop.ForgetQuestions();
  CountClipboard("dog dog");
  EXPECT_EQ(StoredWords(), "dog*2");
  EXPECT_EQ(Main().lblNumOccurrences.FontName(), "Arial");
  EXPECT_EQ(Main().lblNumOccurrences.Caption(), "Number of instances of words in this list: 2");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
