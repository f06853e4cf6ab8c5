// What stands in the columns of a report by file.
#include "sources/file_columns.h"

#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

using enum FileColumn;

std::string Shown(const FileReport& report, FileColumn column) {
  const FileCell cell = CellOf(report, column);
  if (const auto* number = std::get_if<std::int64_t>(&cell)) return std::to_string(*number);
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  return "";
}

FileReport ReportOf(const LineEndFigures& lines, std::int64_t linesNotUtf8 = 0) {
  FileReport report;
  report.lines = lines;
  report.uncounted.linesNotUtf8 = linesNotUtf8;
  return report;
}

TEST(FileColumns, EncodingIsWhatTheTextWasReadAs) {
  EXPECT_EQ(Shown(ReportOf({.lineFeeds = 3}), kEncoding), "ASCII");
  EXPECT_EQ(Shown(ReportOf({.lineFeeds = 3, .ascii = false}), kEncoding), "UTF-8");
  EXPECT_EQ(Shown(ReportOf({.lineFeeds = 3, .ascii = false}, 1), kEncoding), "UTF-8, Windows-1252");
  EXPECT_EQ(Shown(ReportOf({.lineFeeds = 3, .ascii = false}, 3), kEncoding), "Windows-1252");
  FileReport marked;
  marked.encoding = TextEncoding::kUtf8WithMark;
  EXPECT_EQ(Shown(marked, kEncoding), "UTF-8");
  marked.convertedFrom = CharacterSet::kUtf16;
  EXPECT_EQ(Shown(marked, kEncoding), "UTF-16");
  marked.convertedFrom = CharacterSet::kKoi8R;
  EXPECT_EQ(Shown(marked, kEncoding), "KOI8-R");
}

TEST(FileColumns, LineEndsAreNamedByTheirSystem) {
  EXPECT_EQ(Shown(ReportOf({.crLf = 2}), kLineEnds), "DOS");
  EXPECT_EQ(Shown(ReportOf({.lineFeeds = 2, .endsOpen = true}), kLineEnds), "Unix");
  EXPECT_EQ(Shown(ReportOf({.returns = 2}), kLineEnds), "Macintosh");
  EXPECT_EQ(Shown(ReportOf({.crLf = 900, .lineFeeds = 1}), kLineEnds), "mixed");
  EXPECT_EQ(Shown(ReportOf({.endsOpen = true}), kLineEnds), "none");
  EXPECT_EQ(Shown(ReportOf({.crLf = 2, .endsOpen = true}), kLines), "3");
}

TEST(FileColumns, OfAFileThatWasNotReadOnlyItsSizeAndTheReasonAreKnown) {
  FileReport report;
  report.path = "a.png";
  report.bytes = 7;
  report.refusal = Refusal::kNotText;
  EXPECT_EQ(Shown(report, kPath), "a.png");
  EXPECT_EQ(Shown(report, kBytes), "7");
  EXPECT_EQ(Shown(report, kSkipped), "not text");
  for (const FileColumn column : {kEncoding, kLineEnds, kLines, kWords}) {
    EXPECT_EQ(Shown(report, column), "");
  }
}

TEST(FileColumns, ReasonTellsOfTheError) {
  FileReport report;
  report.refusal = Refusal::kCannotBeOpened;
  report.error = RunTimeError(RunTimeErrorNumber::kPermissionDenied);
  EXPECT_EQ(Shown(report, kSkipped), "cannot be opened: Permission denied");
  report.refusal = Refusal::kNotFound;
  EXPECT_EQ(Shown(report, kSkipped), "not found");
  EXPECT_EQ(Shown(report, kBytes), "");
  report.refusal = Refusal::kEmpty;
  EXPECT_EQ(Shown(report, kBytes), "0");
}

TEST(FileColumns, AFileThatWasReadToItsEndHasNoReason) {
  FileReport report;
  report.bytes = 10;
  report.bytesRead = 10;
  EXPECT_EQ(Shown(report, kSkipped), "");
  report.bytesRead = 12;
  EXPECT_EQ(Shown(report, kBytes), "12") << "it has grown";
  EXPECT_EQ(Shown(report, kSkipped), "");
  report.bytesRead = 4;
  EXPECT_TRUE(IsReadInPart(report));
  EXPECT_EQ(Shown(report, kSkipped), "stopped behind byte 4");
}

}  // namespace
}  // namespace quillomat
