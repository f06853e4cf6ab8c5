// A workbook is an archive of its own kind; that spreadsheets open it is tested end to end.
#include "export/xlsx_export.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "base/run_time_error.h"
#include "export/export_fixture.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

class XlsxExport : public ExportFixture {
 protected:
  bool Write(std::size_t rowsPerSheet, const ExportProgress& progress = {}) {
    return WriteXlsx(Table({WordColumn::kWord, WordColumn::kPercent}), Path(), folder_.Path(),
                     progress, rowsPerSheet);
  }
  [[nodiscard]] std::string Path() const { return folder_ / "list.xlsx"; }
  [[nodiscard]] std::string Bytes() const {
    std::ifstream file(Path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  /// Names of the archive's parts stand in it as they are.
  [[nodiscard]] bool HasPart(std::string_view name) const {
    return Bytes().find(name) != std::string::npos;
  }
  TemporaryFolder folder_;
};

TEST_F(XlsxExport, IsAnArchiveWithASheetOfWords) {
  Count({{"the", 2}, {"whale", 1}});
  EXPECT_TRUE(Write(kRowsPerSheet));
  EXPECT_EQ(Bytes().substr(0, 2), "PK");
  EXPECT_TRUE(HasPart("xl/worksheets/sheet1.xml"));
  EXPECT_FALSE(HasPart("xl/worksheets/sheet2.xml"));
}

TEST_F(XlsxExport, WordsThatLookLikeEscapesAreEscaped) {
  EXPECT_EQ(XlsxText("snake_x_case"), "snake_x_case");
  EXPECT_EQ(XlsxText("_x000d_"), "_x005F_x000d_");
  EXPECT_EQ(XlsxText("a_xBEEF_x0041_"), "a_x005F_xBEEF_x005F_x0041_");
  EXPECT_EQ(XlsxText("_x00g0_"), "_x00g0_");
  EXPECT_EQ(XlsxText("_x000d"), "_x000d");
}

TEST_F(XlsxExport, TextThatACellDoesNotHoldGoesOnInTheNext) {
  using testing::ElementsAre;
  EXPECT_TRUE(XlsxCells("").empty());
  EXPECT_THAT(XlsxCells("a b"), ElementsAre("a b"));
  const std::string most(32'767, 'w');
  EXPECT_THAT(XlsxCells(most), ElementsAre(most));
  EXPECT_THAT(XlsxCells(most + "x"), ElementsAre(most, "x"));
  EXPECT_THAT(XlsxCells("a " + most), ElementsAre("a ", most)) << "cut behind a blank";
}

TEST_F(XlsxExport, CellsAreMeasuredInUnitsOfUtf16AndAsTheyAreWritten) {
  std::string pairs;
  for (int i = 0; i < 16'384; ++i) pairs += "\U0001F600";
  const std::vector<std::string> cells = XlsxCells(pairs);
  ASSERT_EQ(cells.size(), 2U);
  EXPECT_EQ(cells[1], "\U0001F600");
  EXPECT_EQ(cells[0] + cells[1], pairs);
  std::string escapes;
  for (int i = 0; i < 4'000; ++i) escapes += "_x000D_";
  std::string written;
  for (const std::string& cell : XlsxCells(escapes)) {
    EXPECT_LE(cell.size(), 32'767U);
    written += cell;
  }
  EXPECT_GT(written.size(), escapes.size());
}

TEST_F(XlsxExport, FactsStandOnASheetOfTheirOwn) {
  Count({{"the", 2}});
  totalsFacts_ = {{"words-read", std::int64_t{2}}, {"ratio", 0.5}, {"source", std::string("a")}};
  statistics_ = {{"growth", std::vector<GrowthPoint>{{1, 1}, {2, 2}}}};
  settings_ = {{"paths", std::vector<std::string>{"a.txt", "b.txt", "caf\xE9.txt"}}};
  EXPECT_TRUE(Write(kRowsPerSheet));
  EXPECT_TRUE(HasPart("xl/worksheets/sheet2.xml"));
}

TEST_F(XlsxExport, ASettingThatIsLongerThanACellIsNoError) {
  Count({{"the", 2}});
  for (const std::string& text :
       {std::string(40'999, 'w'), std::string(20'000, ' '), std::string(32'767, 'w')}) {
    settings_ = {{"words", text}};
    EXPECT_TRUE(Write(kRowsPerSheet));
  }
}

TEST_F(XlsxExport, APathThatIsLongerThanACellIsNoFullDisk) {
  CountInFile(std::string(32'768, 'p'));
  try {
    WriteXlsx(Table({WordColumn::kFile}), Path(), folder_.Path(), {});
    FAIL() << "no cell holds it";
  } catch (const RunTimeError& error) {
    EXPECT_NE(error.Description().find("String exceeds"), std::string::npos) << error.Description();
  }
}

TEST_F(XlsxExport, WordsThatASheetDoesNotHoldGoOnInTheNext) {
  Count({{"a", 4}, {"b", 3}, {"c", 2}, {"d", 1}});
  EXPECT_TRUE(Write(2));
  EXPECT_TRUE(HasPart("xl/worksheets/sheet2.xml"));
  EXPECT_FALSE(HasPart("xl/worksheets/sheet3.xml"));
}

TEST_F(XlsxExport, LeavesNoFileWhenItIsEnded) {
  for (int i = 0; i < 5000; ++i) store_.AddWord("w" + std::to_string(i));
  Rank();
  EXPECT_FALSE(Write(kRowsPerSheet, [](std::size_t) { return false; }));
  EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(XlsxExport, AFolderThatIsNotThereIsAnError) {
  Count({{"the", 1}});
  EXPECT_THROW(WriteXlsx(Table({WordColumn::kWord}), Path() + "/no/list.xlsx", folder_.Path(), {}),
               RunTimeError);
}

}  // namespace
}  // namespace quillomat
