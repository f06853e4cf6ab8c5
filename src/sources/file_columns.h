// The report of a count by file as a table: what stands in which column of a file's row. The same
// for a file that the terminal writes and for the window.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "sources/count_result.h"

namespace quillomat {

enum class FileColumn : std::uint8_t {
  kPath,
  /// Of the file, whether they were read or not.
  kBytes,
  kEncoding,
  kLineEnds,
  kLines,
  /// Candidate words, counted or not.
  kWords,
  kLettersNotCounted,
  kLinesNotUtf8,
  kBytesNotDecoded,
  /// Why it was not read, or not to its end; empty for one that was.
  kSkipped,
};

/// The names of the columns in files, in the order of FileColumn.
inline constexpr std::array<std::string_view, 10> kFileColumnNames = {"path",
                                                                      "bytes",
                                                                      "encoding",
                                                                      "line-ends",
                                                                      "lines",
                                                                      "words",
                                                                      "letters-not-counted",
                                                                      "lines-not-utf8",
                                                                      "bytes-not-decoded",
                                                                      "skipped"};

/// Nothing where it is not known, or means nothing.
using FileCell = std::variant<std::monostate, std::int64_t, std::string>;

[[nodiscard]] FileCell CellOf(const FileReport& report, FileColumn column);

/// How the lines of a text end.
enum class LineEndKind : std::uint8_t { kNone, kDos, kUnix, kMacintosh, kMixed };
[[nodiscard]] LineEndKind LineEndKindOf(const LineEndFigures& lines);

/// Whether a count was stopped in the middle of the file.
[[nodiscard]] bool IsReadInPart(const FileReport& report);

}  // namespace quillomat
