// Remembers the windows' places and sizes, the size of the list's letters and the folder used last,
// in a file of the user's settings folder.
#pragma once

#include <QString>
#include <QWidget>

#include "qt/list_view.h"

namespace quillomat {

class WindowMemory {
 public:
  /// The file need not exist; what it does not hold stays as it is.
  explicit WindowMemory(QString path) : path_(std::move(path)) {}

  /// A window is known by its object name.
  void Restore(QWidget& window) const;
  void Keep(const QWidget& window) const;
  void RestoreZoom(ListView& list) const;
  void KeepZoom(const ListView& list) const;
  /// The folder in which the next dialog opens; "" for none.
  [[nodiscard]] QString LastFolder() const;
  void KeepLastFolder(const QString& folder) const;

 private:
  QString path_;
};

}  // namespace quillomat
