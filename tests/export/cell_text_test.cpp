// Numbers of an export are plain, with a fixed number of decimals, and rounded half up.
#include "export/cell_text.h"

#include "export/export_fixture.h"

namespace quillomat {
namespace {

std::string NumberText(WordColumn column, const WordRow& word) {
  std::string out;
  AppendNumber(out, {word, {}}, column);
  return out;
}

TEST(CellText, DecimalsAreFixed) {
  WordRow row;
  row.percent = 100;
  row.perMillion = 0.005;
  row.cumulativePercent = 99.9999996;
  EXPECT_EQ(NumberText(WordColumn::kPercent, row), "100.000000");
  EXPECT_EQ(NumberText(WordColumn::kPerMillion, row), "0.01");
  EXPECT_EQ(NumberText(WordColumn::kCumulative, row), "100.000000");
  row.percent = 0.000123;
  EXPECT_EQ(NumberText(WordColumn::kPercent, row), "0.000123");
}

TEST(CellText, AnUnknownNumberOfFilesIsEmpty) {
  WordRow row;
  EXPECT_EQ(NumberText(WordColumn::kFiles, row), "");
  row.files = 0;
  EXPECT_EQ(NumberText(WordColumn::kFiles, row), "0");
}

TEST(CellText, APointOfACurveIsTwoNumbers) {
  EXPECT_EQ(TextOf(ExportFact{"growth", std::vector<GrowthPoint>{{100, 80}, {200, 130}}}),
            "100: 80; 200: 130");
}

TEST(CellText, FactsAreWrittenAsTheyAre) {
  EXPECT_EQ(TextOf(ExportFact{"a", std::int64_t{12}}), "12");
  EXPECT_EQ(TextOf(ExportFact{"a", 0.25}), "0.25");
  EXPECT_EQ(TextOf(ExportFact{"a", std::string("x y")}), "x y");
}

using WordTableTest = ExportFixture;

TEST_F(WordTableTest, CumulativeSharesAgreeWithASumFromTheTop) {
  for (int word = 0; word < 500; ++word) {
    for (int times = 0; times <= word % 7; ++times) store_.AddWord("w" + std::to_string(word));
  }
  Rank();
  std::int64_t sum = 0;
  for (const std::int32_t place : table_->ByFrequency()) {
    const WordRow row = table_->RowOf(place);
    sum += row.frequency;
    EXPECT_DOUBLE_EQ(row.cumulativePercent, 100.0 * static_cast<double>(sum) / kWordsRead);
  }
}

TEST_F(WordTableTest, LeavesOutWordsThatAreNotListed) {
  Count({{"a", 3}, {"b", 2}, {"c", 1}});
  store_.SetIncluded(2, false);
  Rank();
  EXPECT_EQ(table_->Size(), 2U);
  EXPECT_EQ(table_->Alphabetical(), (std::vector<std::int32_t>{1, 3}));
  EXPECT_EQ(table_->RowOf(3).rank, 2);
}

TEST_F(WordTableTest, OfNoWordsIsEmpty) {
  Count({});
  EXPECT_EQ(table_->Size(), 0U);
  EXPECT_TRUE(table_->Alphabetical().empty());
}

}  // namespace
}  // namespace quillomat
