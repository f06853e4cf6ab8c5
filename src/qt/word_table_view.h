// The table of words on the screen: sorted by a click on a column's title, columns chosen from a
// menu there, words reached by typing them, rows copied with their columns.
#pragma once

#include <QAction>
#include <QString>
#include <QStringList>
#include <QTableView>
#include <array>
#include <memory>

#include "qt/word_table_model.h"
#include "text/program_text.h"

namespace quillomat {

class WordTableView final : public QTableView {
 public:
  /// `table` outlives the view.
  explicit WordTableView(ResultTable& table, QWidget* parent = nullptr);

  void SetTexts(const ProgramText& text);
  [[nodiscard]] WordTableModel& Model() { return model_; }

  /// The names of the columns that the user wants to see.
  [[nodiscard]] QStringList WantedColumns() const;
  void SetWantedColumns(const QStringList& names);

  /// Puts the selected rows on the clipboard, with the columns that are shown.
  void CopySelected() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetUpHeaders();
  void MakeColumnActions();
  void ShowMenu(const QPoint& place, bool withCopy);
  void ShowWantedColumns();
  void FitColumns();
  void KeepTheCurrentWord();
  [[nodiscard]] QList<int> SelectedRows() const;
  [[nodiscard]] QList<int> ShownColumns() const;

  ResultTable& table_;
  WordTableModel model_;
  QAction copy_;
  /// One for each column; checked when the user wants it.
  std::array<QAction, WordTableModel::kColumns> columns_;
};

}  // namespace quillomat
