// Where the cells of a list's lines stand: a list is text for people and programs, and whoever
// copies it into a spreadsheet wants its columns.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "listing/list_line.h"
#include "listing/list_walk.h"

namespace quillomat {

/// Answers with the cells of a line of a list; none for a line that is of no list, or has but one.
using CellSource = std::function<std::span<const CellSpan>(std::string_view line)>;

/// The cells of lines, by the lines' text. Lines of one list that read the same have the same ones.
/// Each line takes a copy of its text and some hundred bytes: for what is shown, not for all words.
class ListCells {
 public:
  /// `entry` is a line or several, parted by LF or CR LF; `cells` are theirs, in their order.
  void Add(std::string_view entry, std::span<const CellSpan> cells);

  /// As CellSource, without line break; good until the next Add.
  [[nodiscard]] std::span<const CellSpan> Of(std::string_view line) const;

 private:
  std::map<std::string, std::vector<CellSpan>, std::less<>> cells_;
};

/// Gathers the cells of the header and of the first words of a list.
class CellSink final : public ListSink {
 public:
  /// The formatter makes the lines and outlives the sink.
  CellSink(const LineFormatter& formatter, std::int32_t words)
      : formatter_(formatter), wordsLeft_(words) {}

  void TakeHeader(std::string_view line) override;
  bool TakeWord(std::int32_t index, std::string_view line) override;

  [[nodiscard]] ListCells Take() { return std::move(cells_); }

 private:
  void AddLineOf(std::int32_t index);

  const LineFormatter& formatter_;
  std::int32_t wordsLeft_;
  ListCells cells_;
};

}  // namespace quillomat
