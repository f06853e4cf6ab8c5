#include "qt/files_page.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <numeric>
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
  titles_.clear();
  for (int section = 0; section < kSections; ++section) {
    titles_.append(ToQt(text.GetText(kFirstFileColumnText + section)));
  }
  rows_.ShowLanguage();
}

QStringList FilesModel::CopyOf(int row, const QList<int>& sections) const {
  QStringList cells;
  const NumberSigns plain{.group = "", .decimal = signs_.decimal};
  for (const int section : sections) {
    cells.append(ToShown(rows_.TextAt(static_cast<std::size_t>(row), ColumnOf(section), plain)));
  }
  return cells;
}

QStringList FilesModel::TitlesOf(const QList<int>& sections) const {
  QStringList titles;
  for (const int section : sections) titles.append(titles_.value(section));
  return titles;
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
  // A row has one line, and a path may have several.
  return ToShown(
             rows_.TextAt(static_cast<std::size_t>(index.row()), ColumnOf(index.column()), signs_))
      .replace(QLatin1Char('\n'), QLatin1String("\\n"));
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

QModelIndexList FilesModel::match(const QModelIndex& start, int /*role*/, const QVariant& value,
                                  int /*hits*/, Qt::MatchFlags /*flags*/) const {
  const auto from = static_cast<std::size_t>(std::max(0, start.row()));
  const auto found = rows_.FindName(FromQt(value.toString()), from);
  if (!found) return {};
  return {index(static_cast<int>(*found), std::max(0, start.column()))};
}

FilesPage::FilesPage(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      rows_(program.Words(), program.Text()),
      model_(rows_, program.Signs()),
      stopped_(new QLabel(this)),
      table_(new RowTable<QTableView>(this)),
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
  SetUpRows(*table_);
  table_->setWordWrap(false);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *table_->horizontalHeader();
  titles.setSortIndicator(-1, Qt::AscendingOrder);  // as they were counted
  titles.setSortIndicatorClearable(true);
  table_->setSortingEnabled(true);
  titles.moveSection(kSkippedSection, kPathSection + 1);  // else it would stand out of sight
  copy_->setShortcut(QKeySequence::Copy);
  copy_->setShortcutContext(Qt::WidgetShortcut);
  connect(copy_, &QAction::triggered, this, [this] { Copy(); });
  table_->addAction(copy_);
  KeepTheChosenFile();
  ConnectMenus();
}

void FilesPage::KeepTheChosenFile() {
  RowIdentity files;
  files.identity = [this](int row) { return rows_.PlaceAt(static_cast<std::size_t>(row)); };
  files.row = [this](std::int64_t place) -> std::optional<int> {
    const auto row = rows_.RowOfPlace(static_cast<std::uint32_t>(place));
    if (!row) return std::nullopt;
    return static_cast<int>(*row);
  };
  table_->KeepChosenRow(std::move(files), kPathSection);
}

/// Asked for by the keyboard, a menu is about the column that the keyboard is in.
void FilesPage::ConnectMenus() {
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(table_, &QWidget::customContextMenuRequested, this, [this](QPoint place) {
    const QModelIndex index = table_->indexAt(place);
    const int section = index.isValid() ? index.column() : kPathSection;
    ShowMenu(table_->viewport()->mapToGlobal(place), section);
  });
  QHeaderView& titles = *table_->horizontalHeader();
  titles.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&titles, &QWidget::customContextMenuRequested, this, [this, &titles](QPoint place) {
    ShowMenu(titles.mapToGlobal(place), titles.logicalIndexAt(place));
  });
}

void FilesPage::ShowMenu(const QPoint& place, int section) {
  QMenu menu(this);
  menu.addAction(copy_);
  if (section >= 0) AddSorting(menu, *table_, section, sortText_);
  menu.exec(place);
}

void FilesPage::SetTexts(const ProgramText& text) {
  model_.SetTexts(text);
  ShowStopped();
  ShowHint();
  table_->setAccessibleName(ToQt(text.GetText(kFilesNameText)));
  copy_->setText(ToQt(text.GetText(kCopyRowsText)));
  sortText_ = ToQt(text.GetText(kSortByText));
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
  FitRowsToLetters(*table_);
}

void FilesPage::SetZoom(int points) {
  SetLetterSize(*table_, points);
  isOld_ = true;
  if (isVisible()) FitColumns();
}

void FilesPage::ShowNotRead(bool byDesign) {
  table_->sortByColumn(kSkippedSection, Qt::DescendingOrder);
  table_->scrollToTop();
  table_->horizontalScrollBar()->setValue(0);
  const std::size_t row = rows_.FirstNotRead(byDesign).value_or(0);
  table_->setCurrentIndex(model_.index(static_cast<int>(row), kPathSection));
  table_->setFocus(Qt::OtherFocusReason);
}

/// All of them, as they stand from left to right.
QList<int> FilesPage::SectionsInOrder() const {
  QList<int> sections;
  for (int place = 0; place < kSections; ++place) {
    sections.append(table_->horizontalHeader()->logicalIndex(place));
  }
  return sections;
}

void FilesPage::Copy() const {
  QList<int> rows = SelectedRowsOf(*table_);
  if (rows.isEmpty()) {
    rows.resize(model_.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
  }
  const QList<int> sections = SectionsInOrder();
  CopiedRows copied(rows.size());
  copied.AddTitles(model_.TitlesOf(sections));
  for (const int row : rows) copied.Add(model_.CopyOf(row, sections));
  copied.PutOnClipboard();
}

void FilesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowHint();
  FitColumns();
}

}  // namespace quillomat
