#include "qt/spoken_text.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillomat {
namespace {

QAccessibleInterface* NotificationOf(const QString& /*className*/, QObject* object) {
  auto* spoken = dynamic_cast<SpokenText*>(object);
  if (spoken == nullptr) return nullptr;
  return new QAccessibleWidget(spoken, QAccessible::Notification);  // the toolkit takes it
}

/// The toolkit may have told of the widget, and kept what it took it for, while it was being made.
void ForgetEarlyAccess(QWidget& widget) {
  QAccessibleInterface* early = QAccessible::queryAccessibleInterface(&widget);
  if (early == nullptr || early->role() == QAccessible::Notification) return;
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

}  // namespace

SpokenText& SpokenText::Of(const QWidget& label) {
  for (QObject* child : label.window()->children()) {
    auto* spoken = dynamic_cast<SpokenText*>(child);
    if (spoken != nullptr && spoken->label_ == &label) return *spoken;
  }
  return *new SpokenText(label);
}

SpokenText::SpokenText(const QWidget& label) : QWidget(label.window()), label_(&label) {
  constexpr int kMillisecondsShown = 5000;
  QAccessible::installFactory(NotificationOf);  // the toolkit keeps it once
  ForgetEarlyAccess(*this);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(0, 0);
  gone_.setSingleShot(true);
  gone_.setInterval(kMillisecondsShown);
  connect(&gone_, &QTimer::timeout, this, &QWidget::hide);
}

void SpokenText::Say(const QString& text) {
  hide();
  setAccessibleName(text);
  show();
  gone_.start();
}

}  // namespace quillomat
