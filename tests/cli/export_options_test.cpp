// --export and --columns: what is wrong with them is told before anything is read.
#include "cli/export_options.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

CommandLine Exporting(std::vector<std::string> paths, std::optional<std::string> columns = {}) {
  CommandLine options;
  options.exports = std::move(paths);
  options.columns = std::move(columns);
  return options;
}

TEST(ExportOptions, AnUnknownEndingNamesThosePossible) {
  EXPECT_EQ(FindExportFault(Exporting({"a.csv", "b.xlsx"})), std::nullopt);
  EXPECT_EQ(FindExportFault(Exporting({"a.csv", "b.doc"})),
            "--export: 'b.doc' must end in one of: csv, tsv, xlsx, html, md, json, jsonl");
}

TEST(ExportOptions, AnUnknownColumnNamesThosePossible) {
  EXPECT_EQ(FindExportFault(Exporting({"a.csv"}, "word,percents")),
            "--columns: 'percents' is none of: rank, word, frequency, percent, per-million, "
            "cumulative, length, files, file");
  EXPECT_EQ(FindExportFault(Exporting({"a.csv"}, " , ")), "--columns: no column is named");
}

TEST(ExportOptions, ColumnsWithoutAnExportAreAFault) {
  EXPECT_EQ(FindExportFault(Exporting({}, "word")), "--columns goes with --export");
}

TEST(ExportOptions, ColumnsMayStandWithBlanksOrCommas) {
  EXPECT_EQ(
      ExportColumns(Exporting({"a.csv"}, "word, per-million rank"), false),
      (std::vector<WordColumn>{WordColumn::kWord, WordColumn::kPerMillion, WordColumn::kRank}));
}

TEST(ExportOptions, WithoutColumnsAllThatAreKnownAreExported) {
  EXPECT_EQ(ExportColumns(Exporting({"a.csv"}), false).size(), 7U);
  EXPECT_EQ(ExportColumns(Exporting({"a.csv"}), true).back(), WordColumn::kFiles);
}

}  // namespace
}  // namespace quillomat
