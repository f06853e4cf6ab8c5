// Keeps the second click of a double click from a command that means something else since the
// first: whoever clicks everything twice would stop the count that he has just begun.
#pragma once

#include <QObject>
#include <QPushButton>
#include <string>

#include "ui/controls.h"

namespace quillomat {

class SecondClick final : public QObject {
 public:
  /// The command outlives it.
  SecondClick(const CommandButton& command, QPushButton& button);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const CommandButton& command_;
  /// What the command was called at the last press that it took.
  std::string caption_;
};

}  // namespace quillomat
