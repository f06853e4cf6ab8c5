// The table of words on the screen: sorted by a click on a column's title or from a menu, words
// reached by typing them, rows copied with their columns.
#pragma once

#include <QAction>
#include <QTableView>

#include "qt/row_table.h"
#include "qt/table_columns.h"
#include "qt/word_table_model.h"
#include "text/program_text.h"

namespace quillomat {

class WordTableView final : public RowTable<QTableView> {
 public:
  /// `table` outlives the view.
  explicit WordTableView(ResultTable& table, QWidget* parent = nullptr);

  void SetTexts(const ProgramText& text);
  [[nodiscard]] WordTableModel& Model() { return model_; }
  [[nodiscard]] TableColumns& Columns() { return columns_; }
  [[nodiscard]] const TableColumns& Columns() const { return columns_; }

  /// The letters are so many points larger than the window's; smaller, below 0.
  void SetZoom(int points) { SetLetterSize(*this, points); }

  /// Goes to the first row, as another filter shows others.
  void GoToFirst();
  /// Puts the keyboard on the row that it was in last.
  void Enter();

  /// Puts the selected rows on the clipboard, with the columns that are shown, below their titles.
  void CopySelected() const;
  /// The same; if none is selected, all rows that the filter shows.
  void Copy() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetUpHeaders();
  void ShowMenu(const QPoint& place, int section, bool withCopy);
  void FollowTheTable();
  void FitToLetters();
  void KeepTheChosenWord();

  ResultTable& table_;
  WordTableModel model_;
  TableColumns columns_;
  QString copyText_;
  /// "Sort by %1".
  QString sortText_;
};

}  // namespace quillomat
