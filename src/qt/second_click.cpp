#include "qt/second_click.h"

#include <QEvent>

namespace quillomat {

SecondClick::SecondClick(const CommandButton& command, QPushButton& button) : command_(command) {
  button.installEventFilter(this);
}

bool SecondClick::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) return command_.Caption() != caption_;
  if (event->type() == QEvent::MouseButtonPress) caption_ = command_.Caption();
  return false;
}

}  // namespace quillomat
