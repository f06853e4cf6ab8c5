// The statistics of the last count, a row each, which can be copied.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QTableWidget>
#include <QWidget>

#include "app/program.h"
#include "app/table/result_statistics.h"
#include "app/table/row_cells.h"

namespace quillomat {

class StatisticsPage final : public QWidget {
 public:
  /// `program` outlives the page.
  explicit StatisticsPage(Program& program, QWidget* parent = nullptr);

  void SetTexts(const ProgramText& text);
  /// The letters of the table are so many points larger than the window's; smaller, below 0.
  void SetZoom(int points);

  /// Puts the selected rows on the clipboard; all, if none is selected.
  void Copy();

  /// The choice whether figures that need the order of words are worked out, too.
  [[nodiscard]] QCheckBox& OrderBox() { return *orderBox_; }
  [[nodiscard]] const QCheckBox& OrderBox() const { return *orderBox_; }
  [[nodiscard]] QTableWidget& Table() { return *table_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void SetUpTable();
  void ShowRows();
  void ShowHint();
  void ShowRow(int row, const ResultStatistics::Row& shown);
  void FitValues();

  const Program& program_;
  NumberSigns signs_;
  ResultStatistics statistics_;
  // Children of the page.
  QCheckBox* orderBox_;
  QTableWidget* table_;
  /// In its place while there are no figures.
  QLabel* hint_;
  QAction* copy_;
  /// What is shown is not what was counted.
  bool isOld_ = true;
};

}  // namespace quillomat
