#include "qt/link_label.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace quillomat {
namespace {

/// What a screen reader is told of a link.
class LinkAccess final : public QAccessibleWidget {
 public:
  explicit LinkAccess(LinkLabel& link) : QAccessibleWidget(&link, QAccessible::Link), link_(link) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? link_.text() : own;
  }
  [[nodiscard]] QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (link_.onPress) link_.onPress();
  }

 private:
  LinkLabel& link_;
};

/// The toolkit owns what is returned.
QAccessibleInterface* AccessToLinks(const QString& /*className*/, QObject* object) {
  auto* link = dynamic_cast<LinkLabel*>(object);
  return link == nullptr ? nullptr : new LinkAccess(*link);
}

}  // namespace

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  constexpr int kRoomForFocus = 2;
  setMargin(kRoomForFocus);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  QAccessible::installFactory(AccessToLinks);  // once, however often it is called
}

/// A key that is held follows the link once.
void LinkLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (!event->isAutoRepeat() && onPress) onPress();
      return;
    default:
      QLabel::keyPressEvent(event);
  }
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  QStylePainter painter(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
}

}  // namespace quillomat
