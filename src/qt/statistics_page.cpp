#include "qt/statistics_page.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLocale>
#include <QVBoxLayout>

#include "qt/list_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {

StatisticsPage::StatisticsPage(Program& program, QWidget* parent)
    : QWidget(parent),
      signs_{.group = program.DigitGroupSeparator(),
             .decimal = FromQt(QLocale::system().decimalPoint())},
      statistics_(program.Words(), program.Text()),
      orderBox_(new QCheckBox(this)),
      table_(new QTableWidget(0, 2, this)),
      copy_(new QAction(table_)) {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->addWidget(orderBox_);
  lines->addWidget(table_, 1);
  SetUpTable();
  setFocusProxy(table_);
  connect(orderBox_, &QCheckBox::toggled, this,
          [&program](bool wanted) { program.WantOrderFigures(wanted); });
  statistics_.Changed.Connect([this] {
    isOld_ = true;
    if (isVisible()) ShowRows();
  });
}

void StatisticsPage::SetUpTable() {
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setAlternatingRowColors(true);
  table_->setShowGrid(false);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setStretchLastSection(true);
  copy_->setShortcut(QKeySequence::Copy);
  copy_->setShortcutContext(Qt::WidgetShortcut);
  connect(copy_, &QAction::triggered, this, [this] { Copy(); });
  table_->addAction(copy_);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void StatisticsPage::SetTexts(const ProgramText& text) {
  orderBox_->setText(ToQt(text.GetText(kOrderFiguresText)));
  orderBox_->setToolTip(ToQt(text.GetText(kOrderFiguresTipText)));
  table_->setAccessibleName(ToQt(text.GetText(kStatisticsNameText)));
  table_->setHorizontalHeaderLabels(
      {ToQt(text.GetText(kFigureColumnText)), ToQt(text.GetText(kValueColumnText))});
  copy_->setText(ToQt(text.GetText(kCopyRowsText)));
  isOld_ = true;
  if (isVisible()) ShowRows();
}

void StatisticsPage::ShowRows() {
  if (!isOld_) return;
  isOld_ = false;
  const std::vector<ResultStatistics::Row> rows = statistics_.Rows(signs_);
  table_->setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < table_->rowCount(); ++row) {
    const ResultStatistics::Row& shown = rows[static_cast<std::size_t>(row)];
    table_->setItem(row, 0, new QTableWidgetItem(ToQt(shown.name)));
    table_->setItem(row, 1, new QTableWidgetItem(ToQt(shown.value)));
  }
  table_->resizeColumnToContents(0);
  table_->resizeRowsToContents();
}

void StatisticsPage::Copy() const {
  const QItemSelectionModel& selection = *table_->selectionModel();
  CopiedRows copied(table_->rowCount());
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (selection.hasSelection() && !selection.isRowSelected(row)) continue;
    copied.Add({table_->item(row, 0)->text(), table_->item(row, 1)->text()});
  }
  copied.PutOnClipboard();
}

void StatisticsPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowRows();
}

}  // namespace quillomat
