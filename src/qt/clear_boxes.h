// The desktop's style, with check boxes and option buttons whose outlines can be seen: the
// toolkit's own are hardly darker than what they stand on, and darker still on dark ground.
#pragma once

#include <QProxyStyle>

namespace quillomat {

class ClearBoxes final : public QProxyStyle {
 public:
  /// On the style that the application would have by itself.
  ClearBoxes() = default;
  /// On the style of that name.
  explicit ClearBoxes(const QString& style) : QProxyStyle(style) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace quillomat
