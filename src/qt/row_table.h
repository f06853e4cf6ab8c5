// What all tables of a result have in common: rows that are chosen as wholes, keys that go along
// the rows, letters of the size of the list, and a row that stays chosen while it changes its
// place.
#pragma once

#include <QMenu>
#include <QTableView>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace quillomat {

/// Rows without lines and numbers beside them, and titles that do not follow the keyboard.
void SetUpRows(QTableView& table);

/// Makes rows of one line as high as the letters need.
void FitRowsToLetters(QTableView& table);

/// Shows letters that are so many points larger than those of what the table stands on; smaller,
/// below 0.
void SetLetterSize(QTableView& table, int points);

/// Sorts as a click on the title of a column does.
void SortBy(QTableView& table, int section);
/// A command for that; `text` is "Sort by %1".
void AddSorting(QMenu& menu, QTableView& table, int section, const QString& text);

/// What stands in a row, whatever its place; and where that is now, if it is anywhere.
struct RowIdentity {
  std::function<std::optional<std::int64_t>(int row)> identity;
  std::function<std::optional<int>(std::int64_t identity)> row;
};
/// See RowTable::KeepChosenRow; `layOut` lays out what has been put off.
void KeepChosenRowOf(QTableView& table, std::function<void()> layOut, RowIdentity rows,
                     int section);

/// The rows that are selected, in order.
[[nodiscard]] QList<int> SelectedRowsOf(const QTableView& table);

/// A table of the toolkit with few columns and many rows: Home and End go to the first and to the
/// last row.
template <class Table>
class RowTable : public Table {
 public:
  using Table::Table;

  /// A row that the user has chosen stays chosen, and in view, when the rows change places. To be
  /// called when the table has its model; the keyboard is put into `section`.
  void KeepChosenRow(RowIdentity rows, int section) {
    KeepChosenRowOf(
        *this, [this] { this->executeDelayedItemsLayout(); }, std::move(rows), section);
  }

 protected:
  QModelIndex moveCursor(QAbstractItemView::CursorAction action,
                         Qt::KeyboardModifiers modifiers) override {
    const bool isEnd =
        action == QAbstractItemView::MoveHome || action == QAbstractItemView::MoveEnd;
    return Table::moveCursor(action, isEnd ? modifiers | Qt::ControlModifier : modifiers);
  }
};

}  // namespace quillomat
