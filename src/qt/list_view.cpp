#include "qt/list_view.h"

#include <QLayout>
#include <QTextBlock>
#include <QTextOption>
#include <QWheelEvent>
#include <algorithm>

#include "qt/fixed_font.h"

namespace quillomat {

ListView::ListView(QWidget* parent) : QPlainTextEdit(parent) {
  const QFont font = ListFont();
  usualSize_ = font.pointSizeF();
  setFont(font);
  setTabChangesFocus(true);
  // Else a line would begin on the side of its first letter, and a Hebrew word stand before its
  // rank.
  QTextOption option = document()->defaultTextOption();
  option.setTextDirection(Qt::LeftToRight);
  document()->setDefaultTextOption(option);
  setAcceptDrops(false);  // what is dropped here is meant for the window
}

void ListView::SetZoom(int zoom) {
  zoom_ = std::clamp(zoom, kSmallestZoom, kLargestZoom);
  QFont changed = font();
  changed.setPointSizeF(std::max(usualSize_ + zoom_, 4.0));
  setFont(changed);
  if (onZoom) onZoom(zoom_);
}

/// What stands on the empty list is not cut.
QSize ListView::minimumSizeHint() const {
  const QSize usual = QPlainTextEdit::minimumSizeHint();
  if (layout() == nullptr) return usual;
  const QSize frame(2 * frameWidth(), 2 * frameWidth());
  return usual.expandedTo(layout()->totalMinimumSize() + frame);
}

/// The lines that are selected, the first and the last perhaps in part.
std::vector<CopiedLine> ListView::SelectedLines() const {
  const QTextCursor cursor = textCursor();
  std::vector<CopiedLine> lines;
  QTextBlock block = document()->findBlock(cursor.selectionStart());
  for (; block.isValid() && block.position() < cursor.selectionEnd(); block = block.next()) {
    const QString line = block.text();
    const int begin = std::max(cursor.selectionStart() - block.position(), 0);
    const int end = cursor.selectionEnd() - block.position();
    lines.push_back({line, begin, std::min<qsizetype>(end, line.size())});
  }
  return lines;
}

/// The toolkit takes what is returned.
QMimeData* ListView::createMimeDataFromSelection() const {
  const QChar paragraphEnd(QChar::ParagraphSeparator);
  return ClipboardDataOf(textCursor().selectedText().replace(paragraphEnd, QLatin1Char('\n')),
                         HtmlTableOf(SelectedLines(), cells_))
      .release();
}

void ListView::insertFromMimeData(const QMimeData* source) {
  if (source->hasText()) insertPlainText(source->text());
}

/// Enter is the window's, which counts; in a text that the user is writing it breaks the line, and
/// Ctrl+Enter is the window's.
void ListView::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
  const bool writing = document()->isUndoAvailable();
  if (isEnter && (held == Qt::ControlModifier || (held == Qt::NoModifier && !writing))) {
    return event->ignore();
  }
  QPlainTextEdit::keyPressEvent(event);
}

void ListView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
  if (event->angleDelta().y() != 0) SetZoom(zoom_ + (event->angleDelta().y() > 0 ? 1 : -1));
  event->accept();
}

}  // namespace quillomat
