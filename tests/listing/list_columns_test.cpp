// Column widths, logarithms and headers.
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

class ListColumns : public ListingFixture {};

TEST_F(ListColumns, NoColumnIsNarrowerThanSix) {
  Add("ab", 2);
  Finish();
  options.format = DisplayFormat::kRankWordFrequency;
  EXPECT_EQ(LineOf(0), "   Rank  Word      Freq");
  EXPECT_EQ(LineOf(1), "      1  ab           2");
}

TEST_F(ListColumns, WordColumnIsAsWideAsTheLongestListedWord) {
  Add("ab");
  Add("international");
  Finish();
  options.format = DisplayFormat::kWordFrequency;
  EXPECT_EQ(LineOf(0), "  Word            Freq");
  EXPECT_EQ(LineOf(1), "  ab                 1");
  EXPECT_EQ(LineOf(2), "  international      1");
}

TEST_F(ListColumns, ExcludedWordDoesNotWidenTheColumn) {
  Add("ab");
  Add("international");
  store.SetIncluded(2, false);
  Finish();
  options.format = DisplayFormat::kWordFrequency;
  EXPECT_EQ(LineOf(1), "  ab          1");
}

TEST_F(ListColumns, WordIsPaddedByCharactersNotBytes) {
  Add("né");
  Finish();
  options.format = DisplayFormat::kWordFrequency;
  EXPECT_EQ(LineOf(1), "  né          1");
}

TEST_F(ListColumns, FrequencyColumnIsAsWideAsTheLargestFrequency) {
  Add("dog", 1'234'567);
  Add("cat");
  Finish();
  options.format = DisplayFormat::kFrequencyRank;
  EXPECT_EQ(LineOf(0), "    Freq    Rank");
  EXPECT_EQ(LineOf(1), "       1       2");
  EXPECT_EQ(LineOf(2), " 1234567       1");
}

TEST_F(ListColumns, RankColumnIsAsWideAsTheNumberOfListedWords) {
  Add("dog");
  Finish();
  totals.NumIncludedWords = 12'345'678;
  options.format = DisplayFormat::kRankFrequency;
  EXPECT_EQ(LineOf(0), "     Rank    Freq");
  EXPECT_EQ(LineOf(1), "        1       1");
}

TEST_F(ListColumns, LogarithmsHaveTheWidthsOfTheirColumns) {
  Add("dog", 1'234'567);
  Finish();
  totals.NumIncludedWords = 12'345'678;
  options.format = DisplayFormat::kZipfData;
  EXPECT_EQ(LineOf(0), "     Rank     Freq     LN(R)    LN(F)  Word");
  EXPECT_EQ(LineOf(1), "        1  1234567     .0000  14.0262  dog");
}

TEST_F(ListColumns, MinimumWidthIsTheCallers) {
  Add("ab", 2);
  Finish();
  options.minimumColumnWidth = 8;
  options.format = DisplayFormat::kRankWordFrequency;
  EXPECT_EQ(LineOf(0), "     Rank  Word          Freq");
  EXPECT_EQ(LineOf(1), "        1  ab               2");
}

TEST_F(ListColumns, FilesColumnIsFourWideAndItsHeaderStandsAsItIs) {
  for (int file = 1; file <= 1234; ++file) AddInFile("file " + std::to_string(file), "dog");
  AddInFile("file 1234", "cat");
  Finish();
  options.format = DisplayFormat::kWordFreqNoFiles;
  EXPECT_EQ(LineOf(0), "  Word     Freq   No. files");
  EXPECT_EQ(LineOf(1), "  cat         1    1");
  EXPECT_EQ(LineOf(2), "  dog      1234 1234");
}

TEST_F(ListColumns, ZipfDataShowsNaturalLogarithms) {
  Add("the", 20);
  Add("cat", 2);
  Finish();
  options.format = DisplayFormat::kZipfData;
  EXPECT_EQ(LineOf(2), "      1      20   .0000  2.9957  the");
  EXPECT_EQ(LineOf(1), "      2       2   .6931   .6931  cat");
}

TEST_F(ListColumns, ZipfDataShowsLogarithmsToBaseTen) {
  Add("the", 1000);
  Add("cat", 2);
  Finish();
  options.format = DisplayFormat::kZipfData;
  options.useLog10 = true;
  EXPECT_EQ(LineOf(0), "   Rank    Freq  L10(R)  L10(F)  Word");
  EXPECT_EQ(LineOf(2), "      1    1000   .0000  3.0000  the");
  EXPECT_EQ(LineOf(1), "      2       2   .3010   .3010  cat");
}

