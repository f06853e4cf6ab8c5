// The fourteen formats to the letter: programs read these lists.
#include <array>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

struct FormatLines {
  const char* name;
  DisplayFormat format;
  /// Nothing when the format has no header.
  std::optional<std::string> header;
  /// Of "the": 12 times, rank 1, in 2 files.
  std::string the;
  /// Of "well-known": once, rank 4, in 1 file.
  std::string wellKnown;
};

void PrintTo(const FormatLines& lines, std::ostream* out) {
  *out << lines.name;
}

const FormatLines kPlain[] = {
    {"RankFrequencyWord", DisplayFormat::kRankFrequencyWord,
     "   Rank    Freq  Word (longest has 10 characters)",  //
     "      1      12  the",                               //
     "      4       1  well-known"},
    {"RankWordFrequency", DisplayFormat::kRankWordFrequency,
     "   Rank  Word          Freq",  //
     "      1  the             12",  //
     "      4  well-known       1"},
    {"RankFrequency", DisplayFormat::kRankFrequency,
     "   Rank    Freq",  //
     "      1      12",  //
     "      4       1"},
    {"RankWord", DisplayFormat::kRankWord,
     "   Rank  Word (longest has 10 characters)",  //
     "      1  the",                               //
     "      4  well-known"},
    {"FrequencyRank", DisplayFormat::kFrequencyRank,
     "   Freq    Rank",  //
     "     12       1",  //
     "      1       4"},
    {"FrequencyWord", DisplayFormat::kFrequencyWord,
     "    Freq  Word (longest has 10 characters)",  //
     "      12  the",                               //
     "       1  well-known"},
    {"WordRank", DisplayFormat::kWordRank,
     "  Word         Rank",  //
     "  the             1",  //
     "  well-known      4"},
    {"WordFrequency", DisplayFormat::kWordFrequency,
     "  Word         Freq",  //
     "  the            12",  //
     "  well-known      1"},
    {"Word", DisplayFormat::kWord,
     "Word (longest has 10 characters)",  //
     "the",                               //
     "well-known"},
    {"WordCommas", DisplayFormat::kWordCommas, std::nullopt, "the", "well-known"},
    {"ZipfData", DisplayFormat::kZipfData,
     "   Rank    Freq   LN(R)   LN(F)  Word",  //
     "      1      12   .0000  2.4849  the",   //
     "      4       1  1.3863   .0000  well-known"},
    {"WordFreqNoFiles", DisplayFormat::kWordFreqNoFiles,
     "  Word         Freq   No. files",  //
     "  the            12    2",         //
     "  well-known      1    1"},
    {"WordFileList", DisplayFormat::kWordFileList,
     "",                                   //
     "the\n    /t/a.txt\n    /t/b.txt\n",  //
     "well-known\n    /t/b.txt\n"},
    {"WordFileListFreq", DisplayFormat::kWordFileListFreq,
     "",                                       //
     "the\n    8 /t/a.txt\n    4 /t/b.txt\n",  //
     "well-known\n    1 /t/b.txt\n"},
};

const FormatLines kWithCommas[] = {
    {"RankFrequencyWord", DisplayFormat::kRankFrequencyWord,
     "    Rank,    Freq,  Word (longest has 10 characters)",  //
     "       1,      12,  the",                               //
     "       4,       1,  well-known"},
    {"RankWordFrequency", DisplayFormat::kRankWordFrequency,
     "    Rank,  Word      ,    Freq",  //
     "       1,  the       ,      12",  //
     "       4,  well-known,       1"},
    {"RankFrequency", DisplayFormat::kRankFrequency,
     "    Rank,    Freq",  //
     "       1,      12",  //
     "       4,       1"},
    {"RankWord", DisplayFormat::kRankWord,
     "    Rank,  Word (longest has 10 characters)",  //
     "       1,  the",                               //
     "       4,  well-known"},
    {"FrequencyRank", DisplayFormat::kFrequencyRank,
     "    Freq,    Rank",  //
     "      12,       1",  //
     "       1,       4"},
    {"FrequencyWord", DisplayFormat::kFrequencyWord,
     "    Freq,  Word (longest has 10 characters)",  //
     "      12,  the",                               //
     "       1,  well-known"},
    {"WordRank", DisplayFormat::kWordRank,
     "  Word      ,   Rank",  //
     "  the       ,      1",  //
     "  well-known,      4"},
    {"WordFrequency", DisplayFormat::kWordFrequency,
     "  Word      ,   Freq",  //
     "  the       ,     12",  //
     "  well-known,      1"},
    {"Word", DisplayFormat::kWord, "Word (longest has 10 characters)", "the", "well-known"},
    {"WordCommas", DisplayFormat::kWordCommas, std::nullopt, "the", "well-known"},
    {"ZipfData", DisplayFormat::kZipfData,
     "    Rank,    Freq,   LN(R),   LN(F),  Word",  //
     "       1,      12,   .0000,  2.4849,  the",   //
     "       4,       1,  1.3863,   .0000,  well-known"},
    {"WordFreqNoFiles", DisplayFormat::kWordFreqNoFiles,
     "  Word         Freq   No. files",  //
     "  the            12    2",         //
     "  well-known      1    1"},
    {"WordFileList", DisplayFormat::kWordFileList,
     "",                                   //
     "the\n    /t/a.txt\n    /t/b.txt\n",  //
     "well-known\n    /t/b.txt\n"},
    {"WordFileListFreq", DisplayFormat::kWordFileListFreq,
     "",                                       //
     "the\n    8 /t/a.txt\n    4 /t/b.txt\n",  //
     "well-known\n    1 /t/b.txt\n"},
};

