// The columns of a line are found again, in every format.
#include "listing/list_cells.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

TEST(ListCells, HeadersAndLinesOfTheUsualFormats) {
  EXPECT_THAT(CellsOf("   Rank    Freq  Word (longest has 3 characters)",
                      DisplayFormat::kRankFrequencyWord),
              ElementsAre("Rank", "Freq", "Word (longest has 3 characters)"));
  EXPECT_THAT(CellsOf("      1       2  cat", DisplayFormat::kRankFrequencyWord),
              ElementsAre("1", "2", "cat"));
  EXPECT_THAT(CellsOf("      1  cat          2", DisplayFormat::kRankWordFrequency),
              ElementsAre("1", "cat", "2"));
  EXPECT_THAT(CellsOf("  cat         1", DisplayFormat::kWordRank), ElementsAre("cat", "1"));
  EXPECT_THAT(CellsOf("      1      12   .3010  1.0792  cat", DisplayFormat::kZipfData),
              ElementsAre("1", "12", ".3010", "1.0792", "cat"));
}

TEST(ListCells, OneBlankParts) {
  EXPECT_THAT(CellsOf("  Word     Freq   No. files", DisplayFormat::kWordFreqNoFiles),
              ElementsAre("Word", "Freq", "No. files"));
  EXPECT_THAT(CellsOf("  harbours 123456 12345", DisplayFormat::kWordFreqNoFiles),
              ElementsAre("harbours", "123456", "12345"));
}

TEST(ListCells, PathsKeepTheirBlanks) {
  EXPECT_THAT(CellsOf("cat", DisplayFormat::kWordFileList), ElementsAre("cat"));
  EXPECT_THAT(CellsOf("    {Folder}/my  book.txt", DisplayFormat::kWordFileList),
              ElementsAre("", "{Folder}/my  book.txt"));
  EXPECT_THAT(CellsOf("    3 {Folder}/my  book.txt", DisplayFormat::kWordFileListFreq),
              ElementsAre("", "3", "{Folder}/my  book.txt"));
  EXPECT_THAT(CellsOf("  3 {Folder}/my  book.txt", DisplayFormat::kWordFileListFreq),
              ElementsAre("  3 {Folder}/my  book.txt"))
      << "the number ends at its column";
  EXPECT_THAT(CellsOf("1234567 a.txt", DisplayFormat::kWordFileListFreq),
              ElementsAre("", "1234567", "a.txt"));
}

class ListedCells : public ListingFixture {};

TEST_F(ListedCells, EveryLineOfEveryFormatHasTheColumnsOfItsFormat) {
  AddInFile("/books/a b.txt", "cat", 3);
  AddInFile("/books/c.txt", "well-known", 12'345);
  Finish();
  constexpr std::array<std::size_t, 12> kColumns = {3, 3, 2, 2, 2, 2, 2, 2, 1, 1, 5, 3};
  for (std::size_t format = 0; format < kColumns.size(); ++format) {
    options.format = static_cast<DisplayFormat>(format);
    RememberingSink sink;
    Walk(WordOrder::kByFrequency, sink);
    sink.lines.insert(sink.lines.end(), sink.headers.begin(), sink.headers.end());
    for (const std::string& line : sink.lines) {
      EXPECT_EQ(CellsOf(line, options.format).size(), kColumns[format]) << format << line;
    }
  }
}

TEST(ListCells, WhatIsNoLineOfTheListIsOneCell) {
  const std::string_view notice = "8 files (in 1 folder) were scanned.";
  for (int format = 0; format < 14; ++format) {
    EXPECT_THAT(CellsOf(notice, static_cast<DisplayFormat>(format)), ElementsAre(notice)) << format;
    EXPECT_THAT(CellsOf("", static_cast<DisplayFormat>(format)), ElementsAre("")) << format;
  }
  EXPECT_THAT(CellsOf("{Folder} = /my books", DisplayFormat::kWordFileListFreq),
              ElementsAre("{Folder} = /my books"));
}

}  // namespace
}  // namespace quillomat
