// The word store, the filters and the totals of the literal engine.
#include <limits>

#include "reference/literal_fixture.h"

namespace quillomat::reference {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

/// A different word for every number.
std::string WordOf(int number) {
  std::string word = "w";
  for (int digit = 0; digit < 4; ++digit) {
    word += static_cast<char>('a' + number % 10);
    number /= 10;
  }
  return word;
}

TEST_F(LiteralEngineTest, WordsThatDifferInCaseAndAccentsAreOne) {
  engine.choices.chkCaseSignificant = 1;
  EXPECT_EQ(Count("The the THE café cafe Café Müller Mueller"), "café*3 Müller*2 The*3");
  EXPECT_EQ(Entry("Müller").SortKey, U"mueller");
}

TEST_F(LiteralEngineTest, WordsBeyondTheLimitAreReadAndNotStored) {
  EXPECT_EQ(Count(std::string(101, 'a') + " " + std::string(100, 'b')), std::string(100, 'b'));
  EXPECT_EQ(engine.WordsRead, 2);
  EXPECT_EQ(engine.ReadListLines({std::string(101, 'a')}).size(), 1U);
}

TEST_F(LiteralEngineTest, StoreGrowsByFiveHundred) {
  Begin();
  for (int i = 0; i < 500; ++i) engine.ScanLine(WordOf(i * 7 % 500));
  EXPECT_EQ(engine.WordStore.size(), 501U);
  engine.ScanLine("another");
  EXPECT_EQ(engine.WordStore.size(), 1001U);
  ASSERT_EQ(engine.NumDifferentWords, 501);
  EXPECT_EQ(ToUtf8(engine.WordStore[1].Word), "another");
  for (std::size_t i = 2; i <= 501; ++i) {
    EXPECT_LT(engine.WordStore[i - 1].SortKey, engine.WordStore[i].SortKey);
    EXPECT_EQ(engine.WordStore[i].Count, 1);
  }
}

TEST_F(LiteralEngineTest, EveryStoredWordIsFoundAgain) {
  Begin();
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 300; ++i) engine.ScanLine(WordOf(i * 61 % 300));
  }
  ASSERT_EQ(engine.NumDifferentWords, 300);
  for (std::size_t i = 1; i <= 300; ++i) EXPECT_EQ(engine.WordStore[i].Count, 2);
}

TEST_F(LiteralEngineTest, NewWordsAreEchoed) {
  engine.choices.chkCaseSignificant = 1;
  Count("b A b a c");
  EXPECT_EQ(ToUtf8(engine.txbOutput), "b A c ");
}

TEST_F(LiteralEngineTest, SuppressedWordsAreNotEchoed) {
  for (const int value : {1, 2}) {
    engine.choices.chkSuppressWords = value;
    Count("a b");
    EXPECT_EQ(engine.txbOutput, U"");
  }
}

