// The rows of the table of words as the toolkit's views want them; what they are is decided in
// app/table. Rows that come while no view looks are none until one does, so that nothing is worked
// out for nobody.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

#include "app/table/result_table.h"
#include "app/table/row_cells.h"
#include "text/program_text.h"

namespace quillomat {

class WordTableModel final : public QAbstractTableModel {
 public:
  /// `table` outlives the model. `isWatched` says whether a view looks.
  WordTableModel(ResultTable& table, std::function<bool()> isWatched);

  /// Those that a table may show, in their order; a file's are for exports only.
  static constexpr int kColumns = static_cast<int>(WordColumn::kFile);
  [[nodiscard]] static WordColumn ColumnOf(int section) { return static_cast<WordColumn>(section); }

  /// A view looks from now on.
  void Wake();
  void SetSigns(const NumberSigns& signs) { signs_ = signs; }
  /// The columns' titles in the current language.
  void SetTexts(const ProgramText& text);

  /// As wide as the widest cell of a column of numbers, in letters whose digits have one width.
  [[nodiscard]] QString WidestOf(int section) const;
  /// In characters; 0 while there is none.
  [[nodiscard]] int LongestWord() const;

  [[nodiscard]] QStringList TitlesOf(const QList<int>& sections) const;
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
  [[nodiscard]] const WordRows* Rows() const { return awake_ ? table_.Rows() : nullptr; }

  ResultTable& table_;
  std::function<bool()> isWatched_;
  bool awake_ = false;
  NumberSigns signs_;
  QStringList titles_;
};

}  // namespace quillomat
