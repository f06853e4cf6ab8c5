#include "qt/guarded_application.h"

#include <QScopeGuard>
#include <new>

namespace quillomat {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  if (!tell) return QApplication::notify(receiver, event);
  try {
    return QApplication::notify(receiver, event);
  } catch (const RunTimeError& error) {
    TellLater(error);
  } catch (const std::bad_alloc&) {
    TellLater(RunTimeError(RunTimeErrorNumber::kOutOfMemory));
  }
  return true;
}

/// Not here: a box, which waits for its answer, does not belong into the midst of painting.
void GuardedApplication::TellLater(const RunTimeError& error) {
  if (isTelling_) return;  // the same again, most likely
  try {
    QMetaObject::invokeMethod(
        this, [this, error] { Tell(error); }, Qt::QueuedConnection);
    isTelling_ = true;
  } catch (const std::bad_alloc&) {
    return;  // what comes next may find more memory, and is told of
  }
}

void GuardedApplication::Tell(const RunTimeError& error) {
  const auto done = qScopeGuard([this] { isTelling_ = false; });
  try {
    tell(error);
  } catch (const std::bad_alloc&) {
    return;  // not even a box could be made; to go on trying would never end
  }
}

}  // namespace quillomat
