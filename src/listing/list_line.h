// One line of a list: the columns of a word in a display format. Lines are put together in a buffer
// of the caller's, without a line break at their end; the line breaks inside a line (file lists)
// are those that the caller asks for.
//
// The blanks and commas between the columns differ from format to format and are kept exactly:
// programs read these lists.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/word_store.h"
#include "listing/display_format.h"
#include "listing/frequency_ranking.h"

namespace quillomat {

/// No column of ranks, frequencies or words is narrower, in characters.
inline constexpr std::int16_t kMinimumColumnWidth = 6;

/// What a finished count gives to be listed. Everything outlives the list.
struct CountedWords {
  const WordStore& store;
  const FrequencyRanking& ranking;
  const WordTotals& totals;
};

struct LineOptions {
  DisplayFormat format = DisplayFormat::kRankFrequencyWord;
  /// Commas between the columns.
  bool withCommas = false;
  /// The logarithms of Zipf data are to base 10, else natural.
  bool useLog10 = false;
  /// The folder that was counted, "" for other sources; file lists show paths relative to it.
  std::string folder;
  std::string lineBreak = "\r\n";
  std::int16_t minimumColumnWidth = kMinimumColumnWidth;
};

/// The logarithm to base 10.
[[nodiscard]] double Log10(double x);

/// Where a cell stands in a text, in bytes; without the blanks that fill its column.
struct CellSpan {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const CellSpan&) const = default;
};

class LineFormatter {
 public:
  LineFormatter(const CountedWords& words, LineOptions options);

  [[nodiscard]] const LineOptions& Options() const { return options_; }

  /// Appends the line of the word at alphabetical place `index`; 0 is the header line. Appends to
  /// `cells` where in `line` its cells stand, if they are wanted: the columns, whatever is between
  /// them. A file of a file list stands in the columns behind its word's: its first cell is empty.
  /// A header that tells of a folder, and "word (+commas)", have none.
  void FormatWordLine(std::string& line, std::int32_t index,
                      std::vector<CellSpan>* cells = nullptr) const;

  // Each appends one cell, padded to its column; for index 0 the column's header.
  void RankCell(std::string& line, std::int32_t index) const;
  void FreqCell(std::string& line, std::int32_t index) const;
  void FilesCell(std::string& line, std::int32_t index) const;
  void LogRankCell(std::string& line, std::int32_t index, bool useLog10) const;
  void LogFreqCell(std::string& line, std::int32_t index, bool useLog10) const;
  void WordCell(std::string& line, std::int32_t index) const;

  /// Appends the files of a word, a line each, the last one ended too.
  void FileListText(std::string& line, std::int32_t index, bool withFreq,
                    std::vector<CellSpan>* cells = nullptr) const;

 private:
  void ComputeColumnWidths(std::int16_t minimumColumnWidth);
  void AppendColumns(std::string& line, std::int32_t index, std::vector<CellSpan>* cells) const;
  void AppendColumn(std::string& line, std::int32_t index, char column) const;
  void FinishHeader(std::string& line) const;
  void FolderHeader(std::string& line) const;
  [[nodiscard]] std::string_view BareWord(std::int32_t index) const;
  [[nodiscard]] std::int32_t RankOf(std::int32_t index) const;
  [[nodiscard]] bool ShowsPathsInFolder() const;

  /// A column, and what stands between it and the one before it.
  struct Column {
    std::string_view lead;
    char cell;
  };
  [[nodiscard]] std::vector<Column> ChosenColumns() const;
  [[nodiscard]] bool IsQuick() const;
  [[nodiscard]] bool AppendQuickly(std::string& line, std::int32_t index) const;

  CountedWords words_;
  LineOptions options_;
  std::vector<Column> columns_;
  std::size_t rankWidth_ = 0;
  std::size_t frequencyWidth_ = 0;
  std::size_t wordWidth_ = 0;
  bool isQuick_ = false;
};

}  // namespace quillomat