TEST_F(ListColumns, RankOneHasALogarithmWithoutLeadingZero) {
  Add("the");
  Finish();
  options.format = DisplayFormat::kZipfData;
  EXPECT_EQ(LineOf(1), "      1       1   .0000   .0000  the");
}

TEST_F(ListColumns, ZipfHeaderDoesNotTellTheLongestWord) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kZipfData;
  for (const bool useLog10 : {false, true}) {
    for (const bool withCommas : {false, true}) {
      options.useLog10 = useLog10;
      options.withCommas = withCommas;
      EXPECT_EQ(LineOf(0).find("longest"), std::string::npos);
    }
  }
}

TEST_F(ListColumns, HeaderTellsTheLongestListedWordHoweverShort) {
  Add("né");
  Finish();
  options.format = DisplayFormat::kWord;
  EXPECT_EQ(LineOf(0), "Word (longest has 2 characters)");
}

TEST_F(ListColumns, LinesAreAppendedToWhatTheBufferHolds) {
  Add("dog");
  Finish();
  options.format = DisplayFormat::kWord;
  std::string line = "before: ";
  LineFormatter(Counted(), options).FormatWordLine(line, 1);
  EXPECT_EQ(line, "before: dog");
}

TEST_F(ListColumns, EachCellIsPaddedToItsColumn) {
  AddSample();
  Finish();
  const LineFormatter formatter(Counted(), options);
  const std::int32_t the = PlaceOf("the");
  std::string line;
  formatter.RankCell(line, the);
  line += '|';
  formatter.FreqCell(line, the);
  line += '|';
  formatter.LogRankCell(line, the, true);
  line += '|';
  formatter.LogFreqCell(line, the, false);
  line += '|';
  formatter.WordCell(line, the);
  line += '|';
  formatter.FilesCell(line, the);
  EXPECT_EQ(line, "     1|    12| .0000|2.4849|the       |   0");
}

TEST(Log10, IsTheLogarithmToBaseTen) {
  EXPECT_DOUBLE_EQ(Log10(1), 0.0);
  EXPECT_DOUBLE_EQ(Log10(10), 1.0);
  EXPECT_DOUBLE_EQ(Log10(1000), 3.0);
  EXPECT_DOUBLE_EQ(Log10(2), std::log10(2.0));
}

TEST_F(ListColumns, NumbersOfAnyLengthAreShown) {
  const std::vector<std::int32_t> numbers = {1'234'567'890, 100'000'000, 99'999'999, 12'345'678,
                                             1'000'000,     909'090,     10'001,     9'999,
                                             1'010,         100,         99,         10};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto place = store.AddWord("w" + std::string(1, static_cast<char>('a' + i)));
    store.CountWordAt(*place, numbers[i] - 1);
  }
  Finish();
  for (const DisplayFormat format :
       {DisplayFormat::kFrequencyRank, DisplayFormat::kFrequencyWord}) {
    options.format = format;
    const std::string lead = format == DisplayFormat::kFrequencyRank ? " " : "  ";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::string number = std::to_string(numbers[i]);
      EXPECT_TRUE(LineOf(static_cast<std::int32_t>(i + 1))
                      .starts_with(lead + std::string(10 - number.size(), ' ') + number + "  "))
          << LineOf(static_cast<std::int32_t>(i + 1));
    }
  }
}

TEST_F(ListColumns, NarrowColumnsHoldNumbersOfTheirWidth) {
  for (const auto& [word, times] : {std::pair("wa", 10'000'000), std::pair("wb", 1'000'203),
                                    std::pair("wc", 10), std::pair("wd", 1)}) {
    const auto place = store.AddWord(word);
    store.CountWordAt(*place, times - 1);
  }
  Finish();
  options.format = DisplayFormat::kRankFrequencyWord;
  EXPECT_EQ(LineOf(1), "      1  10000000  wa");
  EXPECT_EQ(LineOf(2), "      2   1000203  wb");
  EXPECT_EQ(LineOf(3), "      3        10  wc");
  EXPECT_EQ(LineOf(4), "      4         1  wd");
  options.withCommas = true;
  EXPECT_EQ(LineOf(3), "       3,        10,  wc");
}

TEST_F(ListColumns, AWordLongerThanMostIsWholeInItsLine) {
  const std::string longWord(90, 'w');
  Add(longWord);
  Finish();
  options.format = DisplayFormat::kRankFrequencyWord;
  EXPECT_EQ(LineOf(1), "      1       1  " + longWord);
}

}  // namespace
}  // namespace quillomat
