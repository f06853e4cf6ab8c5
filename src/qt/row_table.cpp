#include "qt/row_table.h"

#include <QHeaderView>
#include <algorithm>
#include <memory>
#include <utility>

namespace quillomat {

void SetUpRows(QTableView& table) {
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setAlternatingRowColors(true);
  table.setShowGrid(false);
  table.setTabKeyNavigation(false);
  table.verticalHeader()->hide();
  table.horizontalHeader()->setHighlightSections(false);
}

void FitRowsToLetters(QTableView& table) {
  const int letters = table.fontMetrics().height();
  table.verticalHeader()->setDefaultSectionSize(letters + letters / 4);
}

void SetLetterSize(QTableView& table, int points) {
  constexpr qreal kSmallest = 4.0;
  if (table.parentWidget() == nullptr) return;
  QFont letters = table.parentWidget()->font();
  if (letters.pointSizeF() <= 0) return;
  letters.setPointSizeF(std::max(letters.pointSizeF() + points, kSmallest));
  table.setFont(letters);
}

void SortBy(QTableView& table, int section) {
  const QHeaderView& titles = *table.horizontalHeader();
  const QVariant usual =
      table.model()->headerData(section, Qt::Horizontal, Qt::InitialSortOrderRole);
  auto order = static_cast<Qt::SortOrder>(usual.toInt());
  if (titles.sortIndicatorSection() == section) {
    const bool ascends = titles.sortIndicatorOrder() == Qt::AscendingOrder;
    order = ascends ? Qt::DescendingOrder : Qt::AscendingOrder;
  }
  table.sortByColumn(section, order);
}

void AddSorting(QMenu& menu, QTableView& table, int section, const QString& text) {
  const QString title =
      table.model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
  menu.addAction(text.arg(title), &table, [&table, section] { SortBy(table, section); });
}

void KeepChosenRowOf(QTableView& table, std::function<void()> layOut, RowIdentity rows,
                     int section) {
  const auto chosen = std::make_shared<std::optional<std::int64_t>>();
  const auto known = std::make_shared<const RowIdentity>(std::move(rows));
  QObject::connect(table.model(), &QAbstractItemModel::modelAboutToBeReset, &table,
                   [&table, chosen, known] {
                     chosen->reset();
                     const QModelIndex current = table.currentIndex();
                     if (!current.isValid() || !table.selectionModel()->isSelected(current)) return;
                     *chosen = known->identity(current.row());
                   });
  QObject::connect(table.model(), &QAbstractItemModel::modelReset, &table,
                   [&table, chosen, known, section, layOut = std::move(layOut)] {
                     const auto row = *chosen ? known->row(**chosen) : std::nullopt;
                     if (!row) return;
                     // Else there are still too few rows to go to this one.
                     layOut();
                     table.setCurrentIndex(table.model()->index(*row, section));
                   });
}

QList<int> SelectedRowsOf(const QTableView& table) {
  QList<int> rows;
  for (const QItemSelectionRange& range : table.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.append(row);
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

}  // namespace quillomat
