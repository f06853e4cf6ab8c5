// A table of any rows in the forms that are text.
#include "export/plain_table.h"

#include <algorithm>
#include <array>

#include "export/export_fixture.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

constexpr std::array kPaths = {"a.txt", "b, \"c\".txt", "d\te.txt"};

/// A path, its length, and nothing but in the first row.
PlainTable TableOfPaths(std::size_t rows = kPaths.size()) {
  return {.columns = {"path", "bytes", "why"},
          .rows = rows,
          .cellAt = [](std::size_t row, std::size_t column) -> PlainTable::Cell {
            const std::string path = kPaths.at(row % kPaths.size());
            if (column == 0) return path;
            if (column == 1) return static_cast<std::int64_t>(path.size());
            if (row == 0) return "empty";
            return {};
          }};
}

std::string PlainTextOf(ExportFormat format, std::size_t rows = kPaths.size()) {
  TextSink sink;
  ExportPlainText(TableOfPaths(rows), format, sink);
  return sink.text;
}

TEST(PlainTable, IsDelimitedAsWordsAre) {
  EXPECT_EQ(PlainTextOf(ExportFormat::kCsv),
            "path,bytes,why\r\na.txt,5,empty\r\n\"b, \"\"c\"\".txt\",10,\r\nd\te.txt,7,\r\n");
  EXPECT_EQ(PlainTextOf(ExportFormat::kTsv),
            "path\tbytes\twhy\na.txt\t5\tempty\nb, \"c\".txt\t10\t\nd\\te.txt\t7\t\n");
}

TEST(PlainTable, IsAnArrayOfObjectsInJson) {
  EXPECT_EQ(PlainTextOf(ExportFormat::kJson),
            "[\n  {\"path\": \"a.txt\", \"bytes\": 5, \"why\": \"empty\"},\n"
            "  {\"path\": \"b, \\\"c\\\".txt\", \"bytes\": 10},\n"
            "  {\"path\": \"d\\te.txt\", \"bytes\": 7}\n]\n");
  EXPECT_EQ(PlainTextOf(ExportFormat::kJsonLines, 1),
            "{\"path\": \"a.txt\", \"bytes\": 5, \"why\": \"empty\"}\n");
}

TEST(PlainTable, HoldsNothingThatIsNoUtf8) {
  const PlainTable table{.columns = {"path"}, .rows = 1, .cellAt = [](std::size_t, std::size_t) {
                           return PlainTable::Cell("\xE9\x9F.txt");
                         }};
  for (const ExportFormat format :
       {ExportFormat::kCsv, ExportFormat::kTsv, ExportFormat::kJson, ExportFormat::kJsonLines}) {
    TextSink sink;
    ExportPlainText(table, format, sink);
    EXPECT_NE(sink.text.find("\uFFFD\uFFFD.txt"), std::string::npos) << sink.text;
  }
}

TEST(PlainTable, WithoutRowsIsStillATable) {
  EXPECT_EQ(PlainTextOf(ExportFormat::kCsv, 0), "path,bytes,why\r\n");
  EXPECT_EQ(PlainTextOf(ExportFormat::kJson, 0), "[\n]\n");
  EXPECT_EQ(PlainTextOf(ExportFormat::kJsonLines, 0), "");
}

TEST(PlainTable, OfManyRowsIsWhole) {
  const std::string text = PlainTextOf(ExportFormat::kTsv, 30'001);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 30'002);
  EXPECT_TRUE(text.ends_with("a.txt\t5\t\n"));
}

TEST(PlainTable, GoesIntoAFileByTheEndingOfItsName) {
  EXPECT_EQ(PlainFormatOfPath("a.CSV"), ExportFormat::kCsv);
  EXPECT_EQ(PlainFormatOfPath("a.jsonl"), ExportFormat::kJsonLines);
  EXPECT_FALSE(PlainFormatOfPath("a.xlsx"));
  EXPECT_FALSE(PlainFormatOfPath("a"));
  EXPECT_EQ(PlainEndings(), "csv, tsv, json, jsonl");
  const TemporaryFolder folder;
  ExportPlainTable(TableOfPaths(), ExportFormat::kCsv, folder / "r.csv");
  EXPECT_EQ(ContentsOf(folder / "r.csv"), PlainTextOf(ExportFormat::kCsv));
}

}  // namespace
}  // namespace quillomat
