#include "qt/path_suggestions.h"

#include <QDir>
#include <QKeyEvent>
#include <QScopeGuard>
#include <algorithm>
#include <chrono>
#include <exception>
#include <new>
#include <thread>
#include <utility>

#include "qt/text_conversion.h"
#include "system/names_in_folder.h"
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

/// What is shown of a path may be more readable than the path.
constexpr int kPathRole = Qt::UserRole;

QString PathOf(const QListWidgetItem& item) {
  return item.data(kPathRole).toString();
}

/// Where the name begins that is typed last.
qsizetype NameStart(const QString& typed) {
  return QDir::fromNativeSeparators(typed).lastIndexOf(QLatin1Char('/')) + 1;
}

/// Whether the folder is said in which to look: from the root on, or in the user's home.
bool NamesFolder(const QString& typed) {
  return QDir::isAbsolutePath(typed) ||
         QDir::fromNativeSeparators(typed).startsWith(QLatin1String("~/"));
}

}  // namespace

QStringList PathSuggestions::PathsLike(const QString& typed, PathKind kind,
                                       const std::stop_token& stop) {
  const qsizetype nameStart = NameStart(typed);
  const QString folder = typed.left(nameStart);
  const QString beginning = typed.mid(nameStart);
  QStringList paths;
  GoThroughNames(PathFromTyped({}, FromQt(folder)), [&](const NameInFolder& item) {
    const QString name = ToQt(item.name);
    const bool isWanted = kind == PathKind::kFile || item.isFolder;
    if (isWanted && name.startsWith(beginning, kPathCase)) paths.append(folder + name);
    return !stop.stop_requested();
  });
  if (stop.stop_requested()) return {};
  paths.sort(Qt::CaseInsensitive);
  return paths.mid(0, kMostOffered);
}

PathSuggestions::PathSuggestions(QLineEdit& box, PathKind kind, Source source)
    : QObject(&box), box_(box), kind_(kind), source_(std::move(source)) {
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

PathSuggestions::~PathSuggestions() {
  stop_.request_stop();
  callsFromThreads_->End();
}

QStringList PathSuggestions::Offered() const {
  QStringList paths;
  for (int i = 0; IsOffering() && i < list_.count(); ++i) paths.append(PathOf(*list_.item(i)));
  return paths;
}

void PathSuggestions::Look() {
  const QString typed = box_.text();
  if (!box_.hasFocus() || !NamesFolder(typed) || *looks_ == kMostLooks) return;
  stop_.request_stop();
  stop_ = std::stop_source();
  ++*looks_;
  try {
    StartLook(typed);
  } catch (const std::exception&) {
    --*looks_;  // without a thread, or memory for one, there is nothing to offer
  }
}

/// Touches nothing of ours but what it shares, and may outlive everything but the program: told to
/// stop, it ends at the next name.
void PathSuggestions::StartLook(const QString& typed) {
  std::thread([this, typed, kind = kind_, source = source_, stop = stop_.get_token(),
               calls = callsFromThreads_, looks = looks_] {
    const auto done = qScopeGuard([&looks] { --*looks; });
    try {
      calls->Call([this, typed, paths = source(typed, kind, stop)] { Offer(typed, paths); });
    } catch (const std::bad_alloc&) {
      return;  // nothing is offered
    }
  }).detach();
}

/// Nothing when the user has gone on since, and nothing that is already there.
void PathSuggestions::Offer(const QString& typed, const QStringList& paths) {
  const bool stale = box_.text() != typed || !box_.hasFocus() || pause_.isActive() || closed_;
  if (stale) return;
  if (Fill(typed, paths)) list_.show();
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
  Fill(typed, paths);
}

/// False when there is nothing to be offered.
bool PathSuggestions::Fill(const QString& typed, const QStringList& paths) {
  list_.clear();
  if (paths.isEmpty() || paths == QStringList(typed)) {
    list_.hide();
    return false;
  }
  for (const QString& path : paths) {
    auto* item = new QListWidgetItem(ToShown(FromQt(path)), &list_);
    item->setData(kPathRole, path);
  }
  list_.setCurrentRow(-1);
  Place();
  return true;
}

void PathSuggestions::Place() {
  const int rows = std::min(list_.count(), kMostRows);
  const int height = rows * list_.sizeHintForRow(0) + 2 * list_.frameWidth();
  list_.setGeometry(QRect(box_.mapToGlobal(QPoint(0, box_.height())), QSize(box_.width(), height)));
}

void PathSuggestions::Take(const QListWidgetItem& item) {
  const QString path = PathOf(item);
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
  const int next = row < 0 ? (step > 0 ? 0 : rows - 1) : (row + step + rows) % rows;
  list_.setCurrentRow(next);
  announce(list_, next);  // the keyboard stays in the box, so the toolkit does not
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
