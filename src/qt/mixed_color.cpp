#include "qt/mixed_color.h"

#include <algorithm>
#include <cmath>

namespace quillomat {
namespace {

/// Of a channel, 0 to 1, without the curve of screens.
double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double LuminanceOf(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

}  // namespace

QColor MixedColor(const QColor& ground, const QColor& over, qreal share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a * (1 - share) + b * share));
  };
  return {mix(ground.red(), over.red()), mix(ground.green(), over.green()),
          mix(ground.blue(), over.blue())};
}

double ContrastOf(const QColor& one, const QColor& other) {
  constexpr double kFlare = 0.05;
  const double first = LuminanceOf(one) + kFlare;
  const double second = LuminanceOf(other) + kFlare;
  return std::max(first, second) / std::min(first, second);
}

QColor ReadableColor(const QColor& color, const QPalette& palette) {
  constexpr double kReadable = 4.5;
  constexpr int kSteps = 10;
  const QColor ground = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  for (int step = 0; step < kSteps; ++step) {
    const QColor mixed = MixedColor(color, text, static_cast<qreal>(step) / kSteps);
    if (ContrastOf(mixed, ground) >= kReadable) return mixed;
  }
  return text;
}

}  // namespace quillomat
