// The table of words with what is above it: which words are to be shown, and how many these are.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "app/program.h"
#include "app/table/result_table.h"
#include "app/table/row_cells.h"
#include "qt/accessible_names.h"
#include "qt/elided_label.h"
#include "qt/word_table_view.h"

namespace quillomat {

class TablePage final : public QWidget {
 public:
  /// `program` outlives the page.
  explicit TablePage(Program& program, QWidget* parent = nullptr);

  void SetTexts(const ProgramText& text);

  /// Puts the keyboard where words are looked for.
  void Find();

  /// How a screen reader is told at once what a label says.
  std::function<void(QWidget&)> announce = Announce;

  [[nodiscard]] WordTableView& View() { return view_; }
  /// The words that are shown, and in which order.
  [[nodiscard]] ResultTable& Table() { return table_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void PlaceParts();
  void TakeFilter();
  void ShowTotals();
  void KeepRoomForTotals();
  void ShowHint();
  [[nodiscard]] QString HintText(const WordRows* rows) const;
  [[nodiscard]] QString TotalsText();

  Program& program_;
  NumberSigns signs_;
  /// In the typing: how many words are left is read out then.
  QTimer pause_;
  ResultTable table_;
  WordTableView view_;
  QLabel label_;
  QLineEdit words_;
  QComboBox kind_;
  /// "37 words, 1,204 instances", or what is wrong with the filter.
  ElidedLabel totals_;
  // In the middle of the table while there are no words to show: why not, and what shows those that
  // the filter hides.
  QLabel hint_;
  QPushButton showAll_;
};

}  // namespace quillomat
