#include "qt/window_memory.h"

#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QVariant>
#include <QWindow>
#include <algorithm>

namespace quillomat {
namespace {

const char* const kZoomKey = "list/zoom";
const char* const kFoldedKey = "settings/folded";
const char* const kViewKey = "result/view";
const char* const kColumnsKey = "table/columns";
const char* const kColumnWidthsKey = "table/widths";
const char* const kOrderFiguresKey = "statistics/order";
const char* const kLastFolderKey = "dialogs/folder";

/// What the desktop puts round a window, in logical pixels.
constexpr QSize kFrame(16, 48);

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
  // A window that was never opened has no place of its own.
  if (window.windowHandle() != nullptr) {
    settings.setValue(PlaceKeyOf(window), window.saveGeometry());
  }
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

bool WindowMemory::SettingsFolded() const {
  const QSettings settings(path_, QSettings::IniFormat);
  return settings.value(QLatin1String(kFoldedKey), false).toBool();
}

void WindowMemory::KeepSettingsFolded(bool folded) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kFoldedKey), folded);
}

void WindowMemory::RestoreView(ResultTabs& views) const {
  const QSettings settings(path_, QSettings::IniFormat);
  views.Show(settings.value(QLatin1String(kViewKey)).toString());
}

void WindowMemory::KeepView(const ResultTabs& views) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kViewKey), views.Current());
}

void WindowMemory::RestoreColumns(TableColumns& columns) const {
  const QSettings settings(path_, QSettings::IniFormat);
  const QVariant wanted = settings.value(QLatin1String(kColumnsKey));
  if (wanted.isValid()) columns.SetWanted(wanted.toStringList());
  columns.SetWidths(settings.value(QLatin1String(kColumnWidthsKey)).toStringList());
}

void WindowMemory::KeepColumns(const TableColumns& columns) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kColumnsKey), columns.Wanted());
  settings.setValue(QLatin1String(kColumnWidthsKey), columns.Widths());
}

void WindowMemory::RestoreOrderFigures(QCheckBox& box) const {
  const QSettings settings(path_, QSettings::IniFormat);
  box.setChecked(settings.value(QLatin1String(kOrderFiguresKey)).toBool());
}

void WindowMemory::KeepOrderFigures(const QCheckBox& box) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kOrderFiguresKey), box.isChecked());
}

std::string WindowMemory::LastFolder() const {
  const QSettings settings(path_, QSettings::IniFormat);
  return settings.value(QLatin1String(kLastFolderKey)).toByteArray().toStdString();
}

void WindowMemory::KeepLastFolder(const std::string& folder) const {
  QSettings settings(path_, QSettings::IniFormat);
  settings.setValue(QLatin1String(kLastFolderKey), QByteArray::fromStdString(folder));
}

QSize SizeOnScreen(QSize wanted, QSize available) {
  return wanted.boundedTo(available - kFrame);
}

QPoint PlaceOver(const QRect& other, QSize size, const QRect& screen) {
  QRect place(QPoint(0, 0), size + kFrame);
  place.moveCenter(other.center());
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  return {std::max(place.left(), screen.left()), std::max(place.top(), screen.top())};
}

void ResizeOnScreen(QWidget& window, QSize wanted) {
  window.resize(SizeOnScreen(wanted, window.screen()->availableSize()));
}

}  // namespace quillomat
