#include "qt/busy_mark.h"

#include <QPainter>
#include <algorithm>

namespace quillomat {

BusyMark::BusyMark(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAccessibleName(QStringLiteral(" "));  // its sign is no text to be read out
  sinceStart_.start();
}

QSize BusyMark::sizeHint() const {
  const int side = fontMetrics().height();
  return {side, side};
}

/// A ring with a gap that goes round once in a second and a half.
void BusyMark::paintEvent(QPaintEvent* /*event*/) {
  if (!IsOn()) return;
  constexpr int kTurnMilliseconds = 1500;
  constexpr int kCircle = 360 * 16;  // the toolkit counts in sixteenths of a degree
  constexpr int kGap = kCircle / 4;
  const auto passed = static_cast<int>(sinceStart_.elapsed() % kTurnMilliseconds);
  const qreal thickness = std::max(height() / 8.0, 1.5);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
  const QRectF ring = QRectF(rect()).adjusted(thickness, thickness, -thickness, -thickness);
  painter.drawArc(ring, -kCircle * passed / kTurnMilliseconds, kCircle - kGap);
}

}  // namespace quillomat
