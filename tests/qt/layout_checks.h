// What every window has to be like, however large the window and the letters.
#pragma once

#include <QApplication>
#include <QFont>
#include <QWidget>

namespace quillomat {

/// Nothing lies over anything else, nothing is cut, and all can be reached.
void ExpectWellLaidOut(const QWidget& window);

/// While it lives, the letters of all windows have another size.
class Letters {
 public:
  explicit Letters(int points) : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  Letters(const Letters&) = delete;
  Letters& operator=(const Letters&) = delete;
  Letters(Letters&&) = delete;
  Letters& operator=(Letters&&) = delete;
  ~Letters() { QApplication::setFont(usual_); }

 private:
  QFont usual_;
};

}  // namespace quillomat
