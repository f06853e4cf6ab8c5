// The open list of a combo box whose items have notes: "Windows-1250 (Central European)". The
// closed box shows the names alone, and keeps its width.
#pragma once

#include <QComboBox>
#include <QString>
#include <QStyledItemDelegate>

namespace quillomat {

class NotedItems final : public QStyledItemDelegate {
 public:
  /// Belongs to the box.
  explicit NotedItems(QComboBox& box);

  /// For a screen reader, too. False where it has that one already.
  bool SetNote(int index, const QString& note);
  /// Makes the open list as wide as its items are with their notes.
  void FitList();

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  QComboBox& box_;
};

}  // namespace quillomat
