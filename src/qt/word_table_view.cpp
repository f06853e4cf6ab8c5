#include "qt/word_table_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <optional>

#include "qt/list_table.h"
#include "qt/text_conversion.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

constexpr int kWordSection = static_cast<int>(WordColumn::kWord);
constexpr int kFilesSection = static_cast<int>(WordColumn::kFiles);
/// What fills a column as it is shown at first.
const char* const kUsualNumber = "1,000,000";
const char* const kUsualWord = "incomprehensibility";

}  // namespace

WordTableView::WordTableView(ResultTable& table, QWidget* parent)
    : QTableView(parent), table_(table), model_(table) {
  setModel(&model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  MakeColumnActions();
  SetUpHeaders();
  KeepTheCurrentWord();
  table.Changed.Connect([this] { ShowWantedColumns(); });
}

void WordTableView::SetUpHeaders() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *horizontalHeader();
  titles.setHighlightSections(false);
  titles.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&titles, &QHeaderView::customContextMenuRequested, this,
          [this, &titles](QPoint place) { ShowMenu(titles.mapToGlobal(place), false); });
  titles.setSortIndicator(static_cast<int>(WordColumn::kRank), Qt::AscendingOrder);
  setSortingEnabled(true);
}

/// The words are what the table is about: they are always shown.
void WordTableView::MakeColumnActions() {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    QAction& action = columns_[static_cast<std::size_t>(section)];
    action.setCheckable(true);
    action.setChecked(WordTableModel::ColumnOf(section) != WordColumn::kLength);
    action.setEnabled(section != kWordSection);
    connect(&action, &QAction::toggled, this, [this] { ShowWantedColumns(); });
  }
  copy_.setShortcut(QKeySequence::Copy);
  copy_.setShortcutContext(Qt::WidgetShortcut);
  connect(&copy_, &QAction::triggered, this, [this] { CopySelected(); });
}

void WordTableView::SetTexts(const ProgramText& text) {
  model_.SetTexts(text);
  setAccessibleName(ToQt(text.GetText(kTableNameText)));
  copy_.setText(ToQt(text.GetText(kCopyRowsText)));
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    columns_[static_cast<std::size_t>(section)].setText(
        model_.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
  }
  FitColumns();
}

QStringList WordTableView::WantedColumns() const {
  QStringList names;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    if (!columns_[static_cast<std::size_t>(section)].isChecked()) continue;
    names.append(ToQt(NameOf(WordTableModel::ColumnOf(section))));
  }
  return names;
}

void WordTableView::SetWantedColumns(const QStringList& names) {
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const bool wanted = names.contains(ToQt(NameOf(WordTableModel::ColumnOf(section))));
    columns_[static_cast<std::size_t>(section)].setChecked(wanted || section == kWordSection);
  }
}

/// In how many files a word occurs is shown where it is known.
void WordTableView::ShowWantedColumns() {
  const WordRows* rows = isVisible() ? table_.Rows() : nullptr;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const bool known = section != kFilesSection || (rows != nullptr && rows->Words().KnowsFiles());
    const bool wanted = columns_[static_cast<std::size_t>(section)].isChecked();
    setColumnHidden(section, !known || !wanted);
  }
}

/// Titles and usual contents are not cut.
void WordTableView::FitColumns() {
  const QFontMetrics letters = fontMetrics();
  verticalHeader()->setDefaultSectionSize(letters.height() + letters.height() / 4);
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    const QString usual = QLatin1String(section == kWordSection ? kUsualWord : kUsualNumber);
    const int contents = letters.horizontalAdvance(usual) + letters.averageCharWidth() * 2;
    setColumnWidth(section, std::max(contents, horizontalHeader()->sectionSizeHint(section)));
  }
}

/// A row that the user has chosen stays in view when the rows change places.
void WordTableView::KeepTheCurrentWord() {
  auto chosen = std::make_shared<std::optional<std::int32_t>>();
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
    if (row) setCurrentIndex(model_.index(static_cast<int>(*row), kWordSection));
  });
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

QList<int> WordTableView::ShownColumns() const {
  QList<int> sections;
  for (int section = 0; section < WordTableModel::kColumns; ++section) {
    if (!isColumnHidden(section)) sections.append(section);
  }
  return sections;
}

void WordTableView::CopySelected() const {
  const QList<int> rows = SelectedRows();
  if (rows.isEmpty()) return;
  const QList<int> sections = ShownColumns();
  QString text;
  HtmlTable html;
  for (const int row : rows) {
    QStringList cells;
    for (const int section : sections) cells.append(model_.CopyOf(row, section));
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    html.AddRow(cells);
  }
  auto copied = std::make_unique<QMimeData>();
  copied->setText(text);
  copied->setHtml(html.Whole());
  QApplication::clipboard()->setMimeData(copied.release());  // which takes it
}

void WordTableView::ShowMenu(const QPoint& place, bool withCopy) {
  QMenu menu(this);
  if (withCopy) {
    copy_.setEnabled(selectionModel()->hasSelection());
    menu.addAction(&copy_);
    menu.addSeparator();
  }
  for (QAction& column : columns_) menu.addAction(&column);
  menu.exec(place);
}

void WordTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return CopySelected();
  QTableView::keyPressEvent(event);
}

void WordTableView::contextMenuEvent(QContextMenuEvent* event) {
  ShowMenu(event->globalPos(), true);
}

void WordTableView::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  model_.SetWatched(true);
  ShowWantedColumns();
}

void WordTableView::hideEvent(QHideEvent* event) {
  QTableView::hideEvent(event);
  if (!event->spontaneous()) model_.SetWatched(false);
}

void WordTableView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitColumns();
}

}  // namespace quillomat