TEST_F(LiteralEngineTest, EchoStopsBeyondTheDisplayLimit) {
  Begin();
  engine.txbOutput = Characters(44'010, U'é');
  engine.ScanLine("first");
  EXPECT_EQ(engine.txbOutput.size(), 44'016U);
  EXPECT_EQ(engine.choices.chkSuppressWords, 0);
  engine.ScanLine("second third");
  EXPECT_EQ(ToUtf8(Right(engine.txbOutput, 73)),
            "first second \r\n\r\n[Suppressing display of words to avoid buffer overflow.]");
  EXPECT_EQ(engine.choices.chkSuppressWords, 1);
  EXPECT_EQ(engine.NumDifferentWords, 3);
}

TEST_F(LiteralEngineTest, EchoGoesOnAtExactlyTheDisplayLimit) {
  Begin();
  engine.txbOutput = Characters(43'996, U'x');
  engine.ScanLine("a b");
  EXPECT_EQ(engine.txbOutput.size(), 44'000U);
  EXPECT_EQ(engine.choices.chkSuppressWords, 0);
  engine.ScanLine("c");
  EXPECT_EQ(engine.choices.chkSuppressWords, 1);
}

TEST_F(LiteralEngineTest, LabelShowsEveryTenthWord) {
  Begin();
  for (int i = 0; i < 1010; ++i) engine.ScanLine(WordOf(i));
  ASSERT_EQ(engine.lblNumberOfWords.size(), 101U);
  EXPECT_EQ(engine.lblNumberOfWords.front(), "Number of different words found so far: 10");
  EXPECT_EQ(engine.lblNumberOfWords[99], "Number of different words found so far: 1,000");
}

TEST_F(LiteralEngineTest, LabelShowsEveryCountOnlyWord) {
  CountOnly("a b");
  Count("a b a");
  EXPECT_EQ(engine.lblNumberOfWords,
            (std::vector<std::string>{"One word found so far.",
                                      "Number of different words found so far: 2"}));
}

TEST_F(LiteralEngineTest, LabelNamesListWordsWhileAListIsRead) {
  std::string line;
  for (int i = 0; i < 25; ++i) line += WordOf(i) + " ";
  engine.ReadListLines({line});
  EXPECT_EQ(engine.lblNumberOfWords, (std::vector<std::string>{"Number of words read so far: 10",
                                                               "Number of words read so far: 20"}));
}

class LiteralFilesTest : public LiteralEngineTest {
 protected:
  LiteralFilesTest() { CountOnly("dog cat"); }

  void ScanFile(const std::string& path, const std::string& line) {
    engine.choices.txbFile0 = path;
    engine.ScanLine(line);
  }
};

TEST_F(LiteralFilesTest, FilesOfAWordAreRecorded) {
  Begin();
  ScanFile("1", "cat");
  ScanFile("2", "dog dog");
  ScanFile("2", "dog");
  ScanFile("3", "cat");
  ScanFile("not counted", "horse");
  ScanFile("4", "cat");
  ScanFile("5", "dog");
  EXPECT_EQ(ToUtf8(Entry("dog").FileNumbers), "0000200005");
  EXPECT_EQ(ToUtf8(Entry("dog").FileCounts), "0000300001");
  EXPECT_EQ(Entry("dog").NumFiles, 2);
  EXPECT_EQ(Entry("dog").Count, 4);
  EXPECT_EQ(ToUtf8(engine.FileList[5]), "5");
}

TEST_F(LiteralFilesTest, OtherSourcesRecordNoFiles) {
  engine.choices.optFolder = false;
  Begin();
  ScanFile("1", "cat cat");
  EXPECT_EQ(Entry("cat").NumFiles, 0);
  EXPECT_EQ(Entry("cat").FileNumbers, U"");
  EXPECT_EQ(engine.CurrentFileNumber, 0);
}

TEST_F(LiteralFilesTest, FileListGrowsByAHundred) {
  Begin();
  for (int i = 1; i <= 101; ++i) ScanFile(std::to_string(i), "cat");
  EXPECT_EQ(engine.FileList.size(), 201U);
  EXPECT_EQ(ToUtf8(engine.FileList[101]), "101");
  EXPECT_EQ(ToUtf8(engine.FileList[1]), "1");
}

TEST_F(LiteralFilesTest, FullRecordOfFilesStaysAsItIs) {
  Begin();
  for (int i = 1; i <= 8001; ++i) ScanFile(std::to_string(i), "cat cat");
  EXPECT_EQ(Entry("cat").FileNumbers.size(), 40'000U);
  EXPECT_EQ(Entry("cat").NumFiles, 8000);
  EXPECT_EQ(Entry("cat").Count, 16'002);
  EXPECT_EQ(Right(Entry("cat").FileNumbers, 5), U"08000");
  EXPECT_EQ(Right(Entry("cat").FileCounts, 10), U"0000200001");
}

TEST_F(LiteralFilesTest, FileNumbersBeyondFiveDigitsAreNotRecorded) {
  Begin();
  ScanFile("a", "dog");
  engine.FileList.resize(100'001);
  engine.CurrentFileNumber = 99'998;
  ScanFile("b", "dog");
  ScanFile("c", "dog cat");
  EXPECT_EQ(engine.CurrentFileNumber, 100'000);
  EXPECT_EQ(ToUtf8(Entry("dog").FileNumbers), "0000199999");
  EXPECT_EQ(Entry("dog").Count, 3);
  EXPECT_EQ(Entry("cat").FileNumbers, U"");
  EXPECT_EQ(Entry("cat").NumFiles, 0);
}

TEST_F(LiteralFilesTest, TooManyOccurrencesInAFileAreAnOverflow) {
  Begin();
  std::string line;
  for (int i = 0; i < 32'767; ++i) line += "cat ";
  ScanFile("1", line);
  EXPECT_EQ(ToUtf8(Entry("cat").FileCounts), "32767");
  EXPECT_THROW(ScanFile("1", "cat"), Overflow);
  EXPECT_NO_THROW(ScanFile("2", "cat"));
}

TEST_F(LiteralEngineTest, TooManyOccurrencesAreAnOverflow) {
  Begin();
  engine.ScanLine("a b");
  engine.WordStore[2].Count = kMost;
  EXPECT_NO_THROW(engine.ScanLine("a"));
  EXPECT_THROW(engine.ScanLine("b"), Overflow);
}

TEST_F(LiteralEngineTest, TotalsCountIncludedWords) {
  Count("elephant elephant dog dog dog hmm");
  EXPECT_EQ(Included(), "dog*3 elephant*2");
  EXPECT_EQ(engine.NumIncludedWords, 2);
  EXPECT_EQ(engine.NumExcludedWords, 1);
  EXPECT_EQ(engine.TotalIncludedCount, 5);
  EXPECT_EQ(engine.MaxCount, 3);
  EXPECT_EQ(engine.MaxWordLength, 8);
}

TEST_F(LiteralEngineTest, TotalThatDoesNotFitIsAnOverflow) {
  Begin();
  engine.ScanLine("a b");
  engine.WordStore[1].Count = kMost;
  EXPECT_THROW(engine.TallyWords(), Overflow);
}

TEST_F(LiteralEngineTest, InfrequentWordsAreExcluded) {
  engine.choices.chkIgnoreInfrequentWords = 1;
  Count("one two two three three three");
  EXPECT_EQ(Included(), "three*3 two*2");
  engine.choices.cboThresholdFrequency = 1;
  engine.ApplyWordFilters();
  EXPECT_EQ(Included(), "three*3");
}

TEST_F(LiteralEngineTest, ShortWordsAreExcluded) {
  engine.choices.chkIgnoreShortWords = 1;
  Count("é to été");
  EXPECT_EQ(Included(), "été");
  engine.choices.cboShortWordSize = 0;
  engine.ApplyWordFilters();
  EXPECT_EQ(Included(), "été to");
}

TEST_F(LiteralEngineTest, LongWordsAreAlwaysExcluded) {
  const std::string longest = "a" + std::string(19, 'b');
  engine.choices.longWordSize = 20;
  Count(longest + " " + longest + "b");
  EXPECT_EQ(Included(), longest);
}

TEST_F(LiteralEngineTest, RepetitionsAreExcluded) {
  engine.choices.chkIgnoreRomNum40 = 0;
  engine.choices.chkIgnoreNoVowelOrY = 0;
  engine.choices.chkAllowWordsWithNumerals = 1;
  engine.choices.chkCaseSignificant = 1;
  Count("aaa zzz a 111 Bbb");
  EXPECT_EQ(Included(), "111 a Bbb");
}

TEST_F(LiteralEngineTest, SmallRomanNumeralsAreExcluded) {
  Count("xiv vix i xl mix li");
  EXPECT_EQ(Included(), "li mix");
  engine.choices.chkIgnoreNoVowelOrY = 0;
  engine.ApplyWordFilters();
  EXPECT_EQ(Included(), "li mix xl");
}

TEST_F(LiteralEngineTest, WordsWithoutVowelsAreExcluded) {
  engine.choices.chkAllowWordsWithNumerals = 1;
  Count("by gym rhythm hmm www 3");
  EXPECT_EQ(Included(), "by gym rhythm");
}

TEST_F(LiteralEngineTest, FiltersLookAtTheFirstSpelling) {
  engine.choices.chkCaseSignificant = 1;
  Count("Ooo ooo");
  EXPECT_EQ(Included(), "Ooo*2");
  Count("ooo Ooo");
  EXPECT_EQ(Included(), "");
}

TEST_F(LiteralEngineTest, GreyFiltersAreOff) {
  engine.choices.chkIgnoreRepetitions = 2;
  engine.choices.chkIgnoreRomNum40 = 2;
  engine.choices.chkIgnoreNoVowelOrY = 2;
  engine.choices.chkIgnoreShortWords = 2;
  engine.choices.chkIgnoreInfrequentWords = 2;
  Count("aaa xx hmm");
  EXPECT_EQ(Included(), "aaa hmm xx");
}

TEST_F(LiteralEngineTest, CountOnlyWordsAreNotFiltered) {
  CountOnly("hmm");
  Count("hmm");
  EXPECT_EQ(Included(), "hmm");
}

}  // namespace
}  // namespace quillomat::reference