std::string NameOf(const testing::TestParamInfo<FormatLines>& lines) {
  return lines.param.name;
}

class FormatTest : public ListingFixture, public testing::WithParamInterface<FormatLines> {
 protected:
  FormatTest() {
    AddInFile("/t/a.txt", "the", 8);
    AddInFile("/t/a.txt", "sat", 3);
    AddInFile("/t/b.txt", "the", 4);
    AddInFile("/t/b.txt", "cat", 3);
    AddInFile("/t/b.txt", "well-known");
    Finish();
    options.format = GetParam().format;
    options.folder = "/t";
    options.lineBreak = "\n";
  }

  void ExpectLinesInBothOrders() {
    RememberingSink byFrequency;
    Walk(WordOrder::kByFrequency, byFrequency);
    RememberingSink alphabetical;
    Walk(WordOrder::kAlphabetical, alphabetical);

    std::vector<std::string> headers;
    if (GetParam().header) headers.push_back(*GetParam().header);
    EXPECT_EQ(byFrequency.headers, headers);
    EXPECT_EQ(alphabetical.headers, headers);

    ASSERT_EQ(byFrequency.lines.size(), 4U);
    EXPECT_EQ(byFrequency.lines[0], GetParam().the);
    EXPECT_EQ(byFrequency.lines[3], GetParam().wellKnown);
    ASSERT_EQ(alphabetical.lines.size(), 4U);
    EXPECT_EQ(alphabetical.lines[2], GetParam().the);
    EXPECT_EQ(alphabetical.lines[3], GetParam().wellKnown);
  }
};

class PlainFormat : public FormatTest {};
INSTANTIATE_TEST_SUITE_P(Formats, PlainFormat, testing::ValuesIn(kPlain), NameOf);

TEST_P(PlainFormat, LinesAreExactlySo) {
  ExpectLinesInBothOrders();
}

class CommaFormat : public FormatTest {};
INSTANTIATE_TEST_SUITE_P(Formats, CommaFormat, testing::ValuesIn(kWithCommas), NameOf);

TEST_P(CommaFormat, LinesAreExactlySo) {
  options.withCommas = true;
  ExpectLinesInBothOrders();
}

TEST(DisplayFormat, NumbersAndNamesAreThoseOfTheComboBox) {
  for (std::size_t i = 0; i < std::size(kPlain); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(kPlain[i].format), i);
    EXPECT_EQ(static_cast<std::size_t>(kWithCommas[i].format), i);
  }
  const std::array<std::string_view, 14> names = {"rank frequency word",
                                                  "rank word frequency",
                                                  "rank frequency",
                                                  "rank word",
                                                  "frequency rank",
                                                  "frequency word",
                                                  "word rank",
                                                  "word frequency",
                                                  "word",
                                                  "word (+commas)",
                                                  "Zipf data",
                                                  "word freq no.files",
                                                  "word file-list",
                                                  "word file-list (+freq)"};
  EXPECT_EQ(kDisplayFormatNames, names);
  EXPECT_EQ(kWordOrderNames[0], "by frequency");
  EXPECT_EQ(kWordOrderNames[1], "alphabetical");
}

TEST(DisplayFormat, LastThreeTellAboutFiles) {
  for (int format = 0; format < 14; ++format) {
    EXPECT_EQ(NeedsFileTallies(static_cast<DisplayFormat>(format)), format >= 11) << format;
  }
}

}  // namespace
}  // namespace quillomat
