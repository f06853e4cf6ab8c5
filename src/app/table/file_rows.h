// The files of the last count as rows of a table, for people: how each was read, or why not, in the
// current language. They come when a count has read its files, and go before the next begins;
// a file of words that is read meanwhile leaves them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/list/current_words.h"
#include "app/table/row_cells.h"
#include "sources/file_columns.h"
#include "text/program_text.h"
#include "ui/event.h"

namespace quillomat {

class FileRows {
 public:
  /// Both outlive the rows.
  FileRows(const CurrentWords& words, const ProgramText& text);

  /// Fired before and after there are others, or they change places.
  Event<> Changing;
  Event<> Changed;

  [[nodiscard]] std::size_t Size() const { return places_.size(); }
  /// `row` is below Size().
  [[nodiscard]] std::string TextAt(std::size_t row, FileColumn column,
                                   const NumberSigns& signs) const;

  /// What tells the file of a row from all others of the count, and the row that it stands in now.
  [[nodiscard]] std::uint32_t PlaceAt(std::size_t row) const { return places_[row]; }
  [[nodiscard]] std::optional<std::size_t> RowOfPlace(std::uint32_t place) const;

  /// The first row from `from` on, and round the end, whose file's name begins with `text`,
  /// whatever the case.
  [[nodiscard]] std::optional<std::size_t> FindName(std::string_view text, std::size_t from) const;

  /// How far the count came, in words, if it was stopped; else "".
  [[nodiscard]] std::string StoppedText(const NumberSigns& signs) const;

  struct Order {
    FileColumn column = FileColumn::kPath;
    bool descending = false;
  };
  /// Whether any was not read, or not to its end.
  [[nodiscard]] bool AnyNotRead() const { return anyNotRead_; }
  /// The first that should have been read and was not or, of those that are left out by design
  /// (IsFault), the first of these.
  [[nodiscard]] std::optional<std::size_t> FirstNotRead(bool byDesign) const;

  /// By kSkipped what should have been read comes behind what is left out by design, which comes
  /// behind what was read. Without an order they stand in that of the count. It holds for later
  /// counts, too.
  void SetOrder(std::optional<Order> order);

  /// The program speaks another language: what is shown of the files may stand in another order.
  void ShowLanguage();

 private:
  void TakeFiles();
  void Arrange();
  [[nodiscard]] std::string ReasonText(const FileReport& file) const;
  [[nodiscard]] FileCell ShownCell(const FileReport& file, FileColumn column) const;
  [[nodiscard]] FileCell SortKeyOf(const FileReport& file, FileColumn column) const;

  const CurrentWords& words_;
  const ProgramText& text_;
  std::optional<Order> order_;
  /// Of the files, in the order of the rows.
  std::vector<std::uint32_t> places_;
  bool anyNotRead_ = false;
};

}  // namespace quillomat
