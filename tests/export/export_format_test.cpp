// The ending of a file's name tells the format.
#include "export/export_format.h"

#include <gtest/gtest.h>

#include "listing/word_table.h"

namespace quillomat {
namespace {

TEST(ExportFormatTest, IsToldByTheEndingInAnyCase) {
  EXPECT_EQ(ExportFormatOfPath("list.csv"), ExportFormat::kCsv);
  EXPECT_EQ(ExportFormatOfPath("/a.b/LIST.XLSX"), ExportFormat::kXlsx);
  EXPECT_EQ(ExportFormatOfPath("x.htm"), ExportFormat::kHtml);
  EXPECT_EQ(ExportFormatOfPath("x.jsonl"), ExportFormat::kJsonLines);
  EXPECT_EQ(ExportFormatOfPath("x.txt"), std::nullopt);
  EXPECT_EQ(ExportFormatOfPath("csv"), std::nullopt);
}

TEST(ExportFormatTest, EveryEndingIsItsOwnFormat) {
  for (const ExportFormatInfo& info : kExportFormats) {
    EXPECT_EQ(ExportFormatOfPath("x." + std::string(info.ending)), info.format) << info.ending;
    EXPECT_NE(ExportEndings().find(info.ending), std::string::npos);
  }
}

TEST(ExportFormatTest, ColumnsAreFoundByTheirNames) {
  for (std::size_t i = 0; i < kWordColumnNames.size(); ++i) {
    EXPECT_EQ(WordColumnOfName(kWordColumnNames.at(i)), static_cast<WordColumn>(i));
  }
  EXPECT_EQ(WordColumnOfName("percents"), std::nullopt);
}

}  // namespace
}  // namespace quillomat
