#include "qt/elided_label.h"

#include <QEvent>
#include <QHelpEvent>
#include <QStylePainter>
#include <QTextLayout>
#include <QTextOption>
#include <QToolTip>

namespace quillomat {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::SetWantedWidth(int width) {
  if (width == wantedWidth_) return;
  wantedWidth_ = width;
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  updateGeometry();
}

QSize ElidedLabel::sizeHint() const {
  return minimumSizeHint().expandedTo(QSize(wantedWidth_, 0));
}

/// It takes what it gets; some words are wanted.
QSize ElidedLabel::minimumSizeHint() const {
  constexpr int kLetters = 6;
  return {kLetters * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

QStringList ElidedLabel::ShownLines() const {
  const QFontMetrics metrics = fontMetrics();
  const int width = contentsRect().width();
  const int most = contentsRect().height() / metrics.lineSpacing();
  QString rest = text();
  QStringList lines;
  while (lines.size() + 1 < most && metrics.horizontalAdvance(rest) > width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(rest, font());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width);
    layout.endLayout();
    lines.append(rest.left(line.textLength()).trimmed());
    rest = rest.mid(line.textLength());
  }
  lines.append(metrics.elidedText(rest, Qt::ElideRight, width));
  return lines;
}

bool ElidedLabel::IsCut() const {
  const QStringList lines = ShownLines();
  return !text().endsWith(lines.constLast());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !IsCut()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), ShownLines().join(QLatin1Char('\n')), foregroundRole());
}

}  // namespace quillomat
