// The columns of the table of words: which of them are shown, and how wide they are. Until the user
// has drawn a column to another width, titles and numbers fit, and the words take the room that is
// left.
#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QStringList>
#include <QTableView>
#include <array>

#include "qt/word_table_model.h"

namespace quillomat {

class TableColumns final : public QObject {
 public:
  /// Both outlive the columns; `view` shows `model`.
  TableColumns(QTableView& view, const WordTableModel& model);

  /// To be called when the table has its model, and when the titles, the letters or the width of
  /// the table have changed.
  void Arrange();

  /// To be called when there are other words. In how many files each occurs is shown, and offered,
  /// where it is known.
  void FollowContents(bool filesKnown);

  /// The names of the columns that the user wants to see.
  [[nodiscard]] QStringList Wanted() const;
  /// The words are what the table is about: they are always shown.
  void SetWanted(const QStringList& names);
  /// In pixels, one for each column; none as long as the user has drawn none.
  [[nodiscard]] QStringList Widths() const;
  /// What is not one width for each column has no effect.
  void SetWidths(const QStringList& widths);

  /// Those that are shown, in their order.
  [[nodiscard]] QList<int> Shown() const;
  /// Lets the user choose the columns.
  void AddTo(QMenu& menu);

 private:
  void ShowWanted();
  void Fit();
  [[nodiscard]] bool IsKnown(int section) const;
  [[nodiscard]] int LeastWidth(int section) const;
  [[nodiscard]] int WidthOfWords() const;

  QTableView& view_;
  const WordTableModel& model_;
  /// Checked when the user wants the column.
  std::array<QAction, WordTableModel::kColumns> actions_;
  std::array<int, WordTableModel::kColumns> widths_{};
  bool filesKnown_ = false;
  bool drawnByUser_ = false;
  /// The program, and not the user, changes widths.
  bool changing_ = false;
};

}  // namespace quillomat
