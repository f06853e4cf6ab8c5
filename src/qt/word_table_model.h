// The rows of the table of words as the toolkit's views want them; what they are is decided in
// app/table. While no view looks the model has no rows, so that nothing is worked out for nobody.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include "app/table/result_table.h"
#include "app/table/row_cells.h"
#include "text/program_text.h"

namespace quillomat {

class WordTableModel final : public QAbstractTableModel {
 public:
  /// `table` outlives the model.
  explicit WordTableModel(ResultTable& table, QObject* parent = nullptr);

  /// Those that a table may show, in their order; a file's are for exports only.
  static constexpr int kColumns = static_cast<int>(WordColumn::kFile);
  [[nodiscard]] static WordColumn ColumnOf(int section) { return static_cast<WordColumn>(section); }

  /// Whether a view looks.
  void SetWatched(bool watched);
  void SetSigns(const NumberSigns& signs) { signs_ = signs; }
  /// The columns' titles in the current language.
  void SetTexts(const ProgramText& text);

  /// Cells of a row as another program is to read them: numbers without groups.
  [[nodiscard]] QStringList CopyOf(int row, const QList<int>& sections) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  void sort(int section, Qt::SortOrder order) override;
  /// Looks for the next word that begins with `value`, from `start` on and round the end.
  [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value,
                                      int hits, Qt::MatchFlags flags) const override;

 private:
  [[nodiscard]] const WordRows* Rows() const { return watched_ ? table_.Rows() : nullptr; }

  ResultTable& table_;
  bool watched_ = false;
  NumberSigns signs_;
  QStringList titles_;
};

}  // namespace quillomat
