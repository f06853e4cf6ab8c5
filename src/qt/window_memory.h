// Remembers the windows' places and sizes, how their splitters stand, the size of the list's
// letters, the view of the result that is in front, the columns of its table, which statistics are
// wanted, and the folder used last, in a file of the user's settings folder. No window opens larger
// than its screen.
#pragma once

#include <QCheckBox>
#include <QString>
#include <QWidget>
#include <string>

#include "qt/list_view.h"
#include "qt/result_tabs.h"
#include "qt/table_columns.h"

namespace quillomat {

/// The property of a splitter that the user has moved: only such a place is kept, and restored.
inline constexpr const char* kPlacedByUser = "placedByUser";

class WindowMemory {
 public:
  /// The file need not exist; what it does not hold stays as it is.
  explicit WindowMemory(QString path) : path_(std::move(path)) {}

  /// A window is known by its object name.
  void Restore(QWidget& window) const;
  void Keep(const QWidget& window) const;
  void RestoreZoom(ListView& list) const;
  void KeepZoom(const ListView& list) const;
  /// Whether the settings are folded away.
  [[nodiscard]] bool SettingsFolded() const;
  void KeepSettingsFolded(bool folded) const;
  /// Which view of the result is in front.
  void RestoreView(ResultTabs& views) const;
  void KeepView(const ResultTabs& views) const;
  /// Which columns the table of words shows, and how wide they are.
  void RestoreColumns(TableColumns& columns) const;
  void KeepColumns(const TableColumns& columns) const;
  /// Whether figures that need the order of words are worked out.
  void RestoreOrderFigures(QCheckBox& box) const;
  void KeepOrderFigures(const QCheckBox& box) const;
  /// The folder in which the next dialog opens; "" for none.
  [[nodiscard]] std::string LastFolder() const;
  void KeepLastFolder(const std::string& folder) const;

 private:
  QString path_;
};

/// The size of a window that wants to be `wanted` on a screen with so much room, in logical pixels:
/// the frame that the desktop puts round it is left room, too.
[[nodiscard]] QSize SizeOnScreen(QSize wanted, QSize available);
/// Where a window of that size opens: over the middle of another one, and whole on the screen.
[[nodiscard]] QPoint PlaceOver(const QRect& other, QSize size, const QRect& screen);
/// Gives a window that size, as far as its screen has room.
void ResizeOnScreen(QWidget& window, QSize wanted);

}  // namespace quillomat
