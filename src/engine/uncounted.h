// What a count meets and does not count, so that the user can be told.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillomat {

struct Uncounted {
  /// Letters that are none by the western rule but by that for all letters, in comments as well:
  /// those beyond Latin-1, U+00AA, U+00B5 and U+00BA, and the marks that stand on or behind a
  /// letter as characters of their own. U+02BC is none: it becomes an apostrophe.
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

/// How many letters of `text`, well-formed UTF-8, the western rule does not count
/// (Uncounted::foreignLetters). It counts the capital of U+00FF where the text will be lower-cased.
/// `behindLetter`: of what stands before the text, as EndsInLetter says.
[[nodiscard]] std::int64_t CountForeignLetters(std::string_view text, bool caseSignificant,
                                               bool behindLetter = false);

/// Whether `text` ends in a letter, or in one and its marks, with characters among them that are
/// dropped (normal_text.h); an empty one as that before it.
[[nodiscard]] bool EndsInLetter(std::string_view text, bool behindLetter = false);

/// Tells of the marks of a text, in their order, whether they stand on or behind a letter. No pile
/// of them is climbed twice.
class MarksOnLetters {
 public:
  /// `behindLetter`: of what stands before the text, as EndsInLetter says.
  explicit MarksOnLetters(std::string_view text = {}, bool behindLetter = false)
      : text_(text), onLetter_(behindLetter) {}

  /// Of the mark at that place.
  [[nodiscard]] bool IsOnLetter(std::size_t start, std::size_t bytes) {
    onLetter_ = EndsInLetter(text_.substr(behind_, start - behind_), onLetter_);
    behind_ = start + bytes;
    return onLetter_;
  }

 private:
  std::string_view text_;
  /// The place behind the last mark that was asked for, and what was told of it.
  std::size_t behind_ = 0;
  bool onLetter_;
};

}  // namespace quillomat
