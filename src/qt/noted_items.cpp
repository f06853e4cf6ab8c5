#include "qt/noted_items.h"

#include <QAbstractItemView>
#include <QScrollBar>

namespace quillomat {

NotedItems::NotedItems(QComboBox& box) : QStyledItemDelegate(&box), box_(box) {
  box.setItemDelegate(this);
}

bool NotedItems::SetNote(int index, const QString& note) {
  const QString name = box_.itemText(index);
  const QString whole = note.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, note);
  if (box_.itemData(index, Qt::AccessibleTextRole).toString() == whole) return false;
  box_.setItemData(index, whole, Qt::AccessibleTextRole);
  return true;
}

void NotedItems::FitList() {
  QAbstractItemView& list = *box_.view();
  const int bar = list.verticalScrollBar()->sizeHint().width();
  list.setMinimumWidth(list.sizeHintForColumn(0) + bar + 2 * list.frameWidth());
}

void NotedItems::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString whole = index.data(Qt::AccessibleTextRole).toString();
  if (!whole.isEmpty()) option->text = whole;
}

}  // namespace quillomat
