#include "qt/accessible_names.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QStringList>
#include <QVariant>

#include "qt/mnemonics.h"
#include "qt/spoken_text.h"

namespace quillomat {
namespace {

QString CaptionOf(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return box->title();
  return widget.isWindow() ? widget.windowTitle() : QString();
}

}  // namespace

void ShowAccessibleNames(const QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const QString namedBy = widget->property("namedBy").toString();
    QStringList captions;
    for (const QString& name : namedBy.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
      const QWidget* other =
          name == window.objectName() ? &window : window.findChild<QWidget*>(name);
      if (other != nullptr) captions.append(Readable(CaptionOf(*other)));
    }
    const QString read = captions.join(QLatin1Char(' '));
    // Screen readers are told of every name that is set, the same one, too.
    if (!read.isEmpty() && read != widget->accessibleName()) widget->setAccessibleName(read);
  }
}

void AnnounceItem(QAbstractItemView& list, int row) {
  QAccessibleEvent event(&list, QAccessible::Focus);
  event.setChild(row);
  QAccessible::updateAccessibility(&event);
}

void Announce(QWidget& label) {
  QAccessibleEvent event(&label, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
  const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&label);
  const QString text = read == nullptr ? QString() : read->text(QAccessible::Name);
  if (!text.isEmpty()) SpokenText::Of(label).Say(text);
}

}  // namespace quillomat
