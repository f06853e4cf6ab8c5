// The lists that tell in which files a word occurs.
#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"
#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

class FileLists : public ListingFixture {
 protected:
  FileLists() { options.format = DisplayFormat::kWordFileListFreq; }

  /// Three words in two files of a folder.
  void AddFilesOf(const std::string& folder) {
    options.folder = folder;
    AddInFile(folder + "/a.txt", "dog", 3);
    AddInFile(folder + "/a.txt", "cat");
    AddInFile(folder + "/sub/b.txt", "cat", 12);
    Finish();
  }
};

TEST_F(FileLists, LongFolderIsNamedOnceAndPathsAreRelativeToIt) {
  AddFilesOf("/home/someone/texts");
  EXPECT_EQ(FileList(WordOrder::kAlphabetical),
            "\n"
            "{Folder} = /home/someone/texts\n"
            "\n"
            "cat\n"
            "    1 {Folder}/a.txt\n"
            "   12 {Folder}/sub/b.txt\n"
            "\n"
            "dog\n"
            "    3 {Folder}/a.txt\n"
            "\n");
}

TEST_F(FileLists, ShortFolderIsWrittenOut) {
  AddFilesOf("/texts");
  EXPECT_EQ(FileList(WordOrder::kAlphabetical),
            "\n"
            "cat\n"
            "    1 /texts/a.txt\n"
            "   12 /texts/sub/b.txt\n"
            "\n"
            "dog\n"
            "    3 /texts/a.txt\n"
            "\n");
}

TEST_F(FileLists, WithoutFrequenciesFourBlanksStandBeforeThePath) {
  options.format = DisplayFormat::kWordFileList;
  AddFilesOf("/home/someone/texts");
  EXPECT_EQ(FileList(WordOrder::kByFrequency),
            "\n"
            "{Folder} = /home/someone/texts\n"
            "\n"
            "cat\n"
            "    {Folder}/a.txt\n"
            "    {Folder}/sub/b.txt\n"
            "\n"
            "dog\n"
            "    {Folder}/a.txt\n"
            "\n");
}

TEST_F(FileLists, FolderOfThirteenCharactersIsShortAndOfFourteenLong) {
  AddFilesOf("/home/abcdefg");
  EXPECT_EQ(LineOf(0), "");
  options.folder = "/home/abcdefgh";
  EXPECT_EQ(LineOf(0), "\r\n{Folder} = /home/abcdefgh\r\n");
}

TEST_F(FileLists, FolderIsMeasuredInCharactersNotBytes) {
  AddFilesOf("/home/äbcdéfg");
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(0), "");
  EXPECT_EQ(LineOf(2), "dog\n    3 /home/äbcdéfg/a.txt\n");
}

TEST_F(FileLists, CommasChangeNothing) {
  AddFilesOf("/texts");
  const std::string plain = FileList(WordOrder::kAlphabetical);
  options.withCommas = true;
  EXPECT_EQ(FileList(WordOrder::kAlphabetical), plain);
}

TEST_F(FileLists, AccentedFolderIsCutFromItsPaths) {
  AddFilesOf("/home/rené/textes été");
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(2), "dog\n    3 {Folder}/a.txt\n");
}

TEST_F(FileLists, PathsLoseAsManyCharactersAsTheFolderHasWhateverTheyAre) {
  AddInFile("/home/somebody/else/a.txt", "dog");
  Finish();
  options.folder = "/home/someone/texts";
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(1), "dog\n    1 {Folder}/a.txt\n");
}

TEST_F(FileLists, CharactersNotBytesAreCutFromThePathsOfAnotherFolder) {
  AddInFile("/home/someone/other/ärger.txt", "dog");
  Finish();
  options.folder = "/home/rené/textes été";
  ASSERT_EQ(CharacterCount(options.folder), 21U);
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(1), "dog\n    1 {Folder}rger.txt\n");
}

TEST_F(FileLists, PathShorterThanTheFolderIsCutToNothing) {
  AddInFile("/a.txt", "dog");
  Finish();
  options.folder = "/home/someone/texts";
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(1), "dog\n    1 {Folder}\n");
}

TEST_F(FileLists, FrequencyIsFiveWide) {
  AddInFile("/t/a.txt", "dog", 32'767);
  Finish();
  options.folder = "/t";
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(1), "dog\n32767 /t/a.txt\n");
}

TEST_F(FileLists, EndWithTheEightThousandthFileOfAWord) {
  for (int file = 1; file <= 8002; ++file) {
    AddInFile("/t/" + std::to_string(file), "dog", file < 8000 ? 1 : 2);
  }
  Finish();
  options.folder = "/t";
  options.lineBreak = "\n";
  const std::string line = LineOf(1);
  EXPECT_TRUE(line.ends_with("\n    1 /t/7999\n    1 /t/8000\n")) << line.substr(line.size() - 60);
  options.format = DisplayFormat::kWordFreqNoFiles;
  EXPECT_EQ(LineOf(1), "  dog      8005 8000");
}

TEST_F(FileLists, WordWithoutFilesStandsAlone) {
  Add("dog");
  Finish();
  options.lineBreak = "\n";
  EXPECT_EQ(LineOf(1), "dog\n");
}

TEST_F(FileLists, InTheWindowLinesEndAsThereIsCustomary) {
  AddFilesOf("/texts");
  EXPECT_EQ(LineOf(1), "cat\r\n    1 /texts/a.txt\r\n   12 /texts/sub/b.txt\r\n");
}

}  // namespace
}  // namespace quillomat
