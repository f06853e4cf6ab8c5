#include "qt/window_memory.h"

#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QVariant>

namespace quillomat {
namespace {

const char* const kZoomKey = "list/zoom";
const char* const kLastFolderKey = "dialogs/folder";

QString PlaceKeyOf(const QWidget& window) {
  return window.objectName() + QStringLiteral("/place");
}

QString SplitKeyOf(const QWidget& window, const QSplitter& splitter) {
  return window.objectName() + QLatin1Char('/') + splitter.objectName();
}

}  // namespace

void WindowMemory::Restore(QWidget& window) const {
  const QSettings settings(path_, QSettings::IniFormat);
  const QByteArray place = settings.value(PlaceKeyOf(window)).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
  ResizeOnScreen(window, window.size());
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    const QByteArray state = settings.value(SplitKeyOf(window, *splitter)).toByteArray();
    if (!state.isEmpty()) splitter->setProperty(kPlacedByUser, splitter->restoreState(state));
  }
}

void WindowMemory::Keep(const QWidget& window) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(PlaceKeyOf(window), window.saveGeometry());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    if (splitter->property(kPlacedByUser).toBool()) {
      settings.setValue(SplitKeyOf(window, *splitter), splitter->saveState());
    }
  }
}

void WindowMemory::RestoreZoom(ListView& list) const {
  const QSettings settings(path_, QSettings::IniFormat);
  list.SetZoom(settings.value(QLatin1String(kZoomKey), 0).toInt());
}

void WindowMemory::KeepZoom(const ListView& list) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kZoomKey), list.Zoom());
}

QString WindowMemory::LastFolder() const {
  return QSettings(path_, QSettings::IniFormat).value(QLatin1String(kLastFolderKey)).toString();
}

void WindowMemory::KeepLastFolder(const QString& folder) const {
  QSettings(path_, QSettings::IniFormat).setValue(QLatin1String(kLastFolderKey), folder);
}

QSize SizeOnScreen(QSize wanted, QSize available) {
  constexpr QSize kFrame(16, 48);
  return wanted.boundedTo(available - kFrame);
}

void ResizeOnScreen(QWidget& window, QSize wanted) {
  window.resize(SizeOnScreen(wanted, window.screen()->availableSize()));
}

}  // namespace quillomat
