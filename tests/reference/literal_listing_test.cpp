// Ranks, walks, lines and messages of the literal engine.
#include "reference/literal_fixture.h"

namespace quillomat::reference {
namespace {

class LiteralListingTest : public LiteralEngineTest {
 protected:
  LiteralListingTest() { engine.choices.optFolder = false; }

  std::string Textbox(int format, int order = 0) {
    return engine.ListToTextbox({order, format, 0, 0}).text;
  }

  std::string File(int format, int order = 0) {
    return engine.ListToFile({order, format, 0, 0}, "\n");
  }

  /// A folder run of two files for the count-only words "dog" and "cat".
  void CountFolder(const std::string& folder) {
    engine.choices.optFolder = true;
    engine.choices.txbFolder = folder;
    CountOnly("dog cat");
    Begin();
    engine.choices.txbFile0 = folder + "/a.txt";
    engine.ScanLine("dog dog cat");
    engine.choices.txbFile0 = folder + "/sub/b.txt";
    engine.ScanLine("dog");
    engine.FinishRun();
  }
};

TEST_F(LiteralListingTest, EqualFrequenciesGetConsecutiveRanksInAlphabeticalOrder) {
  Count("see bee bee ant see oak");
  EXPECT_EQ(Entry("bee").Rank, 1);
  EXPECT_EQ(Entry("see").Rank, 2);
  EXPECT_EQ(Entry("ant").Rank, 3);
  EXPECT_EQ(Entry("oak").Rank, 4);
  EXPECT_EQ(engine.ChainHead, 2);
  EXPECT_EQ(Entry("bee").NextByFrequency, 4);
  EXPECT_EQ(Entry("oak").NextByFrequency, 0);
}

TEST_F(LiteralListingTest, ExcludedWordsHaveNoRank) {
  Count("hmm hmm dog");
  EXPECT_EQ(Entry("hmm").Rank, 0);
  EXPECT_EQ(Entry("dog").Rank, 1);
  EXPECT_EQ(Textbox(8, 1), "Word (longest has 3 characters)\r\ndog\r\n");
}

TEST_F(LiteralListingTest, RankingShowsProgressAtEveryHundred) {
  std::string line;
  for (int i = 0; i < 200; ++i) line += "dog ";
  engine.choices.chkSuppressWords = 1;
  Count(line);
  EXPECT_EQ(ToUtf8(engine.txbOutput), ". . . . ");
}

TEST_F(LiteralListingTest, PlainLayouts) {
  Count("elephant dog dog");
  EXPECT_EQ(Textbox(0),
            "   Rank    Freq  Word (longest has 8 characters)\r\n"
            "      1       2  dog\r\n"
            "      2       1  elephant\r\n");
  EXPECT_EQ(Textbox(1),
            "   Rank  Word        Freq\r\n"
            "      1  dog            2\r\n"
            "      2  elephant       1\r\n");
  EXPECT_EQ(Textbox(2),
            "   Rank    Freq\r\n"
            "      1       2\r\n"
            "      2       1\r\n");
  EXPECT_EQ(Textbox(3),
            "   Rank  Word (longest has 8 characters)\r\n"
            "      1  dog\r\n"
            "      2  elephant\r\n");
  EXPECT_EQ(Textbox(4),
            "   Freq    Rank\r\n"
            "      2       1\r\n"
            "      1       2\r\n");
  EXPECT_EQ(Textbox(5),
            "    Freq  Word (longest has 8 characters)\r\n"
            "       2  dog\r\n"
            "       1  elephant\r\n");
  EXPECT_EQ(Textbox(6),
            "  Word       Rank\r\n"
            "  dog           1\r\n"
            "  elephant      2\r\n");
  EXPECT_EQ(Textbox(7),
            "  Word       Freq\r\n"
            "  dog           2\r\n"
            "  elephant      1\r\n");
  EXPECT_EQ(Textbox(8),
            "Word (longest has 8 characters)\r\n"
            "dog\r\n"
            "elephant\r\n");
  EXPECT_EQ(Textbox(9), "dog, elephant, ");
  EXPECT_EQ(Textbox(10),
            "   Rank    Freq  L10(R)  L10(F)  Word\r\n"
            "      1       2   .0000   .3010  dog\r\n"
            "      2       1   .3010   .0000  elephant\r\n");
  EXPECT_EQ(Textbox(11),
            "  Word       Freq   No. files\r\n"
            "  dog           2    0\r\n"
            "  elephant      1    0\r\n");
  EXPECT_EQ(Textbox(12), "\r\ndog\r\n\r\nelephant\r\n\r\n");
  EXPECT_EQ(Textbox(13), "\r\ndog\r\n\r\nelephant\r\n\r\n");
}

TEST_F(LiteralListingTest, CommaLayouts) {
  Count("elephant dog dog");
  engine.choices.chkOutputWithCommas = 1;
  EXPECT_EQ(File(0),
            "    Rank,    Freq,  Word (longest has 8 characters)\n"
            "       1,       2,  dog\n"
            "       2,       1,  elephant\n");
  EXPECT_EQ(File(1),
            "    Rank,  Word    ,    Freq\n"
            "       1,  dog     ,       2\n"
            "       2,  elephant,       1\n");
  EXPECT_EQ(File(2),
            "    Rank,    Freq\n"
            "       1,       2\n"
            "       2,       1\n");
  EXPECT_EQ(File(3),
            "    Rank,  Word (longest has 8 characters)\n"
            "       1,  dog\n"
            "       2,  elephant\n");
  EXPECT_EQ(File(4),
            "    Freq,    Rank\n"
            "       2,       1\n"
            "       1,       2\n");
  EXPECT_EQ(File(5),
            "    Freq,  Word (longest has 8 characters)\n"
            "       2,  dog\n"
            "       1,  elephant\n");
  EXPECT_EQ(File(6),
            "  Word    ,   Rank\n"
            "  dog     ,      1\n"
            "  elephant,      2\n");
  EXPECT_EQ(File(7),
            "  Word    ,   Freq\n"
            "  dog     ,      2\n"
            "  elephant,      1\n");
  EXPECT_EQ(File(8),
            "Word (longest has 8 characters)\n"
            "dog\n"
            "elephant\n");
  EXPECT_EQ(File(9), "dog, elephant");
  EXPECT_EQ(File(10),
            "    Rank,    Freq,  L10(R),  L10(F),  Word\n"
            "       1,       2,   .0000,   .3010,  dog\n"
            "       2,       1,   .3010,   .0000,  elephant\n");
  EXPECT_EQ(File(11),
            "  Word       Freq   No. files\n"
            "  dog           2    0\n"
            "  elephant      1    0\n");
  EXPECT_EQ(File(12), "\ndog\n\nelephant\n\n");
  EXPECT_EQ(File(13), "\ndog\n\nelephant\n\n");
  EXPECT_EQ(Textbox(2), "   Rank    Freq\r\n      1       2\r\n      2       1\r\n");
}

TEST_F(LiteralListingTest, FileHasThePlainLayoutUnlessCommasAreChosen) {
  Count("dog");
  engine.choices.chkOutputWithCommas = 2;
  EXPECT_EQ(engine.ListToFile({0, 2, 0, 0}, "\r\n"), "   Rank    Freq\r\n      1       1\r\n");
}

TEST_F(LiteralListingTest, AlphabeticalWalkFollowsTheStore) {
  Count("elephant elephant dog");
  EXPECT_EQ(Textbox(9, 1), "dog, elephant, ");
  EXPECT_EQ(Textbox(9, 0), "elephant, dog, ");
}

TEST_F(LiteralListingTest, CommaIsMissingAfterTheLastRecordNotTheLastWord) {
  Count("zebra zebra ant");
  EXPECT_EQ(File(9, 0), "zebraant, ");
  EXPECT_EQ(File(9, 1), "ant, zebra");
  Count("ant zzz");
  EXPECT_EQ(File(9, 1), "ant, ");
}

TEST_F(LiteralListingTest, NaturalLogarithmsOnWish) {
  engine.choices.chkUseLog10 = 0;
  Count("dog dog elephant ant");
  EXPECT_EQ(Textbox(10),
            "   Rank    Freq   LN(R)   LN(F)  Word\r\n"
            "      1       2   .0000   .6931  dog\r\n"
            "      2       1   .6931   .0000  ant\r\n"
            "      3       1  1.0986   .0000  elephant\r\n");
}

TEST_F(LiteralListingTest, LogarithmOfTenIsOne) {
  std::string line;
  for (int i = 0; i < 10; ++i) line += "dog ";
  Count(line);
  EXPECT_EQ(engine.LogFreqCell(1, true), U"1.0000");
  EXPECT_EQ(engine.LogFreqCell(1, false), U"2.3026");
}

TEST_F(LiteralListingTest, ColumnsGrowWithTheirContents) {
  Count("dog");
  engine.WordStore[1].Count = 12'345'678;
  engine.MaxCount = 12'345'678;
  EXPECT_EQ(Textbox(2), "   Rank      Freq\r\n      1  12345678\r\n");
  EXPECT_EQ(engine.WordWidth, 6);
}

TEST_F(LiteralListingTest, WordsArePaddedByCharacters) {
  Count("été");
  EXPECT_EQ(Textbox(7), "  Word     Freq\r\n  été         1\r\n");
}

TEST_F(LiteralListingTest, FileListsShortenTheFolder) {
  CountFolder("/home/some/texts");
  EXPECT_EQ(engine.ListToTextbox({0, 13, 2, 2}).text,
            "2 files (in 2 folders) were scanned.\r\n"
            "\r\n{Folder} = /home/some/texts\r\n\r\n"
            "dog\r\n    2 {Folder}/a.txt\r\n    1 {Folder}/sub/b.txt\r\n\r\n"
            "cat\r\n    1 {Folder}/a.txt\r\n\r\n");
  EXPECT_EQ(engine.ListToFile({1, 12, 2, 2}, "\n"),
            "\n{Folder} = /home/some/texts\n\n"
            "cat\n    {Folder}/a.txt\n\n"
            "dog\n    {Folder}/a.txt\n    {Folder}/sub/b.txt\n\n");
  EXPECT_EQ(engine.ListToFile({0, 11, 2, 2}, "\n"),
            "  Word     Freq   No. files\n"
            "  dog         3    2\n"
            "  cat         1    1\n");
}

TEST_F(LiteralListingTest, ThirteenCharactersOfAFolderAreWritten) {
  CountFolder("/home/my/text");
  EXPECT_EQ(engine.ListToTextbox({1, 12, 2, 2}).text,
            "2 files (in 2 folders) were scanned.\r\n"
            "\r\n"
            "cat\r\n    /home/my/text/a.txt\r\n\r\n"
            "dog\r\n    /home/my/text/a.txt\r\n    /home/my/text/sub/b.txt\r\n\r\n");
  CountFolder("/home/my/texts");
  EXPECT_EQ(engine.FileListText(1, false), U"    {Folder}/a.txt\r\n");
}

TEST_F(LiteralListingTest, FolderIsCutOffWithoutComparing) {
  CountFolder("/home/some/texts");
  engine.choices.txbFolder = "/another/folder/far/away";
  EXPECT_EQ(engine.FileListText(1, true), U"    1 {Folder}\r\n");
}

TEST_F(LiteralListingTest, ScanHeaderCountsFilesAndFolders) {
  CountFolder("/x");
  const auto header = [this](std::int32_t files, std::int32_t folders) {
    return engine.ListToTextbox({0, 9, files, folders}).header;
  };
  EXPECT_EQ(header(0, 0), "0 file (in 0 folder) were scanned.\r\n");
  EXPECT_EQ(header(1, 1), "1 file (in 1 folder) was scanned.\r\n");
  EXPECT_EQ(header(2, 1), "2 files (in 1 folder) were scanned.\r\n");
  EXPECT_EQ(header(1, 2), "1 file (in 2 folders) was scanned.\r\n");
  EXPECT_EQ(header(1234, 1000), "1,234 files (in 1,000 folders) were scanned.\r\n");
}

TEST_F(LiteralListingTest, TextboxFillsUpToItsLimit) {
  Count("dog ant");
  engine.OutputLengthLimit = 40;  // the header line has 33 characters
  const TextboxListing listing = engine.ListToTextbox({1, 8, 0, 0});
  EXPECT_EQ(listing.text, "Word (longest has 3 characters)\r\nant\r\ndog\r\n");
  EXPECT_TRUE(listing.textboxFull);
}

TEST_F(LiteralListingTest, LinesAtExactlyTheLimitAreDroppedSilently) {
  Count("dog ant");
  engine.OutputLengthLimit = 38;
  const TextboxListing listing = engine.ListToTextbox({1, 8, 0, 0});
  EXPECT_EQ(listing.text, "Word (longest has 3 characters)\r\nant\r\n");
  EXPECT_FALSE(listing.textboxFull);
}

TEST_F(LiteralListingTest, FullTextboxDoesNotOutlastTheNextWalk) {
  Count("dog ant");
  engine.OutputLengthLimit = 34;
  EXPECT_TRUE(engine.ListToTextbox({1, 8, 0, 0}).textboxFull);
  engine.OutputLengthLimit = 44'000;
  EXPECT_FALSE(engine.ListToTextbox({1, 8, 0, 0}).textboxFull);
}

TEST_F(LiteralListingTest, PreviewComesBeyondTwoThousandCharacters) {
  std::string line;
  for (char a = 'a'; a <= 'z'; ++a) {
    for (char b = 'a'; b <= 'z'; ++b) line += std::string("e") + a + b + " ";
  }
  engine.choices.chkSuppressWords = 1;
  Count(line);
  const TextboxListing listing = engine.ListToTextbox({1, 8, 0, 0});
  EXPECT_EQ(listing.header, "Word (longest has 3 characters)\r\n");
  EXPECT_EQ(listing.preview.size(), 2053U);
  EXPECT_EQ(listing.text.substr(0, 2053), listing.preview);
  // "eee" is a repetition, and "esn" the end of a stem.
  EXPECT_EQ(listing.text.size(), 33U + 674U * 5U);
}

TEST_F(LiteralListingTest, TwirlerTurnsWithTheRecords) {
  Count("ant bee cat");
  Textbox(8, 1);
  EXPECT_EQ(engine.lblTwirler, 222);
  Textbox(9, 0);
  EXPECT_EQ(engine.lblTwirler, 222);
}

TEST_F(LiteralListingTest, StopEndsAWalk) {
  Count("ant bee cat");
  int yields = 0;
  engine.onYield = [&] { engine.StopRequested = ++yields == 2; };
  EXPECT_EQ(Textbox(9, 1), "ant, bee, ");
}

TEST_F(LiteralListingTest, ListWordsTakesOffTheLastComma) {
  Count("ant bee");
  EXPECT_EQ(engine.ListWords({0, 9, 0, 0}), "ant, bee");
  EXPECT_EQ(engine.ListWords({0, 3, 0, 0}), Textbox(3));
}

TEST_F(LiteralListingTest, EmptyStoreHasItsMessage) {
  Count("123");
  EXPECT_EQ(engine.ListWords({0, 0, 0, 0}), "No words satisfying the conditions were found.");
}

TEST_F(LiteralListingTest, MessageNamesTheConditionsByTheirIndexes) {
  Count("hmm");
  EXPECT_EQ(engine.ListWords({0, 0, 0, 0}),
            "No words with more than 2 letters\r\noccur at least once.");
  engine.choices.cboShortWordSize = 0;
  engine.choices.chkIgnoreInfrequentWords = 1;
  EXPECT_EQ(engine.NoWordsMessage(), U"No words with more than 1 letter\r\noccur at least twice.");
  engine.choices.cboThresholdFrequency = 1;
  EXPECT_EQ(engine.NoWordsMessage(),
            U"No words with more than 1 letter\r\noccur at least 2 times.");
}

TEST_F(LiteralListingTest, FileFormatsNeedAFolderAndCountOnlyWords) {
  const std::string rest =
      "' is available\r\nonly when the source of the text is a folder\r\n"
      "and there are count-only words specified.";
  EXPECT_EQ(engine.CheckDisplayFormat(10), "");
  EXPECT_EQ(engine.CheckDisplayFormat(11), "The display format 'word freq no.files" + rest);
  EXPECT_EQ(engine.CheckDisplayFormat(12), "The display format 'word file-list" + rest);
  EXPECT_EQ(engine.CheckDisplayFormat(13), "The display format 'word file-list (+ freq)" + rest);
  engine.choices.optFolder = true;
  EXPECT_NE(engine.CheckDisplayFormat(13), "");
  CountOnly("dog");
  EXPECT_EQ(engine.CheckDisplayFormat(13), "");
}

}  // namespace
}  // namespace quillomat::reference
