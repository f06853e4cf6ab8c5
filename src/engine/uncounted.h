// What a count meets and does not count, so that the user can be told.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillomat {

struct Uncounted {
  /// Letters that are none by the western rule: those beyond Latin-1, in comments as well.
  std::int64_t foreignLetters = 0;
  /// Lines that are not well-formed UTF-8 and were read as Windows-1252.
  std::int64_t linesNotUtf8 = 0;
  /// Bytes that are no character of the encoding that their text was converted from.
  std::int64_t bytesNotDecoded = 0;
  /// Whether letters of scripts without blanks were not cut into words, for want of a segmenter.
  bool runsLeftWhole = false;

  Uncounted& operator+=(const Uncounted& other) {
    foreignLetters += other.foreignLetters;
    linesNotUtf8 += other.linesNotUtf8;
    bytesNotDecoded += other.bytesNotDecoded;
    runsLeftWhole = runsLeftWhole || other.runsLeftWhole;
    return *this;
  }
  /// Of numbers; whether runs were left whole is told of all that was counted so far.
  Uncounted& operator-=(const Uncounted& other) {
    foreignLetters -= other.foreignLetters;
    linesNotUtf8 -= other.linesNotUtf8;
    bytesNotDecoded -= other.bytesNotDecoded;
    return *this;
  }
  bool operator==(const Uncounted&) const = default;
};

/// How many letters of `text`, well-formed UTF-8, the western rule does not count. It counts the
/// capital of U+00FF where the text will be lower-cased.
[[nodiscard]] std::int64_t CountForeignLetters(std::string_view text, bool caseSignificant);

}  // namespace quillomat
