// The two walks over a finished count: each listed word becomes one line and goes to a sink. The
// sinks decide what becomes of the lines; the same walk fills the window's text box and an output
// file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "listing/list_line.h"

namespace quillomat {

class ListSink {
 public:
  ListSink() = default;
  ListSink(const ListSink&) = delete;
  ListSink& operator=(const ListSink&) = delete;
  ListSink(ListSink&&) = delete;
  ListSink& operator=(ListSink&&) = delete;
  virtual ~ListSink() = default;

  /// The header line comes first, once. It is not called for "word (+commas)", which has none.
  virtual void TakeHeader(std::string_view line) = 0;
  /// The line of the word at alphabetical place `index`. False ends the walk at once.
  virtual bool TakeWord(std::int32_t index, std::string_view line) = 0;

  // The same in two steps, so that a line can be put together where it is to stay: to copy one that
  // was just written takes as long as to write it.

  /// Where the line is to be appended.
  virtual std::string& LineRoom() {
    line_.clear();
    return line_;
  }
  virtual bool TakeLineInRoom(std::int32_t index) { return TakeWord(index, line_); }

 private:
  std::string line_;
};

/// Emits the header line.
void EmitHeader(const LineFormatter& formatter, ListSink& sink);

/// Emits the listed words; false when the sink ended the walk.
bool ListAlphabetical(const CountedWords& words, const LineFormatter& formatter, ListSink& sink);
bool ListByFrequency(const CountedWords& words, const LineFormatter& formatter, ListSink& sink);

/// The line about the folder that stands above a list in the window. The plural and the verb go by
/// different rules, so that no file reads "0 file (in 1 folder) were scanned.".
[[nodiscard]] std::string ScanHeaderText(std::int32_t files, std::int32_t folders,
                                         std::string_view digitGroupSeparator);

/// What stands in place of a list without words. The two indexes are the places chosen in the
/// panel's lists of word sizes and frequencies.
struct NoWordsChoices {
  std::int32_t numDifferentWords = 0;
  std::int32_t shortWordSizeIndex = 0;
  std::int32_t thresholdFrequencyIndex = 0;
  bool ignoreInfrequentWords = false;
};
[[nodiscard]] std::string NoWordsMessage(const NoWordsChoices& choices);

}  // namespace quillomat
