#include "qt/word_table_view.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>
#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>

#include "qt/list_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr int kWordSection = static_cast<int>(WordColumn::kWord);
constexpr int kRankSection = static_cast<int>(WordColumn::kRank);

}  // namespace

WordTableView::WordTableView(ResultTable& table, QWidget* parent)
    : QTableView(parent),
      table_(table),
      model_(table, [this] { return isVisible(); }),
      columns_(*this, model_) {
  setModel(&model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  SetUpHeaders();
  FitToLetters();
  KeepTheChosenWord();
  table.Changed.Connect([this] { FollowTheTable(); });
}

void WordTableView::SetUpHeaders() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *horizontalHeader();
  titles.setHighlightSections(false);
  titles.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&titles, &QHeaderView::customContextMenuRequested, this, [this, &titles](QPoint place) {
    ShowMenu(titles.mapToGlobal(place), titles.logicalIndexAt(place), false);
  });
  titles.setSortIndicator(kRankSection, Qt::AscendingOrder);
  setSortingEnabled(true);
}

void WordTableView::SetTexts(const ProgramText& text) {
  model_.SetTexts(text);
  setAccessibleName(ToQt(text.GetText(kTableNameText)));
  copyText_ = ToQt(text.GetText(kCopyRowsText));
  sortText_ = ToQt(text.GetText(kSortByText));
  columns_.Arrange();
}

void WordTableView::SetZoom(int points) {
  constexpr qreal kSmallest = 4.0;
  if (parentWidget() == nullptr) return;
  QFont letters = parentWidget()->font();
  if (letters.pointSizeF() <= 0) return;
  letters.setPointSizeF(std::max(letters.pointSizeF() + points, kSmallest));
  setFont(letters);
}

/// Nothing is asked of the table while nobody looks.
void WordTableView::FollowTheTable() {
  const WordRows* rows = isVisible() ? table_.Rows() : nullptr;
  if (rows != nullptr) columns_.FollowContents(rows->Words().KnowsFiles());
}

void WordTableView::FitToLetters() {
  const int letters = fontMetrics().height();
  verticalHeader()->setDefaultSectionSize(letters + letters / 4);
  columns_.Arrange();
}

/// A row that the user has chosen stays in view when the rows change places.
void WordTableView::KeepTheChosenWord() {
  const auto chosen = std::make_shared<std::optional<std::int32_t>>();
  connect(&model_, &QAbstractItemModel::modelAboutToBeReset, this, [this, chosen] {
    chosen->reset();
    const WordRows* rows = model_.rowCount() > 0 ? table_.Rows() : nullptr;
    const QModelIndex current = currentIndex();
    if (rows == nullptr || !selectionModel()->isSelected(current)) return;
    *chosen = rows->Places()[static_cast<std::size_t>(current.row())];
  });
  connect(&model_, &QAbstractItemModel::modelReset, this, [this, chosen] {
    const WordRows* rows = *chosen && model_.rowCount() > 0 ? table_.Rows() : nullptr;
    const auto row = rows == nullptr ? std::nullopt : rows->RowOfPlace(**chosen);
    if (!row) return;
    executeDelayedItemsLayout();  // else there are still too few rows to go to this one
    setCurrentIndex(model_.index(static_cast<int>(*row), kWordSection));
  });
}

/// Nothing is selected by that: what is copied without a selection is all that the filter shows.
void WordTableView::GoToFirst() {
  clearSelection();
  const QModelIndex first = model_.index(0, kWordSection);
  selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  scrollToTop();
}

void WordTableView::Enter() {
  setFocus(Qt::OtherFocusReason);
  if (!selectionModel()->hasSelection()) selectRow(std::max(currentIndex().row(), 0));
}

QList<int> WordTableView::SelectedRows() const {
  QList<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.append(row);
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void WordTableView::CopySelected() const {
  const QList<int> rows = SelectedRows();
  const QList<int> sections = columns_.Shown();
  CopiedRows copied(rows.size());
  copied.AddTitles(model_.TitlesOf(sections));
  for (const int row : rows) copied.Add(model_.CopyOf(row, sections));
  copied.PutOnClipboard();
}

void WordTableView::Copy() const {
  if (selectionModel()->hasSelection()) return CopySelected();
  const int rows = model_.rowCount();
  const QList<int> sections = columns_.Shown();
  CopiedRows copied(rows);
  copied.AddTitles(model_.TitlesOf(sections));
  for (int row = 0; row < rows; ++row) copied.Add(model_.CopyOf(row, sections));
  copied.PutOnClipboard();
}

/// As a click on its title does.
void WordTableView::SortBy(int section) {
  const QHeaderView& titles = *horizontalHeader();
  const QVariant usual = model_.headerData(section, Qt::Horizontal, Qt::InitialSortOrderRole);
  auto order = static_cast<Qt::SortOrder>(usual.toInt());
  if (titles.sortIndicatorSection() == section) {
    const bool ascends = titles.sortIndicatorOrder() == Qt::AscendingOrder;
    order = ascends ? Qt::DescendingOrder : Qt::AscendingOrder;
  }
  sortByColumn(section, order);
}

void WordTableView::ShowMenu(const QPoint& place, int section, bool withCopy) {
  QMenu menu(this);
  if (withCopy) {
    menu.addAction(copyText_, QKeySequence(QKeySequence::Copy), this, [this] { CopySelected(); })
        ->setEnabled(selectionModel()->hasSelection());
  }
  if (section >= 0) {
    const QString title = model_.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    menu.addAction(sortText_.arg(title), this, [this, section] { SortBy(section); });
  }
  menu.addSeparator();
  columns_.AddTo(menu);
  menu.exec(place);
}

/// The columns are few: Home and End go to the first and to the last word.
QModelIndex WordTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const bool isEnd = action == MoveHome || action == MoveEnd;
  return QTableView::moveCursor(action, isEnd ? modifiers | Qt::ControlModifier : modifiers);
}

void WordTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return CopySelected();
  QTableView::keyPressEvent(event);
}

/// Asked for by the keyboard, it is about the column that the keyboard is in.
void WordTableView::contextMenuEvent(QContextMenuEvent* event) {
  const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
  const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
  const QPoint place =
      byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(index).bottomLeft());
  ShowMenu(place, index.isValid() ? index.column() : kWordSection, true);
}

/// A word that its column cuts is told whole.
bool WordTableView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  const QModelIndex cell = indexAt(help.pos());
  const QString text = cell.data().toString();
  const bool isCut = sizeHintForIndex(cell).width() > visualRect(cell).width();
  QToolTip::showText(help.globalPos(), isCut ? text : QString(), viewport());
  return true;
}

void WordTableView::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  model_.Wake();
  FollowTheTable();
}

void WordTableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  columns_.Arrange();
}

void WordTableView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitToLetters();
}

}  // namespace quillomat
