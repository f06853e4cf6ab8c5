#include "qt/files_page.h"

#include <QHeaderView>
#include <QLocale>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "qt/list_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr int kSections = static_cast<int>(kFileColumnNames.size());
constexpr int kPathSection = static_cast<int>(FileColumn::kPath);
constexpr int kSkippedSection = static_cast<int>(FileColumn::kSkipped);

FileColumn ColumnOf(int section) {
  return static_cast<FileColumn>(section);
}

bool IsNumber(int section) {
  switch (ColumnOf(section)) {
    case FileColumn::kPath:
    case FileColumn::kEncoding:
    case FileColumn::kLineEnds:
    case FileColumn::kSkipped:
      return false;
    default:
      return true;
  }
}

}  // namespace

FilesModel::FilesModel(FileRows& rows, NumberSigns signs) : rows_(rows), signs_(std::move(signs)) {
  rows_.Changing.Connect([this] { beginResetModel(); });
  rows_.Changed.Connect([this] { endResetModel(); });
}

void FilesModel::SetTexts(const ProgramText& text) {
  beginResetModel();  // kinds of line ends and reasons are in a language, too
  titles_.clear();
  for (int section = 0; section < kSections; ++section) {
    titles_.append(ToQt(text.GetText(kFirstFileColumnText + section)));
  }
  endResetModel();
}

QStringList FilesModel::CopyOf(int row) const {
  QStringList cells;
  for (int section = 0; section < kSections; ++section) {
    const NumberSigns plain{.group = "", .decimal = signs_.decimal};
    cells.append(ToQt(rows_.TextAt(static_cast<std::size_t>(row), ColumnOf(section), plain)));
  }
  return cells;
}

int FilesModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return static_cast<int>(std::min<std::size_t>(rows_.Size(), std::numeric_limits<int>::max()));
}

int FilesModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kSections;
}

QVariant FilesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole) {
    const Qt::Alignment side = IsNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant::fromValue(Qt::AlignVCenter | side);
  }
  // A path or a reason may be longer than its column is wide.
  if (role != Qt::DisplayRole && (role != Qt::ToolTipRole || IsNumber(index.column()))) return {};
  return ToQt(
      rows_.TextAt(static_cast<std::size_t>(index.row()), ColumnOf(index.column()), signs_));
}

QVariant FilesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return titles_.value(section);
  if (role == Qt::InitialSortOrderRole) {
    const bool largestFirst = IsNumber(section) || section == kSkippedSection;
    return largestFirst ? Qt::DescendingOrder : Qt::AscendingOrder;
  }
  return {};
}

void FilesModel::sort(int section, Qt::SortOrder order) {
  if (section < 0) return rows_.SetOrder({});
  rows_.SetOrder(FileRows::Order{ColumnOf(section), order == Qt::DescendingOrder});
}

FilesPage::FilesPage(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      rows_(program.Words(), program.Text()),
      model_(rows_, {.group = program.DigitGroupSeparator(),
                     .decimal = FromQt(QLocale::system().decimalPoint())}),
      stopped_(new QLabel(this)),
      table_(new QTableView(this)),
      hint_(new QLabel(table_->viewport())),
      copy_(new QAction(table_)) {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->addWidget(stopped_);
  lines->addWidget(table_);
  stopped_->setWordWrap(true);
  stopped_->hide();
  auto* middle = new QVBoxLayout(table_->viewport());
  middle->addWidget(hint_);
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  SetUpTable();
  setFocusProxy(table_);
  program.WantFileReports(true);
  rows_.Changed.Connect([this] {
    ShowStopped();
    ShowHint();
    isOld_ = true;
    if (isVisible()) FitColumns();
  });
  program.BecameIdle.Connect([this] { ShowHint(); });
}

void FilesPage::SetUpTable() {
  table_->setModel(&model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAlternatingRowColors(true);
  table_->setShowGrid(false);
  table_->setWordWrap(false);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *table_->horizontalHeader();
  titles.setHighlightSections(false);
  titles.setSortIndicator(-1, Qt::AscendingOrder);  // as they were counted
  titles.setSortIndicatorClearable(true);
  table_->setSortingEnabled(true);
  titles.moveSection(kSkippedSection, kPathSection + 1);  // else it would stand out of sight
  copy_->setShortcut(QKeySequence::Copy);
  copy_->setShortcutContext(Qt::WidgetShortcut);
  connect(copy_, &QAction::triggered, this, [this] { Copy(); });
  table_->addAction(copy_);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void FilesPage::SetTexts(const ProgramText& text) {
  model_.SetTexts(text);
  ShowStopped();
  ShowHint();
  table_->setAccessibleName(ToQt(text.GetText(kFilesNameText)));
  copy_->setText(ToQt(text.GetText(kCopyRowsText)));
  isOld_ = true;
  if (isVisible()) FitColumns();
}

/// The files behind the stop have no rows.
void FilesPage::ShowStopped() {
  stopped_->setText(ToQt(rows_.StoppedText(model_.Signs())));
  stopped_->setVisible(!stopped_->text().isEmpty());
}

void FilesPage::ShowHint() {
  const CurrentWords& words = program_.Words();
  const bool ofClipboard =
      words.CanBeListed() && words.counted.source == CountedText::Source::kClipboard;
  hint_->setText(
      ToQt(program_.Text().GetText(ofClipboard ? kClipboardHasNoFilesText : kNoFilesYetText)));
  hint_->setVisible(rows_.Size() == 0 && !program_.State().Busy());
}

/// Titles and what is in sight fit; a long path leaves room for the rest.
void FilesPage::FitColumns() {
  if (!isOld_) return;
  isOld_ = false;
  constexpr int kMostRowsMeasured = 200;
  table_->horizontalHeader()->setResizeContentsPrecision(kMostRowsMeasured);
  table_->setColumnHidden(kSkippedSection, !rows_.AnyNotRead());
  table_->resizeColumnsToContents();  // but of those that are hidden
  const int half = std::max(table_->viewport()->width() / 2, 120);
  if (table_->columnWidth(kPathSection) > half) table_->setColumnWidth(kPathSection, half);
  const int letters = fontMetrics().height();
  table_->verticalHeader()->setDefaultSectionSize(letters + letters / 4);
}

void FilesPage::ShowNotRead(bool byDesign) {
  table_->sortByColumn(kSkippedSection, Qt::DescendingOrder);
  table_->scrollToTop();
  table_->horizontalScrollBar()->setValue(0);
  const std::size_t row = rows_.FirstNotRead(byDesign).value_or(0);
  table_->setCurrentIndex(model_.index(static_cast<int>(row), kPathSection));
  table_->setFocus(Qt::OtherFocusReason);
}

void FilesPage::Copy() const {
  const QItemSelectionModel& selection = *table_->selectionModel();
  CopiedRows copied(model_.rowCount());
  copied.AddTitles(model_.Titles());
  for (int row = 0; row < model_.rowCount(); ++row) {
    if (selection.hasSelection() && !selection.isRowSelected(row)) continue;
    copied.Add(model_.CopyOf(row));
  }
  copied.PutOnClipboard();
}

void FilesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowHint();
  FitColumns();
}

}  // namespace quillomat
