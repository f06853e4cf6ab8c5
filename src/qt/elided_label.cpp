#include "qt/elided_label.h"

#include <QEvent>
#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>

namespace quillomat {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setTextFormat(Qt::PlainText);
}

/// It takes what it gets; some words are wanted.
QSize ElidedLabel::sizeHint() const {
  constexpr int kLetters = 6;
  return {kLetters * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

QString ElidedLabel::ShownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || ShownText() == text()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), ShownText(), foregroundRole());
}

}  // namespace quillomat
