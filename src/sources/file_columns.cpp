#include "sources/file_columns.h"

#include <algorithm>

#include "sources/refusal_text.h"

namespace quillomat {
namespace {

bool WasRead(const FileReport& report) {
  return report.refusal == Refusal::kNone || report.refusal == Refusal::kReadFailed;
}

FileCell BytesOf(const FileReport& report) {
  if (report.bytes) return std::max(*report.bytes, report.bytesRead);
  if (WasRead(report) || report.refusal == Refusal::kEmpty) return report.bytesRead;
  return {};
}

/// Where nothing is converted, a line that is not UTF-8 is read as Windows-1252, each by itself.
std::string EncodingOf(const FileReport& report) {
  if (report.convertedFrom != CharacterSet::kAsFound) {
    return std::string(NameOf(report.convertedFrom));
  }
  const std::int64_t notUtf8 = report.uncounted.linesNotUtf8;
  if (notUtf8 > 0) {
    const bool whole = report.lines && notUtf8 >= report.lines->Lines();
    return whole ? "Windows-1252" : "UTF-8, Windows-1252";
  }
  return report.lines && report.lines->ascii ? "ASCII" : "UTF-8";
}

/// In the order of LineEndKind.
constexpr std::array<std::string_view, 5> kLineEndNames = {"none", "DOS", "Unix", "Macintosh",
                                                           "mixed"};

FileCell LineEndsCell(const FileReport& report) {
  if (!report.lines) return {};
  return std::string(kLineEndNames.at(static_cast<std::size_t>(LineEndKindOf(*report.lines))));
}

FileCell SkippedCell(const FileReport& report) {
  if (report.refusal != Refusal::kNone) return RefusalInColumn(report.refusal, report.error);
  if (IsReadInPart(report)) {
    return "stopped behind byte " + std::to_string(report.bytesRead);
  }
  return {};
}

/// What is known of the text of a file that was read.
FileCell TextCellOf(const FileReport& report, FileColumn column) {
  switch (column) {
    case FileColumn::kEncoding:
      return EncodingOf(report);
    case FileColumn::kLineEnds:
      return LineEndsCell(report);
    case FileColumn::kLines:
      return report.lines ? FileCell(report.lines->Lines()) : FileCell();
    case FileColumn::kWords:
      return std::int64_t{report.wordsRead};
    case FileColumn::kLettersNotCounted:
      return report.uncounted.foreignLetters;
    case FileColumn::kLinesNotUtf8:
      return report.uncounted.linesNotUtf8;
    case FileColumn::kBytesNotDecoded:
      return report.uncounted.bytesNotDecoded;
    default:
      return {};
  }
}

}  // namespace

LineEndKind LineEndKindOf(const LineEndFigures& lines) {
  const bool dos = lines.crLf > 0;
  const bool unixLike = lines.lineFeeds > 0;
  const bool macintosh = lines.returns > 0;
  if (int{dos} + int{unixLike} + int{macintosh} > 1) return LineEndKind::kMixed;
  if (dos) return LineEndKind::kDos;
  if (unixLike) return LineEndKind::kUnix;
  return macintosh ? LineEndKind::kMacintosh : LineEndKind::kNone;
}

bool IsReadInPart(const FileReport& report) {
  if (report.refusal != Refusal::kNone) return false;
  return report.wasStopped || (report.bytes && report.bytesRead < *report.bytes);
}

FileCell CellOf(const FileReport& report, FileColumn column) {
  switch (column) {
    case FileColumn::kPath:
      return report.path;
    case FileColumn::kBytes:
      return BytesOf(report);
    case FileColumn::kSkipped:
      return SkippedCell(report);
    default:
      return WasRead(report) ? TextCellOf(report, column) : FileCell();
  }
}

}  // namespace quillomat
