#include "qt/path_suggestions.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QKeyEvent>
#include <QPointer>
#include <QThreadPool>
#include <algorithm>
#include <chrono>

#include "qt/text_conversion.h"
#include "system/typed_path.h"

namespace quillomat {
namespace {

constexpr std::chrono::milliseconds kPause{400};
constexpr qsizetype kMostOffered = 200;
constexpr int kMostRows = 8;

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity kPathCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity kPathCase = Qt::CaseSensitive;
#endif

/// From a root on, or from the user's home.
bool SaysWhereItStarts(const QString& typed) {
  return QDir::isAbsolutePath(typed) ||
         QDir::fromNativeSeparators(typed).startsWith(QLatin1String("~/"));
}

/// What begins like `typed` in its folder, in order and as it would be typed. May take long: a
/// folder can be large, and far away.
QStringList PathsLike(const QString& typed, PathKind kind) {
  const qsizetype nameStart = QDir::fromNativeSeparators(typed).lastIndexOf(QLatin1Char('/')) + 1;
  const QString folder = typed.left(nameStart);
  const QString name = typed.mid(nameStart);
  const QDir::Filters folders = QDir::AllDirs | QDir::NoDotAndDotDot;
  QStringList paths;
  QDirIterator entries(ToQt(PathFromTyped({}, FromQt(folder))),
                       kind == PathKind::kFolder ? folders : folders | QDir::Files);
  while (entries.hasNext()) {
    entries.next();
    if (entries.fileName().startsWith(name, kPathCase)) paths.append(folder + entries.fileName());
  }
  paths.sort(Qt::CaseInsensitive);
  return paths.mid(0, kMostOffered);
}

}  // namespace

PathSuggestions::PathSuggestions(QLineEdit& box, PathKind kind)
    : QObject(&box), box_(box), kind_(kind) {
  // A window of its own, as it may be longer than the one that the box is in; but not a popup,
  // which would take the mouse.
  list_.setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
  list_.setAttribute(Qt::WA_ShowWithoutActivating);
  list_.setFocusPolicy(Qt::NoFocus);
  list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_.setTextElideMode(Qt::ElideMiddle);
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&box, &QLineEdit::textEdited, this, [this](const QString& typed) {
    Narrow(typed);
    pause_.start();
  });
  connect(&pause_, &QTimer::timeout, this, [this] { Look(); });
  connect(&list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { Take(*item); });
  box.installEventFilter(this);
}

QStringList PathSuggestions::Offered() const {
  QStringList paths;
  for (int i = 0; IsOffering() && i < list_.count(); ++i) paths.append(list_.item(i)->text());
  return paths;
}

void PathSuggestions::Look() {
  const QString typed = box_.text();
  if (!box_.hasFocus() || !SaysWhereItStarts(typed)) return;
  QThreadPool::globalInstance()->start(
      [self = QPointer<PathSuggestions>(this), typed, kind = kind_] {
        const QStringList paths = PathsLike(typed, kind);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, typed, paths] {
              if (self != nullptr) self->Offer(typed, paths);
            },
            Qt::QueuedConnection);
      });
}

/// Nothing when the user has gone on since, and nothing that is already there.
void PathSuggestions::Offer(const QString& typed, const QStringList& paths) {
  const bool stale = box_.text() != typed || !box_.hasFocus() || pause_.isActive() || closed_;
  if (stale) return;
  list_.clear();
  if (paths.isEmpty() || paths == QStringList(typed)) return list_.hide();
  list_.addItems(paths);
  list_.setCurrentRow(-1);
  Place();
  list_.show();
}

/// What is offered follows the typing at once.
void PathSuggestions::Narrow(const QString& typed) {
  closed_ = false;
  if (!IsOffering()) return;
  QStringList paths;
  for (const QString& path : Offered()) {
    const bool isBelow = path.indexOf(QDir::separator(), typed.size()) >= 0;
    if (path.startsWith(typed, kPathCase) && !isBelow) paths.append(path);
  }
  if (paths.isEmpty() || paths == QStringList(typed)) return list_.hide();
  list_.clear();
  list_.addItems(paths);
  list_.setCurrentRow(-1);
  Place();
}

void PathSuggestions::Place() {
  const int rows = std::min(list_.count(), kMostRows);
  const int height = rows * list_.sizeHintForRow(0) + 2 * list_.frameWidth();
  list_.setGeometry(QRect(box_.mapToGlobal(QPoint(0, box_.height())), QSize(box_.width(), height)));
}

void PathSuggestions::Take(const QListWidgetItem& item) {
  const QString path = item.text();
  Close();
  box_.setText(path);
}

/// Until the next key.
void PathSuggestions::Close() {
  pause_.stop();
  closed_ = true;
  list_.hide();
}

void PathSuggestions::Mark(int step) {
  const int rows = list_.count();
  const int row = list_.currentRow();
  if (row < 0) return list_.setCurrentRow(step > 0 ? 0 : rows - 1);
  list_.setCurrentRow((row + step + rows) % rows);
}

/// True when the key is used up.
bool PathSuggestions::OnKey(int key) {
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!IsOffering()) {
    if (isEnter || key == Qt::Key_Escape) Close();
    return false;
  }
  if (key == Qt::Key_Down || key == Qt::Key_Up) {
    Mark(key == Qt::Key_Down ? 1 : -1);
    return true;
  }
  if (isEnter && list_.currentItem() != nullptr) {
    Take(*list_.currentItem());
    return true;
  }
  if (isEnter || key == Qt::Key_Escape) Close();
  return key == Qt::Key_Escape;
}

bool PathSuggestions::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (OnKey(static_cast<QKeyEvent*>(event)->key())) return true;
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::EnabledChange:
      Close();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quillomat
