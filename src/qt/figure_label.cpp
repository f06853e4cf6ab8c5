#include "qt/figure_label.h"

#include <QFontMetrics>
#include <QStringList>
#include <QStylePainter>
#include <algorithm>

namespace quillomat {
namespace {

constexpr int kWraps = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

}  // namespace

FigureLabel::FigureLabel(QWidget* parent) : QLabel(parent) {
  setWordWrap(true);
  QSizePolicy policy = sizePolicy();
  policy.setRetainSizeWhenHidden(true);  // nothing moves when a summary appears
  setSizePolicy(policy);
}

void FigureLabel::Show(const QString& caption, const QString& figure) {
  if (caption == text() && figure == figure_) return;
  figure_ = figure;
  setText(caption);
  setAccessibleName(figure.isEmpty() ? caption : caption + QLatin1Char(' ') + figure);
  updateGeometry();
  update();
}

int FigureLabel::FigureWidth() const {
  if (figure_.isEmpty()) return 0;
  const QFontMetrics metrics = fontMetrics();
  return metrics.horizontalAdvance(figure_) + metrics.averageCharWidth();
}

int FigureLabel::heightForWidth(int width) const {
  const int room = std::max(width - FigureWidth(), 1);
  const int needed = fontMetrics().boundingRect(QRect(0, 0, room, 0), kWraps, text()).height();
  return std::max(needed, fontMetrics().height());
}

QSize FigureLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()) + 1 + FigureWidth(), fontMetrics().height()};
}

QSize FigureLabel::minimumSizeHint() const {
  int widest = 0;
  for (const QString& word : text().split(QLatin1Char(' '))) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(word));
  }
  return {widest + 1 + FigureWidth(), fontMetrics().height()};
}

void FigureLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  const QRect textPlace = rect().adjusted(0, 0, -FigureWidth(), 0);
  style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), textPlace), kWraps,
                        palette(), isEnabled(), text(), foregroundRole());
  style()->drawItemText(&painter, rect(), Qt::AlignRight | Qt::AlignBottom, palette(), isEnabled(),
                        figure_, foregroundRole());
}

}  // namespace quillomat
