#include "qt/settings_area.h"

#include <QEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace quillomat {

SettingsArea::SettingsArea(QWidget* parent) : QScrollArea(parent) {
  setFocusPolicy(Qt::NoFocus);
}

int SettingsArea::BarWidth() const {
  return verticalScrollBar()->sizeHint().width();
}

QSize SettingsArea::sizeHint() const {
  if (widget() == nullptr) return QScrollArea::sizeHint();
  const QSize content = widget()->sizeHint();
  const int shownWidth = std::max(viewport()->width(), widget()->minimumSizeHint().width());
  const int height =
      widget()->hasHeightForWidth() ? widget()->heightForWidth(shownWidth) : content.height();
  return {content.width() + BarWidth(), height};
}

QSize SettingsArea::minimumSizeHint() const {
  constexpr int kLines = 4;
  constexpr int kBesideArea = 48;  // the margins and frame of its window
  const int width = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
  const int most = screen()->availableSize().width() - kBesideArea;
  return {std::min(width + BarWidth(), most), kLines * fontMetrics().lineSpacing()};
}

/// What it holds may need more room from now on.
bool SettingsArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

/// Rows break into more of them where it is narrower.
void SettingsArea::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (event->oldSize().width() != event->size().width()) updateGeometry();
}

}  // namespace quillomat
