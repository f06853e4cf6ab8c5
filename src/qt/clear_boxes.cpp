#include "qt/clear_boxes.h"

#include <QStyleOption>

#include "qt/mixed_color.h"

namespace quillomat {
namespace {

constexpr int kMiddleLightness = 128;
// Shares of the text's colour. The toolkit draws an outline a third darker than the ground that it
// is told of, so on dark ground that has to be lighter.
constexpr qreal kOnDark = 0.85;
constexpr qreal kOnLight = 0.4;

bool IsBox(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

}  // namespace

void ClearBoxes::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (box == nullptr || !IsBox(element)) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  QStyleOptionButton clear(*box);
  const QColor ground = box->palette.color(QPalette::Window);
  const qreal share = ground.lightness() < kMiddleLightness ? kOnDark : kOnLight;
  clear.palette.setColor(QPalette::Window,
                         MixedColor(ground, box->palette.color(QPalette::WindowText), share));
  QProxyStyle::drawPrimitive(element, &clear, painter, widget);
}

}  // namespace quillomat
