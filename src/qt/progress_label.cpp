#include "qt/progress_label.h"

#include <QStyleOptionProgressBar>
#include <QStylePainter>

namespace quillomat {

std::optional<double> ProgressLabel::Share() const {
  const QString bar = text();
  if (bar.size() < 3 || !bar.startsWith(QLatin1Char('[')) || !bar.endsWith(QLatin1Char(']'))) {
    return std::nullopt;
  }
  const qsizetype tip = bar.indexOf(QLatin1Char('>'));
  return static_cast<double>(tip < 0 ? 0 : tip) / static_cast<double>(bar.size() - 2);
}

void ProgressLabel::paintEvent(QPaintEvent* event) {
  const std::optional<double> share = Share();
  if (!share) return QLabel::paintEvent(event);
  constexpr int kMaximum = 1000;
  constexpr int kHeight = 22;
  QStyleOptionProgressBar option;
  option.initFrom(this);
  option.rect = QRect(0, (height() - kHeight) / 2, width(), kHeight);
  option.state |= QStyle::State_Horizontal;
  option.minimum = 0;
  option.maximum = kMaximum;
  option.progress = static_cast<int>(*share * kMaximum);
  option.textVisible = true;
  option.textAlignment = Qt::AlignCenter;
  option.text = QString::number(static_cast<int>(*share * 100)) + QStringLiteral(" %");
  QStylePainter painter(this);
  painter.drawControl(QStyle::CE_ProgressBar, option);
}

}  // namespace quillomat
