#include "qt/statistics_page.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/list_table.h"
#include "qt/row_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

// Numbers stand beside their names; what is left is for values that are words.
constexpr int kName = 0;
constexpr int kValue = 1;
constexpr int kRest = 2;
constexpr int kColumns = 3;

}  // namespace

StatisticsPage::StatisticsPage(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      signs_(program.Signs()),
      statistics_(program.Words(), program.Text()),
      orderBox_(new QCheckBox(this)),
      table_(new RowTable<QTableWidget>(0, kColumns, this)),
      hint_(new QLabel(table_->viewport())),
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
  program.BecameIdle.Connect([this] { ShowHint(); });
}

void StatisticsPage::SetUpTable() {
  SetUpRows(*table_);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->horizontalHeader()->setStretchLastSection(true);
  copy_->setShortcut(QKeySequence::Copy);
  copy_->setShortcutContext(Qt::WidgetShortcut);
  connect(copy_, &QAction::triggered, this, [this] { Copy(); });
  table_->addAction(copy_);
  auto* middle = new QVBoxLayout(table_->viewport());
  middle->addWidget(hint_);
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void StatisticsPage::SetTexts(const ProgramText& text) {
  orderBox_->setText(ToQt(text.GetText(kOrderFiguresText)));
  orderBox_->setToolTip(ToQt(text.GetText(kOrderFiguresTipText)));
  table_->setAccessibleName(ToQt(text.GetText(kStatisticsNameText)));
  table_->setHorizontalHeaderLabels(
      {ToQt(text.GetText(kFigureColumnText)), ToQt(text.GetText(kValueColumnText)), QString()});
  copy_->setText(ToQt(text.GetText(kCopyRowsText)));
  isOld_ = true;
  if (isVisible()) ShowRows();
}

void StatisticsPage::SetZoom(int points) {
  SetLetterSize(*table_, points);
  isOld_ = true;
  if (isVisible()) ShowRows();
}

void StatisticsPage::ShowRows() {
  if (!isOld_) return;
  isOld_ = false;
  const std::vector<ResultStatistics::Row> rows = statistics_.Rows(signs_);
  table_->clearSpans();
  table_->setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < table_->rowCount(); ++row) {
    ShowRow(row, rows[static_cast<std::size_t>(row)]);
  }
  table_->resizeColumnToContents(kName);
  FitValues();
  ShowHint();
}

void StatisticsPage::ShowHint() {
  const bool gaveWay = program_.Words().gaveWay;
  hint_->setText(ToQt(program_.Text().GetText(gaveWay ? kTableGaveWayText : kNoTableYetText)));
  hint_->setVisible(table_->rowCount() == 0 && !program_.State().Busy());
}

/// What is no number is read from the left, in as many lines as it needs.
void StatisticsPage::ShowRow(int row, const ResultStatistics::Row& shown) {
  auto* value = new QTableWidgetItem(ToQt(shown.value));
  if (shown.isNumber) {
    value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  } else {
    table_->setSpan(row, kValue, 1, kColumns - kValue);
    value->setToolTip(value->text());
  }
  table_->setItem(row, kName, new QTableWidgetItem(ToQt(shown.name)));
  table_->setItem(row, kValue, value);
  table_->setItem(row, kRest, nullptr);
}

/// As wide as the widest number, which a value in words is not.
void StatisticsPage::FitValues() {
  int widest = table_->horizontalHeader()->sectionSizeHint(kValue);
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (table_->columnSpan(row, kValue) > 1) continue;
    const QModelIndex cell = table_->model()->index(row, kValue);
    widest = std::max(widest, table_->sizeHintForIndex(cell).width());
  }
  table_->setColumnWidth(kValue, widest + table_->fontMetrics().averageCharWidth());
  table_->resizeRowsToContents();
}

/// As another program is to read them: numbers without groups.
void StatisticsPage::Copy() {
  const QItemSelectionModel& selection = *table_->selectionModel();
  const std::vector<ResultStatistics::Row> rows =
      statistics_.Rows({.group = "", .decimal = signs_.decimal});
  CopiedRows copied(table_->rowCount());
  copied.AddTitles(
      {table_->horizontalHeaderItem(kName)->text(), table_->horizontalHeaderItem(kValue)->text()});
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (selection.hasSelection() && !selection.isRowSelected(row)) continue;
    const ResultStatistics::Row& figure = rows[static_cast<std::size_t>(row)];
    copied.Add({ToQt(figure.name), ToQt(figure.value)});
  }
  copied.PutOnClipboard();
}

void StatisticsPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // Later, when the columns have their widths.
  QMetaObject::invokeMethod(
      this, [this] { table_->resizeRowsToContents(); }, Qt::QueuedConnection);
}

void StatisticsPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowRows();
}

}  // namespace quillomat
