#include "layout_checks.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableView>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "qt/elided_label.h"
#include "qt/text_conversion.h"

namespace quillomat {
namespace {

/// What a person sees and uses, without the parts that it is made of.
bool IsPart(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QTableView*>(&widget) != nullptr ||
         qobject_cast<const QProgressBar*>(&widget) != nullptr;
}

/// A notice stands on the list, and is none of its parts.
bool IsInsideAPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  const bool notice = qobject_cast<const QLabel*>(&widget) != nullptr &&
                      qobject_cast<const QPlainTextEdit*>(parent) != nullptr;
  return IsPart(*parent) && !notice;
}

std::vector<QWidget*> PartsOf(const QWidget& window) {
  std::vector<QWidget*> parts;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && IsPart(*widget) && !IsInsideAPart(*widget)) parts.push_back(widget);
  }
  return parts;
}

std::string NameOf(const QWidget& widget) {
  const std::string name = FromQt(widget.objectName());
  return name.empty() ? widget.metaObject()->className() : name;
}

bool IsViewport(const QWidget& widget) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
  return area != nullptr && area->viewport() == &widget;
}

/// The place in its window that can be seen.
QRect SeenPlace(const QWidget& widget) {
  QRect place(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
  for (const QWidget* above = widget.parentWidget(); above != nullptr;
       above = above->isWindow() ? nullptr : above->parentWidget()) {
    place &= QRect(above->mapTo(above->window(), QPoint(0, 0)), above->size());
  }
  return place;
}

void ExpectNothingOverlaps(const QWidget& window) {
  const std::vector<QWidget*> parts = PartsOf(window);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    for (std::size_t j = i + 1; j < parts.size(); ++j) {
      if (parts[i]->isAncestorOf(parts[j]) || parts[j]->isAncestorOf(parts[i])) continue;
      EXPECT_FALSE(SeenPlace(*parts[i]).intersects(SeenPlace(*parts[j])))
          << NameOf(*parts[i]) << " and " << NameOf(*parts[j]);
    }
  }
}

void ExpectTextFits(const QWidget& part) {
  const auto* label = qobject_cast<const QLabel*>(&part);
  if (dynamic_cast<const ElidedLabel*>(&part) != nullptr) {
    EXPECT_GE(part.width(), part.minimumSizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.minimumSizeHint().height()) << NameOf(part);
  } else if (part.hasHeightForWidth()) {
    EXPECT_GE(part.width(), part.minimumSizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.heightForWidth(part.width())) << NameOf(part);
  } else if (label != nullptr || qobject_cast<const QAbstractButton*>(&part) != nullptr ||
             qobject_cast<const QComboBox*>(&part) != nullptr) {
    EXPECT_GE(part.width(), part.sizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.sizeHint().height()) << NameOf(part);
  } else {
    EXPECT_GE(part.height(), part.minimumSizeHint().height()) << NameOf(part);
    constexpr int kLetters = 3;  // to be typed in, and seen
    EXPECT_GE(part.width(), kLetters * part.fontMetrics().averageCharWidth()) << NameOf(part);
  }
}

/// Nothing reaches out of what holds it; what scrolls is reached by scrolling.
void ExpectReachable(const QWidget& part) {
  for (const QWidget* widget = &part; !widget->isWindow(); widget = widget->parentWidget()) {
    const QWidget& above = *widget->parentWidget();
    if (!IsViewport(above)) {
      EXPECT_TRUE(above.rect().contains(widget->geometry()))
          << NameOf(part) << ": " << NameOf(*widget) << " in " << NameOf(above);
    } else {
      EXPECT_LE(widget->width(), above.width()) << NameOf(*widget) << " scrolls sideways";
    }
  }
}

}  // namespace

void ExpectWellLaidOut(const QWidget& window) {
  ExpectNothingOverlaps(window);
  for (const QWidget* part : PartsOf(window)) {
    ExpectTextFits(*part);
    ExpectReachable(*part);
  }
}

}  // namespace quillomat
