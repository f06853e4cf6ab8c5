#include "qt/window_memory.h"

#include <QSettings>

namespace quillomat {
namespace {

const char* const kZoomKey = "list/zoom";
const char* const kLastFolderKey = "dialogs/folder";

QString PlaceKeyOf(const QWidget& window) {
  return window.objectName() + QStringLiteral("/place");
}

}  // namespace

void WindowMemory::Restore(QWidget& window) const {
  const QSettings settings(path_, QSettings::IniFormat);
  const QByteArray place = settings.value(PlaceKeyOf(window)).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
}

void WindowMemory::Keep(const QWidget& window) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(PlaceKeyOf(window), window.saveGeometry());
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

}  // namespace quillomat
