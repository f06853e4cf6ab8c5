// Every line of a list knows its cells, in every format.
#include "listing/list_cells.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListedCells : public ListingFixture {
 protected:
  /// The cells of the header (0) or of a word's line.
  [[nodiscard]] std::vector<std::string> CellsOf(std::int32_t index, DisplayFormat format) {
    options.format = format;
    std::string line = "before ";  // lines are appended
    std::vector<CellSpan> cells;
    LineFormatter(Counted(), options).FormatWordLine(line, index, &cells);
    EXPECT_EQ(line.substr(7), LineOf(index)) << "the cells change nothing of the line";
    std::vector<std::string> texts;
    for (const CellSpan& cell : cells) {
      texts.push_back(line.substr(cell.begin, cell.end - cell.begin));
    }
    return texts;
  }

  [[nodiscard]] ListCells CellsOfList(std::int32_t words) {
    const LineFormatter formatter(Counted(), options);
    CellSink sink(formatter, words);
    Walk(WordOrder::kByFrequency, sink);
    return sink.Take();
  }

  [[nodiscard]] static std::vector<std::string> TextsOf(const ListCells& cells,
                                                        std::string_view line) {
    std::vector<std::string> texts;
    for (const CellSpan& cell : cells.Of(line)) {
      texts.emplace_back(line.substr(cell.begin, cell.end - cell.begin));
    }
    return texts;
  }
};

TEST_F(ListedCells, HeadersAndLinesOfTheUsualFormats) {
  Add("cat", 12);
  Finish();
  EXPECT_THAT(CellsOf(0, DisplayFormat::kRankFrequencyWord),
              ElementsAre("Rank", "Freq", "Word (longest has 3 characters)"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kRankFrequencyWord), ElementsAre("1", "12", "cat"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kRankWordFrequency), ElementsAre("1", "cat", "12"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kWordRank), ElementsAre("cat", "1"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kWord), ElementsAre("cat"));
  options.useLog10 = true;
  EXPECT_THAT(CellsOf(1, DisplayFormat::kZipfData),
              ElementsAre("1", "12", ".0000", "1.0792", "cat"));
}

TEST_F(ListedCells, BlanksInACellPartNothing) {
  AddInFile("/books/a.txt", "harbours", 30'000);
  Finish();
  EXPECT_THAT(CellsOf(0, DisplayFormat::kWordFreqNoFiles),
              ElementsAre("Word", "Freq", "No. files"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kWordFreqNoFiles), ElementsAre("harbours", "30000", "1"));
}

TEST_F(ListedCells, PathsKeepTheirBlanks) {
  AddInFile("/books/of mine/my  book.txt", "cat", 3);
  AddInFile("/books/of mine/2 b.txt", "cat", 30'000);
  Finish();
  options.folder = "/books/of mine";
  EXPECT_THAT(CellsOf(1, DisplayFormat::kWordFileList),
              ElementsAre("", "{Folder}/my  book.txt", "", "{Folder}/2 b.txt"));
  EXPECT_THAT(CellsOf(1, DisplayFormat::kWordFileListFreq),
              ElementsAre("", "3", "{Folder}/my  book.txt", "", "30000", "{Folder}/2 b.txt"));
  EXPECT_THAT(CellsOf(0, DisplayFormat::kWordFileListFreq), IsEmpty());
}

TEST_F(ListedCells, EveryLineOfEveryFormatHasTheColumnsOfItsFormat) {
  AddInFile("/books/a b.txt", "cat", 3);
  AddInFile("/books/c.txt", "well-known", 12'345);
  Finish();
  constexpr std::array<std::size_t, 12> kColumns = {3, 3, 2, 2, 2, 2, 2, 2, 1, 1, 5, 3};
  for (const bool withCommas : {false, true}) {
    options.withCommas = withCommas;
    for (std::size_t format = 0; format < kColumns.size(); ++format) {
      for (std::int32_t index = 0; index <= 2; ++index) {
        const auto cells = CellsOf(index, static_cast<DisplayFormat>(format));
        EXPECT_EQ(cells.size(), kColumns.at(format)) << format;
        for (const std::string& cell : cells) EXPECT_NE(cell, "") << format;
      }
    }
  }
}

TEST_F(ListedCells, LinesAreFoundByTheirText) {
  AddSample();
  Finish();
  const ListCells cells = CellsOfList(2);
  EXPECT_THAT(TextsOf(cells, "      1      12  the"), ElementsAre("1", "12", "the"));
  EXPECT_THAT(TextsOf(cells, "   Rank    Freq  Word (longest has 10 characters)"),
              ElementsAre("Rank", "Freq", "Word (longest has 10 characters)"));
  EXPECT_THAT(TextsOf(cells, "      2       3  cat"), ElementsAre("2", "3", "cat"));
  EXPECT_THAT(TextsOf(cells, "      3       3  sat"), IsEmpty()) << "only two were wanted";
  EXPECT_THAT(TextsOf(cells, "1 12 the"), IsEmpty());
  EXPECT_THAT(TextsOf(cells, "8 files (in 1 folder) were scanned."), IsEmpty());
  EXPECT_THAT(TextsOf(cells, ""), IsEmpty());
}

TEST_F(ListedCells, EachFileOfAWordIsALineOfItsOwn) {
  AddInFile("/b/a  b.txt", "cat", 2);
  AddInFile("/b/c.txt", "cat", 1);
  Finish();
  options.format = DisplayFormat::kWordFileListFreq;
  const ListCells cells = CellsOfList(1);
  EXPECT_THAT(TextsOf(cells, "    2 /b/a  b.txt"), ElementsAre("", "2", "/b/a  b.txt"));
  EXPECT_THAT(TextsOf(cells, "    1 /b/c.txt"), ElementsAre("", "1", "/b/c.txt"));
  EXPECT_THAT(TextsOf(cells, "cat"), IsEmpty());
}

}  // namespace
}  // namespace quillomat
