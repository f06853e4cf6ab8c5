#include "qt/box_guard.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyleHints>
#include <QWidget>

namespace quillomat {
namespace {

/// The box that takes the keys; null while another kind of window does.
QDialog* BoxInFront() {
  if (QApplication::activePopupWidget() != nullptr) return nullptr;
  return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

bool IsWrittenInto(const QDialog& box) {
  const QWidget* focused = box.focusWidget();
  return qobject_cast<const QLineEdit*>(focused) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(focused) != nullptr;
}

}  // namespace

BoxGuard::BoxGuard() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool BoxGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
      if (qobject_cast<QDialog*>(watched) != nullptr) open_ = Clock::now() + kPause;
      return false;
    case QEvent::ShortcutOverride: {
      const auto& key = static_cast<QKeyEvent&>(*event);
      NotePress(key);
      shortcutMayAnswer_ = MayAnswer(key);
      return false;
    }
    case QEvent::KeyPress:
      NotePress(static_cast<QKeyEvent&>(*event));
      return KeepsAway(static_cast<QKeyEvent&>(*event));
    case QEvent::Shortcut:
      return BoxInFront() != nullptr && (!shortcutMayAnswer_ || Clock::now() < open_);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return KeepsAway(static_cast<QMouseEvent&>(*event));
    case QEvent::KeyRelease:
      if (const auto& key = static_cast<QKeyEvent&>(*event); !key.isAutoRepeat())
        presses_.remove(key.key());
      return false;
    default:
      return false;
  }
}

/// A press is told several times on its way from the window to the widget, and is still the first.
void BoxGuard::NotePress(const QKeyEvent& key) {
  const Clock::time_point now = Clock::now();
  const auto known = presses_.find(key.key());
  const bool isKnown = known != presses_.end();
  const bool isHeld = isKnown && (key.isAutoRepeat() || now - known->told <= kLongestSilence);
  if (isHeld) {
    known->told = now;
  } else if (!key.isAutoRepeat()) {
    presses_.insert(key.key(), {now, now});
  }
}

bool BoxGuard::MayAnswer(const QKeyEvent& key) const {
  if (key.isAutoRepeat()) return false;
  const auto press = presses_.find(key.key());
  return press == presses_.end() || press->down >= open_;
}

/// A press is told several times on its way; told first, it comes behind the box. Whoever clicks a
/// row of boxes away, all at one place, answers each that could be read.
bool BoxGuard::KeepsAway(const QMouseEvent& mouse) {
  const Clock::time_point now = Clock::now();
  const std::chrono::milliseconds doubleClick(QApplication::doubleClickInterval());
  const int distance = QGuiApplication::styleHints()->mouseDoubleClickDistance();
  const QPoint place = mouse.globalPosition().toPoint();
  const bool isSecond = now - clicked_ <= doubleClick && clicked_ < open_ - kPause &&
                        (place - clickedAt_).manhattanLength() <= distance;
  const bool isBoxInFront = BoxInFront() != nullptr;
  const bool answersNext = clickedInBox_ && now >= open_;
  if (isSecond && isBoxInFront && !answersNext) return true;
  clicked_ = now;
  clickedAt_ = place;
  clickedInBox_ = isBoxInFront;
  return false;
}

bool BoxGuard::KeepsAway(const QKeyEvent& key) const {
  const QDialog* box = BoxInFront();
  if (box == nullptr) return false;
  const bool answers = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                       key.key() == Qt::Key_Escape || !IsWrittenInto(*box);
  return answers && !MayAnswer(key);
}

}  // namespace quillomat
