#include "qt/word_table_view.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>
#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "qt/list_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr int kWordSection = static_cast<int>(WordColumn::kWord);
constexpr int kRankSection = static_cast<int>(WordColumn::kRank);

}  // namespace

WordTableView::WordTableView(ResultTable& table, QWidget* parent)
    : RowTable(parent),
      table_(table),
      model_(table, [this] { return isVisible(); }),
      columns_(*this, model_) {
  setModel(&model_);
  SetUpRows(*this);
  setWordWrap(false);
  SetUpHeaders();
  FitToLetters();
  KeepTheChosenWord();
  table.Changed.Connect([this] { FollowTheTable(); });
}

void WordTableView::SetUpHeaders() {
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *horizontalHeader();
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

/// Nothing is asked of the table while nobody looks.
void WordTableView::FollowTheTable() {
  const WordRows* rows = isVisible() ? table_.Rows() : nullptr;
  if (rows != nullptr) columns_.FollowContents(rows->Words().KnowsFiles());
}

void WordTableView::FitToLetters() {
  FitRowsToLetters(*this);
  columns_.Arrange();
}

void WordTableView::KeepTheChosenWord() {
  const auto rows = [this] { return model_.rowCount() > 0 ? table_.Rows() : nullptr; };
  RowIdentity words;
  words.identity = [rows](int row) -> std::optional<std::int64_t> {
    const WordRows* shown = rows();
    if (shown == nullptr) return std::nullopt;
    return shown->Places()[static_cast<std::size_t>(row)];
  };
  words.row = [rows](std::int64_t place) -> std::optional<int> {
    const WordRows* shown = rows();
    const auto row =
        shown == nullptr ? std::nullopt : shown->RowOfPlace(static_cast<std::int32_t>(place));
    if (!row) return std::nullopt;
    return static_cast<int>(*row);
  };
  KeepChosenRow(std::move(words), kWordSection);
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

void WordTableView::CopySelected() const {
  const QList<int> rows = SelectedRowsOf(*this);
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

void WordTableView::ShowMenu(const QPoint& place, int section, bool withCopy) {
  QMenu menu(this);
  if (withCopy) {
    menu.addAction(copyText_, QKeySequence(QKeySequence::Copy), this, [this] { CopySelected(); })
        ->setEnabled(selectionModel()->hasSelection());
  }
  if (section >= 0) AddSorting(menu, *this, section, sortText_);
  menu.addSeparator();
  columns_.AddTo(menu);
  menu.exec(place);
}

void WordTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return CopySelected();
  RowTable::keyPressEvent(event);
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
  if (event->type() != QEvent::ToolTip) return RowTable::viewportEvent(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  const QModelIndex cell = indexAt(help.pos());
  const QString text = cell.data().toString();
  const bool isCut = sizeHintForIndex(cell).width() > visualRect(cell).width();
  QToolTip::showText(help.globalPos(), isCut ? text : QString(), viewport());
  return true;
}

void WordTableView::showEvent(QShowEvent* event) {
  RowTable::showEvent(event);
  model_.Wake();
  FollowTheTable();
}

void WordTableView::resizeEvent(QResizeEvent* event) {
  RowTable::resizeEvent(event);
  columns_.Arrange();
}

void WordTableView::changeEvent(QEvent* event) {
  RowTable::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitToLetters();
}

}  // namespace quillomat
