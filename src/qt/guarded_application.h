// The application of the windows. A handler that fails for want of memory, or with a run-time
// error, ends neither the program nor what the user has before him: it is told of, and the program
// goes on.
#pragma once

#include <QApplication>
#include <functional>

#include "base/run_time_error.h"

namespace quillomat {

class GuardedApplication final : public QApplication {
 public:
  using QApplication::QApplication;

  /// Tells the user. Called when the handler that failed has been left, and never while it is at
  /// work already. Without it what was thrown goes on to whoever has started the events.
  std::function<void(const RunTimeError& error)> tell;

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void TellLater(const RunTimeError& error);
  void Tell(const RunTimeError& error);

  bool isTelling_ = false;
};

}  // namespace quillomat
