// The files of the last count, a row each: sorted by a click on a column's title, and rows copied
// with their columns.
#pragma once

#include <QAbstractTableModel>
#include <QAction>
#include <QLabel>
#include <QStringList>
#include <QTableView>
#include <QWidget>

#include "app/program.h"
#include "app/table/file_rows.h"
#include "app/table/row_cells.h"
#include "qt/row_table.h"

namespace quillomat {

/// The rows as the toolkit's views want them; what they are is decided in app/table.
class FilesModel final : public QAbstractTableModel {
 public:
  /// `rows` outlives the model.
  FilesModel(FileRows& rows, NumberSigns signs);

  void SetTexts(const ProgramText& text);
  [[nodiscard]] QStringList TitlesOf(const QList<int>& sections) const;
  [[nodiscard]] const NumberSigns& Signs() const { return signs_; }
  /// As another program is to read it: numbers without groups.
  [[nodiscard]] QStringList CopyOf(int row, const QList<int>& sections) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  /// By none for -1.
  void sort(int section, Qt::SortOrder order) override;
  /// By the names of the files: their paths mostly begin alike.
  [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const override;

 private:
  FileRows& rows_;
  NumberSigns signs_;
  QStringList titles_;
};

class FilesPage final : public QWidget {
 public:
  /// `program` outlives the page.
  explicit FilesPage(Program& program, QWidget* parent = nullptr);

  void SetTexts(const ProgramText& text);
  [[nodiscard]] QTableView& Table() { return *table_; }
  /// The letters of the table are so many points larger than the window's; smaller, below 0.
  void SetZoom(int points);

  /// Puts what was not read first, and the keyboard there: on what should have been read or, of
  /// what is left out by design, on that.
  void ShowNotRead(bool byDesign);
  /// Puts the selected rows on the clipboard; all, if none is.
  void Copy() const;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void SetUpTable();
  void KeepTheChosenFile();
  void ConnectMenus();
  void ShowMenu(const QPoint& place, int section);
  void ShowStopped();
  void ShowHint();
  void FitColumns();
  [[nodiscard]] QList<int> SectionsInOrder() const;

  Program& program_;
  FileRows rows_;
  FilesModel model_;
  // Children of the page.
  QLabel* stopped_;
  RowTable<QTableView>* table_;
  /// In its middle while it is empty.
  QLabel* hint_;
  QAction* copy_;
  /// "Sort by %1".
  QString sortText_;
  /// Columns were not made as wide as what they hold.
  bool isOld_ = true;
};

}  // namespace quillomat
