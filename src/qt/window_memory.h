// Remembers the windows' places and sizes and the size of the list's letters, in a file of the
// user's settings folder.
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

 private:
  QString path_;
};

}  // namespace quillomat
