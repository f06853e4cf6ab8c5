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
  EXPECT_EQ(
      FindExportFault(Exporting({"a.csv", "b.doc"})),
      "--export b.doc: the name must end in one of: csv, tsv, xlsx, html, md, json, jsonl; or "
      "--export-format says which it is");
}

TEST(ExportOptions, TheFormatIsForNamesThatDoNotTellIt) {
  CommandLine options = Exporting({"-", "a.json", "b.doc"});
  options.exportFormat = "md";
  EXPECT_EQ(FindExportFault(options), std::nullopt);
  EXPECT_EQ(FormatOfExport(options, "-"), ExportFormat::kMarkdown);
  EXPECT_EQ(FormatOfExport(options, "a.json"), ExportFormat::kJson);
  EXPECT_EQ(FormatOfExport(options, "b.doc"), ExportFormat::kMarkdown);
  options.exportFormat = "doc";
  EXPECT_EQ(FindExportFault(options),
            "--export-format doc: takes one of: csv, tsv, xlsx, html, md, json, jsonl");
  options = Exporting({"a.json"});
  options.exportFormat = "JSON";
  EXPECT_EQ(FindExportFault(options), std::nullopt) << "it is the same";
  options.exportFormat = "csv";
  EXPECT_EQ(FindExportFault(options),
            "--export-format csv contradicts the ending of a.json; it is for names without such an "
            "ending, and for -");
  options.exports.clear();
  EXPECT_EQ(FindExportFault(options), "--export-format csv goes with --export");
}

TEST(ExportOptions, StandardOutputTakesOneExport) {
  EXPECT_EQ(FindExportFault(Exporting({"-", "a.csv"})), std::nullopt);
  EXPECT_EQ(FormatOfExport(Exporting({"-"}), "-"), ExportFormat::kCsv);
  EXPECT_EQ(FindExportFault(Exporting({"-", "-"})), "--export -: standard output takes one export");
}

TEST(ExportOptions, AnUnknownColumnNamesThosePossible) {
  EXPECT_EQ(FindExportFault(Exporting({"a.csv"}, "word,percents")),
            "--columns: 'percents' is none of: rank, word, frequency, percent, per-million, "
            "cumulative, length, files, file");
  EXPECT_EQ(FindExportFault(Exporting({"a.csv"}, " , ")), "--columns: no column is named");
  EXPECT_EQ(FindExportFault(Exporting({"a.csv"}, "word,rank,word")),
            "--columns: 'word' is named twice");
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
