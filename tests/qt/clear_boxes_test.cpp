// Boxes to be checked that are not: their outlines stand out from the ground.
#include "qt/clear_boxes.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

namespace quillomat {
namespace {

TEST(ClearBoxes, CanBeSeenOnLightAndDarkGround) {
  const auto contrast = [](const QColor& one, const QColor& other) {
    const auto lightness = [](const QColor& color) {
      const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
      };
      return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
             0.0722 * linear(color.blueF());
    };
    const auto [low, high] = std::minmax({lightness(one), lightness(other)});
    return (high + 0.05) / (low + 0.05);
  };
  const ClearBoxes style("fusion");
  for (const QPalette& palette :
       {QPalette(QColor(239, 239, 239)), QPalette(QColor(53, 53, 53), QColor(35, 35, 35))}) {
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
      const QColor ground = palette.color(QPalette::Window);
      QImage image(13, 13, QImage::Format_RGB32);
      image.fill(ground);
      QStyleOptionButton option;
      option.palette = palette;
      option.rect = image.rect();
      option.state = QStyle::State_Enabled | QStyle::State_Off;
      QPainter painter(&image);
      style.drawPrimitive(element, &option, &painter, nullptr);
      painter.end();
      double best = 0;
      for (int x = 0; x < 3; ++x) best = std::max(best, contrast(image.pixelColor(x, 6), ground));
      EXPECT_GE(best, 3) << element << " " << ground.lightness();
    }
  }
}

}  // namespace
}  // namespace quillomat
