#include "app/table/row_cells.h"

#include "table_fixture.h"

namespace quillomat {
namespace {

class RowCellsTest : public TableFixture {
 protected:
  RowCellsTest() {
    EXPECT_GT(text_.LoadFile(std::string(QUILLOMAT_TEST_DATA) + "/qlav_text.dat"), 0);
  }
  std::string Cell(WordColumn column) { return CellOf(Rows().RowAt(0), column, signs_); }

  ProgramText text_;
  NumberSigns signs_{.group = ".", .decimal = ","};
};

TEST_F(RowCellsTest, NumbersAreWrittenAsTheUserIsUsedToThem) {
  Add("Müller", 125);
  EXPECT_EQ(Cell(WordColumn::kRank), "1");
  EXPECT_EQ(Cell(WordColumn::kWord), "Müller");
  EXPECT_EQ(Cell(WordColumn::kFrequency), "125");
  EXPECT_EQ(Cell(WordColumn::kPercent), "12,5000");
  EXPECT_EQ(Cell(WordColumn::kPerMillion), "125.000,0");
  EXPECT_EQ(Cell(WordColumn::kCumulative), "12,50");
  EXPECT_EQ(Cell(WordColumn::kLength), "6");
  EXPECT_EQ(Cell(WordColumn::kFiles), "");
  signs_.group = "";
  EXPECT_EQ(Cell(WordColumn::kPerMillion), "125000,0");
}

TEST_F(RowCellsTest, NumberOfFilesIsShownWhereItIsKnown) {
  store_.Files().Reset(true);
  store_.Files().SetFileBeingScanned("a.txt");
  Add("cat", 2);
  EXPECT_EQ(Cell(WordColumn::kFiles), "1");
}

TEST_F(RowCellsTest, TotalsAreSaidInTheLanguageOfTheProgram) {
  Add("cat", 1204);
  EXPECT_EQ(TotalsOf(Rows(), {}, text_, signs_), "1 word, 1.204 instances");
  Rows().SetFilter({FilterKind::kEquals, "dog"});
  EXPECT_EQ(TotalsOf(Rows(), {}, text_, signs_), "0 words, 0 instances");
  text_.SetLanguage(Language::kGerman);
  EXPECT_EQ(TotalsOf(Rows(), {}, text_, signs_), "0 Wörter, 0 Vorkommen");
}

TEST_F(RowCellsTest, TotalsOfAPartOfTheTextSayHowMuchOfIt) {
  Add("cat", 2);
  const CountReach reach{.files = 1050, .filesInAll = 3000};
  EXPECT_EQ(TotalsOf(Rows(), reach, text_, signs_),
            "1 word, 2 instances \u2013 Stopped at file 1.050 of 3.000");
}

}  // namespace
}  // namespace quillomat
